#include "pos/cash/transfer/TableModelAccountingTransaction.h"

#include "pos/cash/transfer/EntityAccountingTransaction.h"

namespace
{
QString codeOf(const EntityBank* account) { return account ? account->getKode() : QString(); }

QString nameOf(const EntityBank* account) { return account ? account->getNama() : QString(); }
} // namespace

TableModelAccountingTransaction::TableModelAccountingTransaction(const QList<KorEntity*>& transfers, QObject* parent)
    : CutTextModel(transfers, parent)
{
    using Transfer = EntityAccountingTransaction;
    const auto text = [this](const QString& header, auto read) {
        addField<Transfer>(QMetaType::QString, header, read);
    };
    addDate<Transfer>(tr("Date"), [](const Transfer& transfer) { return transfer.getDate(); });
    addText(tr("Trans No."), &Transfer::getTransNo);
    text(tr("Source Acc. Code"), [](const Transfer& transfer) { return codeOf(transfer.getFromAccount()); });
    text(tr("Source Acc. Name"), [](const Transfer& transfer) { return nameOf(transfer.getFromAccount()); });
    text(tr("Destination Acc. Code"), [](const Transfer& transfer) { return codeOf(transfer.getToAccount()); });
    text(tr("Destination Acc. Name"), [](const Transfer& transfer) { return nameOf(transfer.getToAccount()); });
    addMoney<Transfer>(tr("Amount Paid"), [](const Transfer& transfer) { return transfer.getAmount(); });
    text(tr("Description"), [](const Transfer& transfer) { return transfer.getNotes().simplified(); });
    text(tr("Operator"),
         [](const Transfer& transfer) { return transfer.getUser() ? transfer.getUser()->getUserName() : QString(); });
}
