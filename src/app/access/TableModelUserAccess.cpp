#include "app/access/TableModelUserAccess.h"

#include "app/access/EntityAccess.h"

TableModelUserAccess::TableModelUserAccess(const QList<KorEntity*>& permissions, const QHash<int, int>& grants,
                                           QObject* parent)
    : KorEntityModel(permissions, parent)
{
    addId(tr("ID"));
    addText(tr("Permission Name"), &EntityPermission::getPermissionName);
    addField<EntityPermission>(QMetaType::QString, tr("Access"), [grants](const EntityPermission& permission) {
        switch (grants.value(permission.getId(), EntityAccess::None)) {
        case EntityAccess::All:
            return tr("ALL");
        case EntityAccess::Owner:
            return tr("OWNER");
        default:
            return tr("NONE");
        }
    });
}
