#include "pos/cash/ledger/LedgerTotals.h"

#include "app/widgets/MoneyEdit.h"
#include "pos/cash/ledger/EntityCashFlow.h"

#include <QHBoxLayout>
#include <QLabel>

LedgerTotals::LedgerTotals(QWidget* parent) : QWidget(parent)
{
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(8);
    m_debit = addField(row, "txtTotalDebit", tr("Total Debit :"));
    m_credit = addField(row, "txtTotalCredit", tr("Total Credit :"));
    m_balance = addField(row, "txtEndingBalance", tr("Ending Balance :"));
}

MoneyEdit* LedgerTotals::addField(QHBoxLayout* row, const QString& name, const QString& label)
{
    auto* field = new MoneyEdit(this);
    field->setObjectName(name);
    field->setReadOnly(true);
    field->setFocusPolicy(Qt::NoFocus);
    QFont bold = field->font();
    bold.setBold(true);
    field->setFont(bold);
    auto* caption = new QLabel(label, this);
    caption->setBuddy(field);
    caption->setAlignment(Qt::AlignRight);
    // One above the other: side by side, the sum of a year would not fit into a small window.
    auto* column = new QVBoxLayout;
    column->setSpacing(2);
    column->addWidget(caption);
    column->addWidget(field);
    row->addLayout(column);
    return field;
}

void LedgerTotals::show(const QList<KorEntity*>& rows)
{
    // Whole units like the rows, and not Money: the sum of a good year exceeds what Money can hold.
    double debit = 0;
    double credit = 0;
    for (const KorEntity* entity : rows) {
        const auto* row = static_cast<const EntityCashFlow*>(entity);
        debit += row->getDebet() ? row->getDebet()->getAmount() : 0;
        credit += row->getCredit() ? row->getCredit()->getAmount() : 0;
    }
    m_debit->setValue(debit);
    m_credit->setValue(credit);
    m_balance->setValue(debit - credit);
}
