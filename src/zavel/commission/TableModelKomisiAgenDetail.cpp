#include "zavel/commission/TableModelKomisiAgenDetail.h"

#include "zavel/commission/CommissionAmount.h"
#include "zavel/commission/EntityKomisiAgenDetail.h"

TableModelKomisiAgenDetail::TableModelKomisiAgenDetail(const QList<KorEntity*>& lines, QObject* parent)
    : AppEntityModel(lines, parent)
{
    using Line = EntityKomisiAgenDetail;
    addField<Line>(QMetaType::QString, tr("Invoice No."),
                   [](const Line& line) { return line.getInvoice()->getInvoiceNo(); });
    addField<Line>(QMetaType::QDateTime, tr("Date"),
                   [this](const Line& line) { return dateText(line.getInvoice()->getInvoiceDate()); });
    addField<Line>(QMetaType::QString, tr("Guest"), [](const Line& line) { return line.getInvoice()->getPemesan(); });
    addMoney<Line>(tr("Invoice Total"), [](const Line& line) { return line.getInvoice()->getGrandTotal(); });
    // Sorted by its number, like money.
    addField<Line>(
        moneyType(), tr("% Commision"), [](const Line& line) { return percentText(line.getCommisionPerc()); },
        RightAligned);
    addMoney<Line>(tr("Total Commision"), [](const Line& line) { return line.getCommision(); });
}
