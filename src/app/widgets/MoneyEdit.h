#pragma once

#include "app/money/Money.h"
#include "app/widgets/AppNumberEdit.h"

/**
 * A field for an amount of money in the currency of the configured locale, shown with two decimals. Negative amounts
 * and amounts that are too large to store are refused. For a fraction of a whole unit, which is not stored, the user is
 * asked.
 */
class MoneyEdit : public AppNumberEdit
{
    Q_OBJECT
    Q_PROPERTY(Money* money READ money WRITE setMoney USER true)

public:
    explicit MoneyEdit(QWidget* parent = nullptr);

    [[nodiscard]] QString displayText() const override;
    void validate() override;
    /** The current amount. The field owns it and deletes it when another amount is entered. */
    [[nodiscard]] virtual Money* money();

    [[nodiscard]] QString fault() override;
    [[nodiscard]] QString doubt() override;
    void settle() override;
    /** True if there is no number, or the amount would be stored as zero. */
    [[nodiscard]] bool isNothing();

    /** Copies the value, which usually belongs to a record. Null means zero. */
    void setMoney(const Money* money);
    [[nodiscard]] const QString& currency() const { return m_currency; }
    /** Has no effect. */
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
