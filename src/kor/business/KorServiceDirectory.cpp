#include "kor/business/KorServiceDirectory.h"

#include <QHash>

namespace
{
QHash<QString, KorBusinessLogic*>& directory()
{
    static QHash<QString, KorBusinessLogic*> services;
    return services;
}
} // namespace

void KorServiceDirectory::add(KorBusinessLogic* service) { directory().insert(service->name(), service); }

void KorServiceDirectory::remove(KorBusinessLogic* service)
{
    const auto found = directory().find(service->name());
    if (found != directory().end() && found.value() == service)
        directory().erase(found);
}

KorBusinessLogic* KorServiceDirectory::find(const QMetaObject& type)
{
    for (KorBusinessLogic* service : qAsConst(directory())) {
        if (service->metaObject() == &type)
            return service;
    }
    return nullptr;
}

KorBusinessLogic* KorServiceDirectory::get(const QString& name) { return directory().value(name); }
