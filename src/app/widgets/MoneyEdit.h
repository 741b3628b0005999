#pragma once

#include "app/money/Money.h"
#include "app/widgets/AppNumberEdit.h"

/**
 * A line edit for an amount of money in the currency of the configured locale, shown with two decimals. Amounts are not
 * negative and not larger than a stored one can be; what is less than a whole unit is asked about, as it is not kept.
 */
class MoneyEdit : public AppNumberEdit
{
    Q_OBJECT
    Q_PROPERTY(Money* money READ money WRITE setMoney USER true)

public:
    explicit MoneyEdit(QWidget* parent = nullptr);

    [[nodiscard]] QString displayText() const override;
    void validate() override;
    /** The amount as the field has it; the edit owns it, and replaces it when another amount is entered. */
    [[nodiscard]] virtual Money* money();

    [[nodiscard]] QString fault() override;
    [[nodiscard]] QString doubt() override;
    void settle() override;
    /** No number, or an amount of which nothing would be stored. */
    [[nodiscard]] bool isNothing();

    /** Takes a copy: the value that is shown usually belongs to a record. Null is an amount of zero. */
    void setMoney(const Money* money);
    [[nodiscard]] const QString& currency() const { return m_currency; }
    /** Kept for the forms that set it; the field looks the same either way. */
    void setCurrencyFixed(bool fixed) { m_currencyFixed = fixed; }
    [[nodiscard]] bool isCurrencyFixed() const { return m_currencyFixed; }

protected:
    [[nodiscard]] bool finishesEntry(int key) const override;

private:
    [[nodiscard]] double largest() const;
    [[nodiscard]] double kept() const;
    void replaceMoney(Money* money);

    QString m_currency;
    Money* m_money;
    bool m_currencyFixed = false;
};
