#include "pos/masterdata/account/TableModelBank.h"

#include "pos/masterdata/account/EntityBank.h"

TableModelBank::TableModelBank(const QList<KorEntity*>& rows, QObject* parent) : KorEntityModel(rows, parent)
{
    addId(tr("ID"));
    addText(tr("Code"), &EntityBank::getKode);
    addText(tr("Name"), &EntityBank::getNama);
    addField<EntityBank>(QMetaType::QString, tr("Type"),
                         [](const EntityBank& account) { return accountTypeText(account.getAccountType()); });
}
