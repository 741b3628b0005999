#include "pos/masterdata/account/TabBank.h"

TabBank::TabBank(QWidget* parent) : AppFamilyTab({tr("Accounts"), "tblBank", "Bank"}, parent) { refresh(); }

QString TabBank::deleteQuestion(const KorEntity* entity) const
{
    return tr("Are you sure you want to delete this account: %1 ?")
        .arg(static_cast<const EntityBank*>(entity)->getNama());
}
