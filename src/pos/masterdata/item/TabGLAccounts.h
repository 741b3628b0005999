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

/** The page of an item's form with its three ledger accounts. */
class TabGLAccounts final : public QWidget
{
    Q_OBJECT

public:
    explicit TabGLAccounts(KorDialog* form);
    ~TabGLAccounts() override;

    // The account is borrowed; null clears the field.
    void setSalesAccount(EntityBank* account);
    void setInventoryAccount(EntityBank* account);
    void setCostOfSalesAccount(EntityBank* account);

    /** Adds errors to the form for accounts that are missing, unknown or cannot be read. */
    void check(const QString& noSales, const QString& noInventory, const QString& noCostOfSales);
    // The account's code; empty if the account does not exist.
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
