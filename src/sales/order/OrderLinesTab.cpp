#include "sales/order/OrderLinesTab.h"

#include "app/context/AppContext.h"
#include "app/persistence/AppDocumentLines.h"
#include "sales/order/OrderItemPicker.h"
#include "sales/order/OrderLinesModel.h"

#include "ui_OrderLinesTab.h"

#include <QHeaderView>
#include <QLocale>
#include <QMessageBox>

namespace
{
constexpr int rowHeight = 40;
}

OrderLinesTab::OrderLinesTab(QWidget* parent) : AppTab(parent), m_ui(std::make_unique<Ui::OrderLinesTab>())
{
    m_ui->setupUi(this);
    m_ui->tblMenu->verticalHeader()->setDefaultSectionSize(rowHeight);
    m_ui->tblMenu->setWordWrap(false);
}

OrderLinesTab::~OrderLinesTab() = default;

void OrderLinesTab::setLines(const Lines& lines)
{
    m_lines = lines;
    m_removed.clear();
    linesChanged();
}

void OrderLinesTab::focusLines() { m_ui->tblMenu->setFocus(); }

void OrderLinesTab::focusFirstControl() { m_ui->btnAdd->setFocus(); }

void OrderLinesTab::refresh()
{
    const int row = m_ui->tblMenu->currentIndex().row();
    const OrderLinesModel* former = m_model;
    m_model = createModel(asEntities(m_lines));
    applyModel(m_ui->tblMenu, m_model);
    if (!former)
        setColumnWidths(m_ui->tblMenu, {90, 200, 60, 100, 140, 150, 120});
    else if (!isVisible()) {
        // Not laid out yet, the grid only seems to leave no room for the last column.
        m_ui->tblMenu->setColumnWidth(OrderLinesModel::Description,
                                      m_ui->tblMenu->horizontalHeader()->minimumSectionSize());
    }
    // No clear(): the lines are the order's, the model only showed them.
    delete former;
    m_ui->tblMenu->selectRow(std::min(std::max(row, 0), m_lines.size() - 1));
    m_ui->lblCount->setText(tr("%1 Items").arg(m_lines.size()));
}

void OrderLinesTab::linesChanged()
{
    refresh();
    emit ItemAdded();
}

QString OrderLinesTab::totalText() const
{
    const Money nothing(nullptr, 0, QString());
    const Money* unit = m_lines.isEmpty() ? &nothing : m_lines.first()->getTotal();
    return QLocale(AppContext::instance()->locale())
        .toCurrencyString(static_cast<double>(EntityOrder::totalOf(m_lines)) / unit->factor(), unit->getCurrency());
}

std::unique_ptr<OrderItemPicker> OrderLinesTab::createPicker(int itemClass)
{
    auto picker = itemClass == EntityItem::INV ? createInventoryPicker(m_items) : createMenuPicker(m_items);
    picker->setItemType(m_itemType);
    return picker;
}

void OrderLinesTab::on_btnAdd_clicked() { addLines(EntityItem::SRV); }

void OrderLinesTab::on_btnAddInv_clicked() { addLines(EntityItem::INV); }

void OrderLinesTab::addLines(int itemClass)
{
    // Line after line, until the waiter has keyed in what the guests want.
    for (;;) {
        EntityOrderDetail* line = createLine();
        line->setParent(this);
        const auto picker = createPicker(itemClass);
        picker->setEntity(line);
        const bool picked = picker->exec() == QDialog::Accepted;
        m_itemType = picker->itemType();
        if (!picked) {
            delete line;
            break;
        }
        picker->getEntity();
        take(line);
    }
    focusLines();
    emit AddingEnded();
}

void OrderLinesTab::take(EntityOrderDetail* line)
{
    for (EntityOrderDetail* present : qAsConst(m_lines)) {
        if (present->itemId() != line->itemId())
            continue;
        const QString question =
            tr("This item: %1 is already exist in the list. Do you want to update it with this data?")
                .arg(line->getItem()->getNama());
        if (QMessageBox::question(this, tr("Question"), question) == QMessageBox::Yes) {
            present->setQty(line->getQty());
            present->setTotal(line->getTotal());
            present->setDescription(line->getDescription());
        }
        delete line;
        linesChanged();
        return;
    }
    m_lines.append(line);
    linesChanged();
    m_ui->tblMenu->selectRow(m_ui->tblMenu->model()->rowCount() - 1);
}

void OrderLinesTab::on_btnEdit_clicked()
{
    const Lines selected = selectedLines();
    for (EntityOrderDetail* line : selected) {
        const auto picker = createPicker(line->getItem()->getItemType());
        picker->setEntity(line);
        if (picker->exec() != QDialog::Accepted)
            break;
        picker->getEntity();
        linesChanged();
    }
    focusLines();
}

void OrderLinesTab::on_btnDelete_clicked()
{
    const Lines selected = selectedLines();
    for (EntityOrderDetail* line : selected) {
        const QString question = tr("Are you sure you want to delete this item: %1 ?").arg(line->getItem()->getNama());
        if (QMessageBox::question(this, tr("Delete"), question) != QMessageBox::Yes)
            continue;
        m_lines.removeOne(line);
        m_removed.append(line);
        linesChanged();
    }
    focusLines();
}

OrderLinesTab::Lines OrderLinesTab::selectedLines() const
{
    Lines lines;
    const QList<KorEntity*> entities = selectedEntities(m_ui->tblMenu, m_model);
    for (KorEntity* entity : entities)
        lines.append(static_cast<EntityOrderDetail*>(entity));
    return lines;
}
