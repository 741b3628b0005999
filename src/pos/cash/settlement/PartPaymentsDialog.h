#pragma once

#include "app/widgets/MoneyEdit.h"
#include "pos/cash/settlement/EntityPartPayment.h"
#include "pos/cash/settlement/EntitySettlement.h"
#include "pos/cash/settlement/SettlementDialog.h"

#include <QComboBox>
#include <QDateEdit>
#include <QPlainTextEdit>

/** A settlement form that pays of each document as much as the cashier says. */
class PartPaymentsDialog : public SettlementDialog
{
    Q_OBJECT

protected:
    using PaymentTypes = QList<QPair<QString, QVariant>>;

    using SettlementDialog::SettlementDialog;

    [[nodiscard]] int documentIdOf(const KorEntity& line) const final { return part(line).documentId(); }
    [[nodiscard]] QString documentNoOf(const KorEntity& line) const final { return part(line).documentNo(); }
    [[nodiscard]] const Money* amountOf(const KorEntity& line) const final { return part(line).getAmountPaid(); }

    // What the forms call alike, and what their records do.
    template <class Ui>
    static void offerTypes(const Ui& ui, const PaymentTypes& types)
    {
        for (const auto& type : types)
            ui.ddlPaymentType->addItem(type.first, type.second);
    }
    template <class Ui>
    static void showPayment(const Ui& ui, const EntityPartSettlement& payment)
    {
        ui.txtKode->setText(payment.getNo());
        ui.ddlPaymentType->setCurrentIndex(ui.ddlPaymentType->findData(payment.getPaymentType()));
        ui.txtCekNo->setText(payment.getCheckNo());
        ui.txtRefNo->setText(payment.getNoRef());
        ui.datePay->setDate(payment.getDate());
        ui.txtNotes->setPlainText(payment.getNote());
    }
    template <class Ui>
    void takePayment(const Ui& ui, EntityPartSettlement* payment) const
    {
        payment->setPaymentType(ui.ddlPaymentType->currentData().toInt());
        payment->setDate(ui.datePay->date());
        payment->setCheckNo(ui.txtCekNo->text());
        payment->setNoRef(ui.txtRefNo->text());
        payment->setNote(ui.txtNotes->toPlainText());
        payment->setBank(account());
        payment->setGrandTotal(ui.txtGrandTotal->money());
    }

private:
    static const EntityPartPayment& part(const KorEntity& line) { return static_cast<const EntityPartPayment&>(line); }
};
