#pragma once

#include "sales/invoice/InvoiceTotals.h"

#include <QObject>

class AppNumberEdit;
class MoneyEdit;
class QLabel;
class QLineEdit;

/**
 * Binds the boxes of a payment form to the totals: which entry changes which figure, and when. The ways of selling
 * share it. The boxes are borrowed; the form's slots say which box was left.
 */
class PaymentCascade : public QObject
{
    Q_OBJECT

public:
    struct Boxes
    {
        MoneyEdit* subtotal;
        AppNumberEdit* percents[3];
        MoneyEdit* amounts[3];
        MoneyEdit* paid;
        MoneyEdit* credit;
        /** Every box that shows the grand total. */
        QList<MoneyEdit*> grandTotals;
        MoneyEdit* netDue;
        QLabel* netDueLabel;
    };

    PaymentCascade(const Boxes& boxes, QObject* parent);

    /** All boxes at zero, for a new invoice. */
    void clear();
    /** The lines have changed; amounts are not derived from their percents again. */
    void setSubtotal(double amount);
    /** A discount that the amount follows only when the user leaves the percent's box. */
    void proposeDiscount(double percent);
    void percentEntered(InvoiceTotals::Part part);
    void amountEntered(InvoiceTotals::Part part);
    /** Shows the grand total and what is due from what the boxes hold now. */
    void calculateTotal();

    /** The first box that somebody left with a text that is no number, and whose figure is thus another; or null. */
    [[nodiscard]] QLineEdit* wrongEntry() const;

    void readFrom(const Invoice& invoice);
    void writeTo(Invoice* invoice);
    [[nodiscard]] const InvoiceTotals& totals() const { return m_totals; }

private:
    void showPart(InvoiceTotals::Part part);

    Boxes m_boxes;
    InvoiceTotals m_totals;
};
