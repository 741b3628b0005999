#include "pos/cash/ledger/TableModelCashFlow.h"

#include "pos/cash/ledger/EntityCashFlow.h"

namespace
{
/** Leaves the side without an amount empty, as in a paper ledger. */
const Money* used(const Money* side, const Money* other)
{
    return side && other && side->rawAmount() == 0 && other->rawAmount() != 0 ? nullptr : side;
}
} // namespace

TableModelCashFlow::TableModelCashFlow(const QList<KorEntity*>& rows, QObject* parent) : CutTextModel(rows, parent)
{
    using Row = EntityCashFlow;
    addDate<Row>(tr("Date"), [](const Row& row) { return row.getDate(); });
    addText(tr("Account Code"), &Row::getAccountCode);
    addText(tr("Account Name"), &Row::getAccountName);
    addMoney<Row>(tr("Debit"), [](const Row& row) { return used(row.getDebet(), row.getCredit()); });
    addMoney<Row>(tr("Credit"), [](const Row& row) { return used(row.getCredit(), row.getDebet()); });
    addText(tr("Trans. No."), &Row::getTransNo);
    addText(tr("Type"), &Row::getTransType);
    addField<Row>(QMetaType::QString, tr("Description"), [](const Row& row) { return row.getNotes().simplified(); });
    addText(tr("Operator"), &Row::getOperator);
}
