#include "zavel/receivable/TableModelPiutangInvoice.h"

#include "zavel/receivable/EntityPiutangDetail.h"

TableModelPiutangInvoice::TableModelPiutangInvoice(const QList<KorEntity*>& lines, QObject* parent)
    : AppEntityModel(lines, parent)
{
    using Line = EntityPiutangDetail;
    addField<Line>(QMetaType::QString, tr("Invoice No."),
                   [](const Line& line) { return line.getInvoice()->getInvoiceNo(); });
    addDate<Line>(tr("Date"), [](const Line& line) { return line.getInvoice()->getInvoiceDate(); });
    addMoney<Line>(tr("Invoice Total"), [](const Line& line) { return line.getInvoice()->getGrandTotal(); });
    addMoney<Line>(tr("Net Due"), [](const Line& line) { return line.getAmountDue(); });
    addMoney<Line>(tr("Amount Paid"), [](const Line& line) { return line.getAmountPaid(); });
}
