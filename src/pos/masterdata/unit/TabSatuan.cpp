#include "pos/masterdata/unit/TabSatuan.h"

TabSatuan::TabSatuan(QWidget* parent) : AppFamilyTab({tr("Units"), "tblSatuan", "Unit"}, parent) { refresh(); }

QString TabSatuan::deleteQuestion(const KorEntity* entity) const
{
    return tr("Are you sure you want to delete this unit: %1 ?")
        .arg(static_cast<const EntitySatuan*>(entity)->getNama());
}
