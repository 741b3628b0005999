#pragma once

#include <QWidget>

#include <memory>

class BankTextBox;
class EntityBank;
class QLabel;
class QLineEdit;

namespace Ui
{
class TabGLAccounts;
}

/** The page of an item's form with the three accounts that the item is booked to. */
class TabGLAccounts final : public QWidget
{
    Q_OBJECT

public:
    explicit TabGLAccounts(QWidget* parent = nullptr);
    ~TabGLAccounts() override;

    // Null empties the field.
    void setSalesAccount(const EntityBank* account);
    void setInventoryAccount(const EntityBank* account);
    void setCostOfSalesAccount(const EntityBank* account);

    // The code of an account that exists, else empty; a code that was typed and not chosen is looked up.
    [[nodiscard]] QString salesAccountCode() { return codeOf(m_sales); }
    [[nodiscard]] QString inventoryAccountCode() { return codeOf(m_inventory); }
    [[nodiscard]] QString costOfSalesAccountCode() { return codeOf(m_costOfSales); }

private slots:
    void onSalesSelected();
    void onInventorySelected();
    void onCostOfSalesSelected();

private:
    struct Field
    {
        QLineEdit* editor = nullptr;
        QLabel* name = nullptr;
        BankTextBox* box = nullptr;
        QString code; ///< of the account whose name is shown
    };

    void prepare(Field& field, QLineEdit* editor, QLabel* name);
    static void show(Field& field, const EntityBank* account);
    static QString codeOf(Field& field);

    std::unique_ptr<Ui::TabGLAccounts> m_ui;
    Field m_sales;
    Field m_inventory;
    Field m_costOfSales;
};
