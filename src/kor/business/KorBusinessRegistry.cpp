#include "kor/business/KorBusinessRegistry.h"

#include "kor/business/KorBusinessLogic.h"
#include "kor/business/KorServiceDirectory.h"
#include "kor/system/KorLogger.h"

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
