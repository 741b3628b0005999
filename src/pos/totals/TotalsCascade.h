#pragma once

#include "pos/totals/InvoiceTotals.h"

#include <QObject>

class AppNumberEdit;
class KorDialog;
class MoneyEdit;
class QLabel;

/**
 * Binds the boxes of a form that takes or gives money to the totals: which entry changes which figure, and when. All
 * ways of selling and buying share it. The boxes are borrowed; the form's slots say which box was left.
 */
class TotalsCascade : public QObject
{
    Q_OBJECT

public:
    /** A form without one of the parts, without credit or without a net due has null there. */
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

    TotalsCascade(const Boxes& boxes, QObject* parent);

    /** An amount leaves its percent alone while there is no subtotal, instead of making it infinite. */
    void keepPercentsOfNothing() { m_keepsPercentsOfNothing = true; }

    /** All boxes at zero, for a new invoice. */
    void clear();
    /** The lines have changed; amounts are not derived from their percents again. */
    void setSubtotal(double amount);
    /** A discount that the amount follows when the user goes on: to another box, or to the end of the form. */
    void proposeDiscount(double percent);
    /** Lets the amount follow a discount that was proposed and not yet changed by hand. */
    void settleProposal();
    void percentEntered(InvoiceTotals::Part part);
    void amountEntered(InvoiceTotals::Part part);
    /** Shows the grand total and what is due from what the boxes hold now. */
    void calculateTotal();

    /** Adds an error to the form where more is taken off than there is. */
    void checkDiscount(KorDialog& form) const;

    void readFrom(const Invoice& invoice);
    void writeTo(Invoice* invoice);
    [[nodiscard]] const InvoiceTotals& totals() const { return m_totals; }

    /** Shows the parts and the money as they stand in a stored document. */
    void show(const InvoiceTotals& stored);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void showPart(InvoiceTotals::Part part);

    Boxes m_boxes;
    InvoiceTotals m_totals;
    bool m_keepsPercentsOfNothing = false;
    bool m_isProposed = false;
};
