#include "pos/cash/transfer/TabTransfer.h"

#include "app/persistence/AppDocumentLines.h"
#include "pos/cash/entry/TwoLineHeader.h"
#include "pos/cash/transfer/AccountingTransactionFilter.h"
#include "pos/cash/transfer/BusinessAccountingTransaction.h"
#include "pos/cash/transfer/DialogTransaction.h"
#include "pos/cash/transfer/EntityAccountingTransaction.h"
#include "pos/cash/transfer/TableModelAccountingTransaction.h"

#include <QDateEdit>
#include <QTableView>

TabTransfer::TabTransfer(QWidget* parent)
    : AppListTab({tr("Transferring Funds"), "tblTransfer", "Accounting Transaction"}, 2, parent)
{
    const QDate today = QDate::currentDate();
    m_from = filters()->addDate("dateFrom", tr("From Date :"), today.addDays(1 - today.day()));
    m_to = filters()->addDate("dateTo", tr("To Date :"), today);
    setTwoLineHeader(grid());
    grid()->setWordWrap(false);
    refresh();
}

QList<KorEntity*> TabTransfer::readRows(const QString&)
{
    return asEntities(businessAs<BusinessAccountingTransaction>()->search({m_from->date(), m_to->date()}));
}

KorEntityModel* TabTransfer::createModel(const QList<KorEntity*>& rows)
{
    return new TableModelAccountingTransaction(rows, this);
}

void TabTransfer::modelApplied()
{
    using Model = TableModelAccountingTransaction;
    for (const auto& width :
         {std::pair(Model::TransNo, 120), std::pair(Model::FromCode, 112), std::pair(Model::FromName, 124),
          std::pair(Model::ToCode, 112), std::pair(Model::ToName, 124), std::pair(Model::Description, 150)})
        setColumnWidth(grid(), width.first, width.second);
}

std::unique_ptr<KorDialog> TabTransfer::createDialog() { return std::make_unique<DialogTransaction>(this); }

QString TabTransfer::notFoundText(int id) const { return tr("Can not find transaction with id: %1").arg(id); }

QString TabTransfer::deleteNotFoundText(int id) const
{
    const auto* row = static_cast<const EntityAccountingTransaction*>(model()->find(id));
    return row ? tr("Can not find transaction with no: %1").arg(row->getTransNo()) : notFoundText(id);
}

QString TabTransfer::deleteQuestion(const KorEntity* entity) const
{
    return tr("Are you sure, you want to delete transaction with no: %1 ?")
        .arg(static_cast<const EntityAccountingTransaction*>(entity)->getTransNo());
}
