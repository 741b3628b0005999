#include "kor/business/KorBusinessRegistry.h"

#include "kor/business/KorBusinessLogic.h"
#include "kor/business/KorFamily.h"
#include "kor/business/KorServiceDirectory.h"
#include "kor/system/KorLogger.h"

KorBusinessRegistry::KorBusinessRegistry(const QList<KorFamily>& families, const QStringList& first, KorLogger* logger,
                                         QObject* parent)
    : QObject(parent), m_logger(logger)
{
    for (const KorFamily& family : families) {
        if (family.makeService)
            add(family.makeService(this));
    }
    for (int place = first.size(); place-- > 0;)
        m_ordered.move(m_ordered.indexOf(get(first.at(place))), 0);
}

KorBusinessRegistry::~KorBusinessRegistry()
{
    for (KorBusinessLogic* service : qAsConst(m_ordered))
        KorServiceDirectory::remove(service);
}

void KorBusinessRegistry::add(KorBusinessLogic* service)
{
    m_byName.insert(service->name(), service);
    m_ordered.append(service);
    KorServiceDirectory::add(service);
    connect(service, &KorBusinessLogic::error, this, &KorBusinessRegistry::onError);
}

void KorBusinessRegistry::onError(const QString& err)
{
    if (m_logger)
        m_logger->log(err);
}
