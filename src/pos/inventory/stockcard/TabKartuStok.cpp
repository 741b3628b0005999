#include "pos/inventory/stockcard/TabKartuStok.h"

#include "kor/widgets/KorDialog.h"
#include "pos/inventory/stock/BusinessInventory.h"
#include "pos/inventory/stock/DataMapperItemHistory.h"
#include "pos/inventory/stock/EntityItemHistory.h"
#include "pos/inventory/stockcard/TableModelKartuStok.h"
#include "pos/masterdata/item/ItemField.h"

#include <QApplication>
#include <QDateEdit>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>

TabKartuStok::TabKartuStok(QWidget* parent) : AppListTab({tr("Item History"), "tblKartuStok", "Inventory"}, 2, parent)
{
    makeFilters();
    makeTotals();
    takeAddAndDeleteAway();
    button("btnEdit")->setEnabled(false);
    button("btnEdit")->hide();
    refresh();
}

TabKartuStok::~TabKartuStok()
{
    // If the page is deleted while the field has the focus, the field loses it and would look up its code. So delete it
    // first.
    delete m_item;
}

void TabKartuStok::makeFilters()
{
    const QDate today = QDate::currentDate();
    m_from = filters()->addDate("dateFrom", tr("From Date :"), QDate(today.year(), today.month(), 1));
    m_to = filters()->addDate("dateTo", tr("To Date :"), today);
    QLineEdit* code = filters()->addText("txtItem", tr("Item :"));
    auto* name = new QLineEdit(this);
    name->setObjectName("txtItemName");
    name->setReadOnly(true);
    name->setFocusPolicy(Qt::NoFocus);
    filters()->add(tr("Name :"), name);
    m_item = new ItemField(code, name, nullptr);
    connect(m_item, &ItemField::chosen, this, &TabKartuStok::onItemSelected);
}

void TabKartuStok::makeTotals()
{
    m_in = new QLabel(this);
    m_in->setObjectName("lblTotalIn");
    m_balance = new QLabel(this);
    m_balance->setObjectName("lblSaldo");
    auto* totals = new QHBoxLayout;
    totals->setSpacing(8);
    totals->addStretch();
    for (const auto& total : {std::pair(tr("Total In :"), m_in), std::pair(tr("Saldo :"), m_balance)}) {
        totals->addSpacing(16);
        auto* caption = new QLabel(total.first, this);
        caption->setBuddy(total.second);
        totals->addWidget(caption);
        totals->addWidget(total.second);
        total.second->setMinimumWidth(70);
        total.second->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        QFont font = total.second->font();
        font.setBold(true);
        total.second->setFont(font);
    }
    static_cast<QVBoxLayout*>(layout())->insertLayout(layout()->indexOf(grid()) + 1, totals);
}

void TabKartuStok::onItemSelected()
{
    const QPointer<QWidget> next = QApplication::focusWidget();
    refresh();
    // Keep the focus if the user has already gone to another field.
    if (next && next != m_item->box()->editor())
        next->setFocus();
}

QList<KorEntity*> TabKartuStok::readRows(const QString&)
{
    // An unknown code means no item.
    const int itemId = m_item->filterId(business()) > 0 ? m_item->id() : KorNoValue;
    QList<KorEntity*> rows;
    for (EntityItemHistory* row :
         businessAs<BusinessInventory>()->findAllKartuStok({m_from->date(), m_to->date(), itemId}))
        rows.append(row);
    return rows;
}

KorEntityModel* TabKartuStok::createModel(const QList<KorEntity*>& rows) { return new TableModelKartuStok(rows, this); }

std::unique_ptr<KorDialog> TabKartuStok::createDialog() { return nullptr; }

void TabKartuStok::modelApplied()
{
    qint64 in = 0;
    int balance = 0;
    for (const KorEntity* entity : model()->entities()) {
        const auto* row = static_cast<const EntityItemHistory*>(entity);
        in += row->getQtyIn();
        balance = row->getQtyRemain();
    }
    const QLocale numbers = grid()->locale();
    m_in->setText(numbers.toString(in));
    m_balance->setText(numbers.toString(balance));
    setColumnWidths(grid(), {130, 200, 130, 110, 110});
}
