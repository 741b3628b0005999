#pragma once

#include "pos/cash/settlement/EntityPartPayment.h"
#include "pos/cash/settlement/EntitySettlement.h"
#include "pos/cash/settlement/SettlementDialog.h"
#include "pos/masterdata/account/AccountField.h"

#include <QComboBox>
#include <QDateEdit>
#include <QPlainTextEdit>

/** A settlement form in which the cashier enters an amount for each document. */
class PartPaymentsDialog : public SettlementDialog
{
    Q_OBJECT

protected:
    using PaymentTypes = QList<QPair<QString, QVariant>>;

    using SettlementDialog::SettlementDialog;

    [[nodiscard]] int documentIdOf(const KorEntity& line) const final { return part(line).documentId(); }
    [[nodiscard]] QString documentNoOf(const KorEntity& line) const final { return part(line).documentNo(); }
    [[nodiscard]] const Money* amountOf(const KorEntity& line) const final { return part(line).getAmountPaid(); }

    // Fields that the forms and their records have under the same names.
    template <class Ui>
    static void offerTypes(const Ui& ui, const PaymentTypes& types)
    {
        for (const auto& type : types)
            ui.ddlPaymentType->addItem(type.first, type.second);
    }
    template <class Payment, class Ui>
    void editsPayment(const Ui& ui)
    {
        edits<Payment>({{ui.txtKode, "No"},
                        {ui.ddlPaymentType, "PaymentType"},
                        {ui.txtCekNo, "CheckNo"},
                        {ui.txtRefNo, "NoRef"},
                        {ui.datePay, "Date"},
                        {ui.txtNotes, "Note"},
                        {accountField(), "Bank"}});
    }

private:
    static const EntityPartPayment& part(const KorEntity& line) { return static_cast<const EntityPartPayment&>(line); }
};
