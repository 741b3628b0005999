#include "zavel/receivable/TableModelPiutang.h"

#include "pos/cash/settlement/PaymentType.h"
#include "zavel/receivable/EntityPiutang.h"

TableModelPiutang::TableModelPiutang(const QList<KorEntity*>& payments, QObject* parent)
    : AppEntityModel(payments, parent)
{
    using Payment = EntityPiutang;
    addText(tr("No."), &Payment::getNo);
    addDate<Payment>(tr("Date"), [](const Payment& one) { return one.getDate(); });
    addField<Payment>(QMetaType::QString, tr("Member Code"),
                      [](const Payment& one) { return one.getMember()->getKode(); });
    addField<Payment>(QMetaType::QString, tr("Member Name"),
                      [](const Payment& one) { return one.getMember()->getNama(); });
    addMoney<Payment>(tr("Total Amount Paid"), [](const Payment& one) { return one.getGrandTotal(); });
    addField<Payment>(QMetaType::QString, tr("Payment Type"),
                      [](const Payment& one) { return paymentTypeText(one.getPaymentType()); });
}
