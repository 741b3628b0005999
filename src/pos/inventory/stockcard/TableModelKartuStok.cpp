#include "pos/inventory/stockcard/TableModelKartuStok.h"

#include "pos/inventory/stock/EntityItemHistory.h"

TableModelKartuStok::TableModelKartuStok(const QList<KorEntity*>& rows, QObject* parent) : AppEntityModel(rows, parent)
{
    using Row = EntityItemHistory;
    const auto quantity = [this](const QString& header, int (Row::*getter)() const) {
        addField<Row>(
            QMetaType::Int, header, [getter](const Row& row) { return (row.*getter)(); }, RightAligned);
    };
    addText(tr("Trans No."), &Row::getNo);
    addField<Row>(QMetaType::QString, tr("Type"), [](const Row& row) { return typeText(row.getTransType()); });
    addDate<Row>(tr("Date"), [](const Row& row) { return row.getDate(); });
    quantity(tr("In"), &Row::getQtyIn);
    quantity(tr("Out"), &Row::getQtyOut);
    quantity(tr("Saldo"), &Row::getQtyRemain);
}

QString TableModelKartuStok::typeText(int transType)
{
    switch (transType) {
    case EntityItemHistory::PURCHASE:
        return tr("Purchase");
    case EntityItemHistory::SALE:
        return tr("Sales");
    case EntityItemHistory::ADJUSMENT:
        return tr("Adjustment");
    case EntityItemHistory::CREDIT_NOTE:
        return tr("Credit Note");
    case EntityItemHistory::BEGINING_BALANCE:
        return tr("Begining Balance");
    default:
        return tr("None");
    }
}
