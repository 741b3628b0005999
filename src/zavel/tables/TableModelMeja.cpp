#include "zavel/tables/TableModelMeja.h"

#include "zavel/tables/EntityMeja.h"

TableModelMeja::TableModelMeja(const QList<KorEntity*>& tables, QObject* parent) : KorEntityModel(tables, parent)
{
    addId(tr("ID"));
    addText(tr("Code"), &EntityMeja::getKode);
    addText(tr("Name"), &EntityMeja::getNama);
}
