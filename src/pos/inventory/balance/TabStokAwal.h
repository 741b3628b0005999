#pragma once

#include "app/widgets/AppListTab.h"
#include "pos/inventory/balance/DialogStokAwal.h"
#include "pos/inventory/balance/TableModelStokAwal.h"
#include "pos/inventory/stock/BusinessStokAwal.h"

class ItemTextBox;

/** The list of the items' beginning balances. */
class TabStokAwal final : public AppFamilyTab<BusinessStokAwal, TableModelStokAwal, DialogStokAwal>
{
    Q_OBJECT

public:
    explicit TabStokAwal(QWidget* parent = nullptr);

protected:
    // One right covers adding and editing. A balance is deleted only together with its item.
    [[nodiscard]] int editKey() const override { return BusinessStokAwal::UPDATE_STOK_AWAL; }
    [[nodiscard]] int deleteKey() const override { return BusinessStokAwal::UPDATE_STOK_AWAL; }
    [[nodiscard]] QString deleteQuestion(const KorEntity*) const override { return {}; }
    QList<KorEntity*> readRows(const QString& code) override;
    bool insertEntity(KorEntity* balance) override;
    void modelApplied() override;

private:
    ItemTextBox* m_items;
};
