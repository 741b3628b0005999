#include "kor/business/KorErrorScope.h"

#include "kor/business/KorBusinessLogic.h"

#include <algorithm>

KorErrorScope::KorErrorScope(std::initializer_list<KorBusinessLogic*> services) : m_services(services) { clear(); }

KorErrorScope::~KorErrorScope() { clear(); }

bool KorErrorScope::failed() const
{
    return std::any_of(m_services.begin(), m_services.end(),
                       [](const KorBusinessLogic* service) { return service->hasError(); });
}

QString KorErrorScope::take()
{
    QString text;
    for (KorBusinessLogic* service : qAsConst(m_services))
        text += service->takeErrors();
    return text;
}

void KorErrorScope::clear()
{
    for (KorBusinessLogic* service : qAsConst(m_services))
        service->clearErrors();
}
