#pragma once

#include <QWidget>

#include <memory>

class AccountField;
class EntityBank;
class KorDialog;

namespace Ui
{
class TabGLAccounts;
}

/** The page of an item's form with the three accounts that the item is booked to. */
class TabGLAccounts final : public QWidget
{
    Q_OBJECT

public:
    explicit TabGLAccounts(KorDialog* form);
    ~TabGLAccounts() override;

    // Null empties the field; the account is borrowed.
    void setSalesAccount(EntityBank* account);
    void setInventoryAccount(EntityBank* account);
    void setCostOfSalesAccount(EntityBank* account);

    /** Reports on the form what is no account or cannot be read. */
    void check(const QString& noSales, const QString& noInventory, const QString& noCostOfSales);
    // The code of an account that exists, else empty.
    [[nodiscard]] QString salesAccountCode() const;
    [[nodiscard]] QString inventoryAccountCode() const;
    [[nodiscard]] QString costOfSalesAccountCode() const;

private slots:
    void onSalesSelected();
    void onInventorySelected();
    void onCostOfSalesSelected();

private:
    std::unique_ptr<Ui::TabGLAccounts> m_ui;
    AccountField* m_sales;
    AccountField* m_inventory;
    AccountField* m_costOfSales;
};
