#include "pos/cash/ledger/TabCashFlow.h"

#include "app/persistence/AppDocumentLines.h"
#include "kor/business/KorServiceDirectory.h"
#include "pos/cash/entry/TwoLineHeader.h"
#include "pos/cash/ledger/BusinessCashFlow.h"
#include "pos/cash/ledger/CashFlowFilter.h"
#include "pos/cash/ledger/DialogCashFlow.h"
#include "pos/cash/ledger/EntityCashFlow.h"
#include "pos/cash/ledger/LedgerTotals.h"
#include "pos/cash/ledger/TableModelCashFlow.h"
#include "pos/masterdata/account/BankTextBox.h"

#include <QComboBox>
#include <QDateEdit>
#include <QLabel>
#include <QLineEdit>
#include <QTableView>

TabCashFlow::TabCashFlow(QWidget* parent)
    : AppListTab({tr("General Journal Entries"), "tblCashFlow", "Journal Transaction"}, 3, parent),
      m_totals(new LedgerTotals(this))
{
    makeFilters();
    addFoot(m_totals);
    setTwoLineHeader(grid());
    grid()->setWordWrap(false);
    refresh();
}

void TabCashFlow::makeFilters()
{
    const QDate today = QDate::currentDate();
    m_from = filters()->addDate("dateFrom", tr("From Date :"), today.addDays(1 - today.day()));
    m_code = filters()->addText("txtAccount", tr("Account :"));
    m_type = filters()->addChoice("ddlType", tr("Type :"),
                                  {{tr("All"), CashFlowFilter::AllRows},
                                   {tr("DEBET"), CashFlowFilter::DebitRows},
                                   {tr("CREDIT"), CashFlowFilter::CreditRows}});
    m_to = filters()->addDate("dateTo", tr("To Date :"), today);
    m_accountName = new QLabel(this);
    m_accountName->setObjectName("lblAccountName");
    // Cut off a long name instead of making the page wider.
    m_accountName->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    filters()->add(tr("Account Name :"), m_accountName);
    connect(m_code, &QLineEdit::textEdited, m_accountName, &QLabel::clear);
    m_accounts = new BankTextBox(m_code, service<BusinessBank>("Bank"));
    connect(m_accounts, &BankTextBox::onItemSelected, this, &TabCashFlow::onBankSelected);
}

void TabCashFlow::onBankSelected()
{
    if (const EntityBank* account = m_accounts->selectedItem())
        m_accountName->setText(account->getNama());
}

// --- the list ------------------------------------------------------------------------------------------------------

QList<KorEntity*> TabCashFlow::readRows(const QString&)
{
    // The user has finished typing, so no list of suggestions must open.
    m_accounts->preventSuggest();
    CashFlowFilter filter;
    filter.fromDate = m_from->date();
    filter.toDate = m_to->date();
    filter.type = m_type->currentData().toInt();
    filter.code = m_code->text();
    const QList<EntityCashFlow*> rows = businessAs<BusinessCashFlow>()->search(filter);
    for (EntityCashFlow* row : rows) {
        auto id = m_ids.find(row->getTransNo());
        if (id == m_ids.end())
            id = m_ids.insert(row->getTransNo(), m_ids.size() + 1);
        row->setId(*id);
    }
    return asEntities(rows);
}

KorEntityModel* TabCashFlow::createModel(const QList<KorEntity*>& rows) { return new TableModelCashFlow(rows, this); }

void TabCashFlow::modelApplied()
{
    using Model = TableModelCashFlow;
    for (const auto& width :
         {std::pair(Model::AccountCode, 96), std::pair(Model::TransNo, 142), std::pair(Model::AccountName, 200),
          std::pair(Model::Type, 150), std::pair(Model::Description, 150)})
        setColumnWidth(grid(), width.first, width.second);
    const QList<KorEntity*> rows = model()->entities();
    m_totals->show(rows);
    // The name of the account whose code was typed; known only if it has rows.
    if (m_code->text().trimmed().isEmpty())
        m_accountName->clear();
    else if (m_accountName->text().isEmpty() && !rows.isEmpty())
        m_accountName->setText(static_cast<const EntityCashFlow*>(rows.first())->getAccountName());
}

// --- the entries made by hand --------------------------------------------------------------------------------------

std::unique_ptr<KorDialog> TabCashFlow::createDialog() { return std::make_unique<DialogCashFlow>(this); }

int TabCashFlow::addKey() const { return BusinessCashFlow::INSERT_CASH_FLOW; }

int TabCashFlow::editKey() const { return BusinessCashFlow::UPDATE_CASH_FLOW; }

int TabCashFlow::deleteKey() const { return BusinessCashFlow::DELETE_CASH_FLOW; }

KorEntity* TabCashFlow::readEntity(int id) { return businessAs<BusinessCashFlow>()->getByTransNo(m_ids.key(id)); }

QString TabCashFlow::notFoundText(int) const { return tr("Please open it from Purchases menu or Sales menu"); }

QString TabCashFlow::deleteNotFoundText(int id) const
{
    return tr("Can not find entity with no: %1").arg(m_ids.key(id));
}

QString TabCashFlow::deleteQuestion(const KorEntity* entity) const
{
    return tr("Are you sure, you want to delete this entity with no: %1")
        .arg(static_cast<const EntityCashFlow*>(entity)->getTransNo());
}
