#include "pos/masterdata/itemtype/TableModelJenisItem.h"

#include "pos/masterdata/itemtype/EntityJenisItem.h"

TableModelJenisItem::TableModelJenisItem(const QList<KorEntity*>& rows, QObject* parent) : KorEntityModel(rows, parent)
{
    addId(tr("ID"));
    addText(tr("Code"), &EntityJenisItem::getKode);
    addText(tr("Name"), &EntityJenisItem::getNama);
}
