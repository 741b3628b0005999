#include "zavel/commission/TableModelKomisiAgenDetail.h"

#include "zavel/commission/EntityKomisiAgenDetail.h"

TableModelKomisiAgenDetail::TableModelKomisiAgenDetail(const QList<KorEntity*>& lines, QObject* parent)
    : AppEntityModel(lines, parent)
{
    using Line = EntityKomisiAgenDetail;
    addField<Line>(QMetaType::QString, tr("Invoice No."),
                   [](const Line& line) { return line.getInvoice()->getInvoiceNo(); });
    addDate<Line>(tr("Date"), [](const Line& line) { return line.getInvoice()->getInvoiceDate(); });
    addField<Line>(QMetaType::QString, tr("Guest"), [](const Line& line) { return line.getInvoice()->getPemesan(); });
    addMoney<Line>(tr("Invoice Total"), [](const Line& line) { return line.getInvoice()->getGrandTotal(); });
    addPercent<Line>(tr("% Commision"), [](const Line& line) { return line.getCommisionPerc(); });
    addMoney<Line>(tr("Total Commision"), [](const Line& line) { return line.getCommision(); });
}
