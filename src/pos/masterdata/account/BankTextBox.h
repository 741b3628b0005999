#pragma once

#include "app/widgets/AppEntityTextBox.h"
#include "pos/masterdata/account/BusinessBank.h"

/** A lookup box for ledger accounts. */
class BankTextBox final : public AppMasterTextBox<EntityBank, BusinessBank>
{
    Q_OBJECT

public:
    BankTextBox(QLineEdit* editor, BusinessBank* accounts)
        : AppMasterTextBox(editor, accounts, {tr("Code"), tr("Name"), tr("Type")})
    {}

protected:
    [[nodiscard]] QString thirdOf(const KorEntity& account) const override
    {
        return accountTypeText(static_cast<const EntityBank&>(account).getAccountType());
    }
};
