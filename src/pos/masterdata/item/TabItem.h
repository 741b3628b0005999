#pragma once

#include "app/widgets/AppListTab.h"
#include "pos/masterdata/item/BusinessItem.h"
#include "pos/masterdata/item/DialogItem.h"
#include "pos/masterdata/item/TableModelItem.h"

class ItemStockReader;
class QComboBox;
class QLabel;

/**
 * The list of items with today's stock, which arrives when it is reckoned. Only "Refresh" reads it anew, and a save on
 * this page that of its item.
 */
class TabItem final : public AppFamilyTab<BusinessItem, TableModelItem, DialogItem>
{
    Q_OBJECT

public:
    explicit TabItem(QWidget* parent = nullptr);

protected:
    QList<KorEntity*> readRows(const QString& filter) override;
    KorEntityModel* createModel(const QList<KorEntity*>& rows) override;
    [[nodiscard]] QString deleteQuestion(const KorEntity* entity) const override;
    void modelApplied() override;
    void entitySaved(KorEntity* entity) override;

private:
    void fillTypes();
    void readStock();
    void tellStockFailure(const QString& error);

    ItemStockReader* m_stock;
    QComboBox* m_types;
    /** Why there is no stock; hidden if there is. */
    QLabel* m_stockFailure;
    bool m_sized = false;
};
