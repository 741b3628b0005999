#include "pos/masterdata/unit/TableModelSatuan.h"

#include "pos/masterdata/unit/EntitySatuan.h"

TableModelSatuan::TableModelSatuan(const QList<KorEntity*>& rows, QObject* parent) : KorEntityModel(rows, parent)
{
    addId(tr("ID"));
    addText(tr("Name"), &EntitySatuan::getNama);
    addText(tr("Code"), &EntitySatuan::getKode);
}
