#pragma once

#include <QString>

class Invoice;
class Money;

/**
 * The money of a document in the making: the cascade of what is typed and what follows from it. Amounts are in whole
 * units of the currency, as money stores them, so that the figures add up to the stored ones; no widget is involved.
 */
class InvoiceTotals
{
public:
    enum Part { Discount, Tax, Service };

    void setCurrency(const QString& currency) { m_currency = currency; }
    [[nodiscard]] const QString& currency() const { return m_currency; }
    void setSubtotal(double amount) { m_subtotal = kept(amount); }
    /** Takes the amount and lets the percent follow. Without a subtotal the percent is infinite or not a number. */
    void setAmount(Part part, double amount);
    /** Takes the percent and lets the amount follow; all three are taken of the subtotal alone. */
    void setPercent(Part part, double percent);
    /** Takes both as they stand in a stored document. */
    void restore(Part part, double percent, double amount);
    /** Takes the percent alone; the amount follows when somebody leaves the percent's box. */
    void proposePercent(Part part, double percent) { m_percent[part] = percent; }
    void setPaid(double amount) { m_paid = kept(amount); }
    void setCredit(double amount) { m_credit = kept(amount); }

    [[nodiscard]] double subtotal() const { return m_subtotal; }
    [[nodiscard]] double amount(Part part) const { return m_amount[part]; }
    [[nodiscard]] double percent(Part part) const { return m_percent[part]; }
    [[nodiscard]] double paid() const { return m_paid; }
    [[nodiscard]] double credit() const { return m_credit; }
    [[nodiscard]] double grandTotal() const;
    /** What a form shows: positive for change, negative for what is still missing. */
    [[nodiscard]] double change() const;
    [[nodiscard]] bool isShort() const { return change() < 0; }
    /** Whether every figure fits into what a stored amount can hold. */
    [[nodiscard]] bool fits() const;

    /** Writes all figures into the invoice; its net due has the other sign than change(). */
    void writeTo(Invoice* invoice) const;
    void readFrom(const Invoice& invoice);

    /** Three decimals with a rounding point of 0.49 at the third place. */
    [[nodiscard]] static double percentOf(double amount, double subtotal);
    /** What money keeps of the amount; all of one that is too large for it, which fits() tells, and nothing of none. */
    [[nodiscard]] static double kept(double amount, const QString& currency);

private:
    [[nodiscard]] double kept(double amount) const { return kept(amount, m_currency); }

    QString m_currency;
    double m_subtotal = 0;
    double m_amount[3] = {0, 0, 0};
    double m_percent[3] = {0, 0, 0};
    double m_paid = 0;
    double m_credit = 0;
};
