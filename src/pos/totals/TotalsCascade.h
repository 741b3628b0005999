#pragma once

#include "pos/totals/InvoiceTotals.h"

#include <QObject>

class AppNumberEdit;
class KorDialog;
class MoneyEdit;
class QLabel;

/**
 * Connects the amount fields of a form to InvoiceTotals: which entry changes which field, and when. Used for all kinds
 * of sales and purchases. The widgets are borrowed. The form calls these functions when a field was left.
 */
class TotalsCascade : public QObject
{
    Q_OBJECT

public:
    /** Null for fields that a form does not have. */
    struct Boxes
    {
        MoneyEdit* subtotal;
        AppNumberEdit* percents[3];
        MoneyEdit* amounts[3];
        MoneyEdit* paid;
        MoneyEdit* credit;
        /** All fields that show the grand total. */
        QList<MoneyEdit*> grandTotals;
        MoneyEdit* netDue;
        QLabel* netDueLabel;
    };

    TotalsCascade(const Boxes& boxes, QObject* parent);

    /** Without a subtotal, entering an amount keeps the percentage instead of making it infinite. */
    void keepPercentsOfNothing() { m_keepsPercentsOfNothing = true; }

    /** Sets all fields to zero, for a new invoice. */
    void clear();
    /** Call it after the lines have changed; amounts are not calculated from percentages again. */
    void setSubtotal(double amount);
    /**
     * Shows a discount percentage; its amount is calculated when the user goes to another field or confirms the form.
     */
    void proposeDiscount(double percent);
    /** Calculates the amount of a proposed discount, unless the user has changed it. */
    void settleProposal();
    void percentEntered(InvoiceTotals::Part part);
    void amountEntered(InvoiceTotals::Part part);
    /** Shows the grand total and the amount due, calculated from the current fields. */
    void calculateTotal();

    /** Adds an error to the form if the discount is larger than the subtotal. */
    void checkDiscount(KorDialog& form) const;

    void readFrom(const Invoice& invoice);
    void writeTo(Invoice* invoice);
    [[nodiscard]] const InvoiceTotals& totals() const { return m_totals; }

    /** Shows the amounts of a stored document. */
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
