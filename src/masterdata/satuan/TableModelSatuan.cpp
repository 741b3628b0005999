#include "masterdata/satuan/TableModelSatuan.h"

#include "masterdata/satuan/EntitySatuan.h"

TableModelSatuan::TableModelSatuan(const QList<KorEntity*>& rows, QObject* parent) : KorEntityModel(rows, parent)
{
    addId(tr("ID"));
    addText(tr("Name"), &EntitySatuan::getNama);
    addText(tr("Code"), &EntitySatuan::getKode);
}
