#pragma once

#include "app/widgets/AppListTab.h"
#include "masterdata/bank/BusinessBank.h"
#include "masterdata/bank/DialogBank.h"
#include "masterdata/bank/TableModelBank.h"

/** The list of the ledger's accounts. */
class TabBank final : public AppFamilyTab<BusinessBank, TableModelBank, DialogBank>
{
    Q_OBJECT

public:
    explicit TabBank(QWidget* parent = nullptr);

protected:
    [[nodiscard]] QString deleteQuestion(const KorEntity* entity) const override;
};
