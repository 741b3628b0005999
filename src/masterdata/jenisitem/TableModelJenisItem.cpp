#include "masterdata/jenisitem/TableModelJenisItem.h"

#include "masterdata/jenisitem/EntityJenisItem.h"

TableModelJenisItem::TableModelJenisItem(const QList<KorEntity*>& rows, QObject* parent) : KorEntityModel(rows, parent)
{
    addId(tr("ID"));
    addText(tr("Code"), &EntityJenisItem::getKode);
    addText(tr("Name"), &EntityJenisItem::getNama);
}
