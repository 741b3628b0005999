#include "zavel/payment/InvoiceLinesModel.h"

#include "pos/invoice/EntityInvoiceDetail.h"

InvoiceLinesModel::InvoiceLinesModel(const QList<KorEntity*>& lines, bool showSplit, QObject* parent)
    : AppEntityModel(lines, parent)
{
    using Line = EntityInvoiceDetail;
    const auto text = [this](const QString& header, auto read) {
        addField<Line>(QMetaType::QString, header,
                       [read](const Line& line) { return line.getItem() ? read(line) : QString(); });
    };
    text(tr("Code"), [](const Line& line) { return line.getItem()->getKode(); });
    text(tr("Name"), [](const Line& line) { return line.getItem()->getNama(); });
    addField<Line>(
        QMetaType::Int, tr("Qty"), [](const Line& line) { return line.getQty(); }, RightAligned);
    if (showSplit) {
        addField<Line>(
            QMetaType::Int, tr("Split"), [](const Line& line) { return line.qtySplit(); }, RightAligned);
        addField<Line>(QMetaType::QString, tr("Split Group"), [](const Line& line) { return line.splitGroup(); });
    }
    text(tr("Unit"), [](const Line& line) {
        return line.getItem()->getSatuan() ? line.getItem()->getSatuan()->getNama() : QString();
    });
    addMoney<Line>(tr("Unit Price"), [](const Line& line) { return line.getPriceEach(); });
    addMoney<Line>(tr("Amount"), [](const Line& line) { return line.getTotal(); });
}
