#include "zavel/commission/TableModelKomisiAgen.h"

#include "zavel/commission/EntityKomisiAgen.h"

TableModelKomisiAgen::TableModelKomisiAgen(const QList<KorEntity*>& payments, QObject* parent)
    : AppEntityModel(payments, parent)
{
    using Payment = EntityKomisiAgen;
    addText(tr("Code"), &Payment::getNo);
    addDate<Payment>(tr("Date"), [](const Payment& one) { return one.getPaymentDate(); });
    addField<Payment>(QMetaType::QString, tr("Agent Name"),
                      [](const Payment& one) { return one.getAgent()->getNama(); });
    addMoney<Payment>(tr("Total Commision"), [](const Payment& one) { return one.getGrandTotal(); });
    addMoney<Payment>(tr("Total Amount Paid"), [](const Payment& one) { return one.getAmountPaid(); });
    addMoney<Payment>(tr("Net Due"), [](const Payment& one) { return one.getNetDue(); });
    addText(tr("Description"), &Payment::getNote);
}
