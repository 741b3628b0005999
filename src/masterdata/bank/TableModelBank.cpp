#include "masterdata/bank/TableModelBank.h"

#include "masterdata/bank/EntityBank.h"

TableModelBank::TableModelBank(const QList<KorEntity*>& rows, QObject* parent) : KorEntityModel(rows, parent)
{
    addId(tr("ID"));
    addText(tr("Code"), &EntityBank::getKode);
    addText(tr("Name"), &EntityBank::getNama);
    addField<EntityBank>(QMetaType::QString, tr("Type"),
                         [](const EntityBank& account) { return accountTypeText(account.getAccountType()); });
}
