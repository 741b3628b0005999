#pragma once

#include <QString>

class Invoice;
class Money;

/**
 * The amounts of a document that is being entered, and what is calculated from them. Amounts are in whole units of the
 * currency, rounded as Money stores them, so that sums match the stored values. Uses no widgets.
 */
class InvoiceTotals
{
public:
    enum Part { Discount, Tax, Service };

    void setCurrency(const QString& currency) { m_currency = currency; }
    [[nodiscard]] const QString& currency() const { return m_currency; }
    void setSubtotal(double amount) { m_subtotal = kept(amount); }
    /** Sets the amount and calculates the percentage, which is infinite or NaN without a subtotal. */
    void setAmount(Part part, double amount);
    /** Sets the percentage and calculates the amount from the subtotal; all three parts use the subtotal. */
    void setPercent(Part part, double percent);
    /** Sets both as stored in a document, without calculation. */
    void restore(Part part, double percent, double amount);
    /** Sets only the percentage; the amount is calculated when the user leaves the field. */
    void proposePercent(Part part, double percent) { m_percent[part] = percent; }
    void setPaid(double amount) { m_paid = kept(amount); }
    void setCredit(double amount) { m_credit = kept(amount); }

    [[nodiscard]] double subtotal() const { return m_subtotal; }
    [[nodiscard]] double amount(Part part) const { return m_amount[part]; }
    [[nodiscard]] double percent(Part part) const { return m_percent[part]; }
    [[nodiscard]] double paid() const { return m_paid; }
    [[nodiscard]] double credit() const { return m_credit; }
    [[nodiscard]] double grandTotal() const;
    /** As shown in a form: positive for change, negative for what is missing. */
    [[nodiscard]] double change() const;
    [[nodiscard]] bool isShort() const { return change() < 0; }
    /** False if any amount is too large for Money. */
    [[nodiscard]] bool fits() const;

    /** Writes all amounts to the invoice. Its net due is the negative of change(). */
    void writeTo(Invoice* invoice) const;
    void readFrom(const Invoice& invoice);

    /** Rounded to three decimals; a rest of more than 0.49 of the third one is rounded up. */
    [[nodiscard]] static double percentOf(double amount, double subtotal);
    /**
     * The amount as Money would store it. One that is too large is returned unchanged (see fits()); NaN or infinity
     * gives 0.
     */
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
