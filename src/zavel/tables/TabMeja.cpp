#include "zavel/tables/TabMeja.h"

TabMeja::TabMeja(QWidget* parent) : AppFamilyTab({tr("Tables"), "tblMeja", "Table"}, parent) { refresh(); }

QString TabMeja::deleteQuestion(const KorEntity* entity) const
{
    return tr("Are you sure you want to delete this table: %1 ?")
        .arg(static_cast<const EntityMeja*>(entity)->getNama());
}
