#pragma once

#include "app/widgets/AppListTab.h"
#include "pos/masterdata/account/BusinessBank.h"
#include "pos/masterdata/account/DialogBank.h"
#include "pos/masterdata/account/TableModelBank.h"

/** The list of the ledger's accounts. */
class TabBank final : public AppFamilyTab<BusinessBank, TableModelBank, DialogBank>
{
    Q_OBJECT

public:
    explicit TabBank(QWidget* parent = nullptr);

protected:
    [[nodiscard]] QString deleteQuestion(const KorEntity* entity) const override;
};
