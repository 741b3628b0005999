#include "app/context/AccessCheck.h"

#include "app/context/AppContext.h"
#include "kor/entity/KorEntity.h"

#include <QCoreApplication>
#include <QMessageBox>

namespace
{
enum Grant { None, Owner, All };
} // namespace

bool checkAccess(const QString& businessName, int key, const KorEntity* entity)
{
    const AppContext* context = AppContext::instance();
    if (!context->userRights())
        return false;
    const auto rights = context->userRights()->values(businessName);
    for (const auto& right : rights) {
        if (right.first != key)
            continue;
        if (right.second == All)
            return true;
        if (right.second == Owner && (!entity || entity->getCreatedBy() == context->currentUserId()))
            return true;
    }
    return false;
}

bool hasAccess(const QString& businessName, int key, const KorEntity* entity)
{
    if (checkAccess(businessName, key, entity))
        return true;
    const AppContext::Captions* captions = AppContext::instance()->accessCaptions();
    const QString caption = captions ? captions->value(businessName + QString::number(key)) : QString();
    QMessageBox::critical(
        nullptr, QCoreApplication::translate("AccessCheck", "Error"),
        QCoreApplication::translate("AccessCheck", "You don't have access.\r\nRequired permission: %1")
            .arg(businessName + '.' + caption));
    return false;
}
