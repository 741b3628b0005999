#pragma once

#include "app/numbers/BusinessKey.h"
#include "app/numbers/DialogKeyTable.h"
#include "app/numbers/TableModelKeyTable.h"
#include "app/widgets/AppListTab.h"

/** The list of the running numbers. The installation creates them; here they can only be edited. */
class TabKeyTable final : public AppFamilyTab<BusinessKey, TableModelKeyTable, DialogKeyTable>
{
    Q_OBJECT

public:
    explicit TabKeyTable(QWidget* parent = nullptr);

protected:
    [[nodiscard]] QString deleteQuestion(const KorEntity*) const override { return {}; }
    [[nodiscard]] int editKey() const override { return BusinessKey::UPDATE_KEY; }
    [[nodiscard]] bool asksOnce(int) const override { return true; }
    void modelApplied() override;
};
