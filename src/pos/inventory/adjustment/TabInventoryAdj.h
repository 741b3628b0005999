#pragma once

#include "app/widgets/AppListTab.h"
#include "pos/inventory/adjustment/DialogInventoryAdj.h"
#include "pos/inventory/adjustment/TableModelInventoryAdj.h"
#include "pos/inventory/stock/BusinessInventory.h"

class ItemTextBox;

/** The list of stock adjustments. They cannot be edited: delete a wrong one and enter it again. */
class TabInventoryAdj final : public AppFamilyTab<BusinessInventory, TableModelInventoryAdj, DialogInventoryAdj>
{
    Q_OBJECT

public:
    explicit TabInventoryAdj(QWidget* parent = nullptr);

protected:
    [[nodiscard]] int addKey() const override { return BusinessInventory::INSERT_STOCKTAKE; }
    [[nodiscard]] int deleteKey() const override { return BusinessInventory::DELETE_STOCKTAKE; }
    [[nodiscard]] QString deleteQuestion(const KorEntity* take) const override;
    QList<KorEntity*> readRows(const QString& code) override;
    bool insertEntity(KorEntity* take) override;
    bool removeEntity(KorEntity* take) override;
    void modelApplied() override;

private:
    ItemTextBox* m_items;
};
