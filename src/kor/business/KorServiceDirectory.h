#pragma once

#include "kor/business/KorBusinessLogic.h"

/**
 * Where screens find services by name. The registries fill it when they are made, so that no screen has to know a
 * registry or the layer that it belongs to. The services are borrowed.
 */
class KorServiceDirectory
{
public:
    static void add(KorBusinessLogic* service);
    static void remove(KorBusinessLogic* service);
    /** Null for a name that no registry has filled in. */
    [[nodiscard]] static KorBusinessLogic* get(const QString& name);
    /** The service of exactly that class; null when none is made. */
    [[nodiscard]] static KorBusinessLogic* find(const QMetaObject& type);
};

/** The service of that name, in its own type; null when it is missing or of another type. */
template <class Service>
[[nodiscard]] Service* service(const QString& name)
{
    return qobject_cast<Service*>(KorServiceDirectory::get(name));
}
