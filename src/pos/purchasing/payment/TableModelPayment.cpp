#include "pos/purchasing/payment/TableModelPayment.h"

#include "pos/purchasing/payment/EntityPayment.h"

TableModelPayment::TableModelPayment(const QList<KorEntity*>& payments, QObject* parent)
    : AppEntityModel(payments, parent)
{
    using Payment = EntityPayment;
    addText(tr("Payment No."), &Payment::getNo);
    addDate<Payment>(tr("Date"), [](const Payment& one) { return one.getDate(); });
    addField<Payment>(QMetaType::QString, tr("Supplier"),
                      [](const Payment& one) { return one.getSupplier()->getNama(); });
    addMoney<Payment>(tr("Total Payment"), [](const Payment& one) { return one.getGrandTotal(); });
}
