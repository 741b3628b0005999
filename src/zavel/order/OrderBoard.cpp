#include "zavel/order/OrderBoard.h"

#include "app/context/AccessCheck.h"
#include "kor/business/KorServiceDirectory.h"
#include "kor/widgets/KorErrorBox.h"
#include "pos/invoice/EntityInvoiceLink.h"
#include "zavel/order/OrderBoardModel.h"
#include "zavel/order/OrderDialog.h"
#include "zavel/order/SlipRequests.h"
#include "zavel/service/BusinessPenjualan.h"

#include <QHeaderView>
#include <QLabel>
#include <QMessageBox>
#include <QSortFilterProxyModel>
#include <QTableView>

namespace
{
constexpr int boardRowHeight = 44;

QString billText(const Invoice& bill) { return bill.getInvoiceNo() + ' ' + bill.getGrandTotal()->toCurrencyString(); }
} // namespace

OrderBoard::OrderBoard(OrderKind kind, QWidget* parent)
    : AppTab(parent), m_kind(kind), m_sales(service<BusinessPenjualan>(businessName))
{}

void OrderBoard::setGrid(QTableView* grid, QLabel* count, const QList<int>& widths)
{
    m_grid = grid;
    m_count = count;
    m_widths = widths;
    grid->verticalHeader()->setDefaultSectionSize(boardRowHeight);
    grid->setWordWrap(false);
}

// --- the rows ------------------------------------------------------------------------------------------------------

void OrderBoard::refresh()
{
    if (putOff([this] { refresh(); }))
        return;
    EntityPool read;
    QList<KorEntity*> rows;
    {
        const EntityPoolScope scope(read);
        if (!readRows(&rows, read.parent()))
            return;
    }
    showRows(rows);
    m_rows.swap(read);
}

void OrderBoard::showRows(const QList<KorEntity*>& rows)
{
    const EntityOrder* current = selectedOrders().value(0);
    const int place = current ? placeOf(*current) : KorNoValue;

    const OrderBoardModel* former = m_model;
    m_model = createModel(rows);
    applyModel(m_grid, m_model);
    if (!former)
        setColumnWidths(m_grid, m_widths);
    // No clear(): the pool deletes the rows.
    delete former;

    const auto* shown = static_cast<const QSortFilterProxyModel*>(m_grid->model());
    for (int row = 0; row < rows.size(); ++row) {
        if (placeOf(*static_cast<const EntityOrder*>(rows.at(row))) != place)
            continue;
        m_grid->setCurrentIndex(shown->mapFromSource(m_model->index(row, 0)));
        break;
    }
    m_grid->setFocus();
    m_count->setText(tr("%1 Items").arg(rows.size()));
}

QList<EntityOrder*> OrderBoard::selectedOrders() const
{
    QList<EntityOrder*> orders;
    const QList<KorEntity*> rows = m_model ? selectedEntities(m_grid, m_model) : QList<KorEntity*>();
    for (KorEntity* row : rows)
        orders.append(static_cast<EntityOrder*>(row));
    return orders;
}

void OrderBoard::on_btnRefresh_clicked() { refresh(); }

void OrderBoard::on_btnSearch_clicked() { refresh(); }

void OrderBoard::on_btnClose_clicked() { close(); }

// --- actions on an order -------------------------------------------------------------------------------------------

void OrderBoard::on_btnEdit_clicked()
{
    if (!hasAccess(businessName, BusinessPenjualan::UBAH_PESANAN))
        return;
    EntityPool read;
    const EntityPoolScope scope(read);
    const QList<EntityOrder*> rows = selectedOrders();
    for (const EntityOrder* row : rows) {
        if (carriesOrder(*row, Edit) && !editOrder(row->getId()))
            break;
    }
    refresh();
}

bool OrderBoard::editOrder(int id)
{
    EntityPool pool;
    EntityOrder* order = readOrder(id, pool);
    if (!order || !hasAccess(businessName, BusinessPenjualan::UBAH_PESANAN, order))
        return true;
    const auto form = createEditForm();
    if (!tellOfBills(id, form.get()))
        return true;
    order->takeSnapshot();
    const QString formerTable = tableCodeOf(*order);
    form->setEntity(order);
    form->setSaver([&] {
        form->getEntity();
        order->compareWithSnapshot();
        return updateOrder(order) || failed(m_sales);
    });
    if (form->exec() != QDialog::Accepted)
        return false;
    const QString table = tableCodeOf(*order);
    SlipRequests::instance()->printMenuOrderChange(m_kind, order, table == formerTable ? QString() : formerTable);
    return true;
}

void OrderBoard::cancelSelectedOrders()
{
    if (!hasAccess(businessName, BusinessPenjualan::HAPUS_PESANAN))
        return;
    EntityPool read;
    const EntityPoolScope scope(read);
    const QList<EntityOrder*> rows = selectedOrders();
    for (EntityOrder* row : rows) {
        // Only tell the kitchens after the database has deleted the order: it may refuse.
        if (carriesOrder(*row, Cancel) && cancelOrder(row))
            SlipRequests::instance()->printMenuOrderCanceled(m_kind, row, SlipRequests::KitchensThatHadIt);
    }
    refresh();
}

void OrderBoard::on_btnPay_clicked()
{
    if (!hasAccess(businessName, BusinessPenjualan::SAVE_INVOICE))
        return;
    EntityPool read;
    const EntityPoolScope scope(read);
    const QList<EntityOrder*> rows = selectedOrders();
    if (rows.isEmpty())
        tell(nothingSelectedText());
    for (const EntityOrder* row : rows) {
        EntityPool pool;
        EntityOrder* order = carriesOrder(*row, Pay) ? readOrder(row->getId(), pool) : nullptr;
        if (order)
            payOrder(order);
    }
    refresh();
}

void OrderBoard::sendToKitchen(EntityOrder* order) { SlipRequests::instance()->printMenuOrder(m_kind, order); }

EntityOrder* OrderBoard::readOrder(int id, EntityPool& pool)
{
    const EntityPoolScope scope(pool);
    EntityOrder* order = findOrder(id);
    if (!KorErrorBox::tell(this, m_sales->takeErrors()) && !order)
        QMessageBox::information(this, tr("Error"), tr("Can not find entity with id: %1").arg(id));
    return order;
}

bool OrderBoard::tellOfBills(int orderId, OrderDialog* form)
{
    EntityPool pool;
    const EntityPoolScope scope(pool);
    QStringList bills;
    const QList<EntityInvoiceLink*> links = readBills(orderId);
    for (const EntityInvoiceLink* link : links)
        bills.append(billText(*link->getInvoice()));
    if (KorErrorBox::tell(this, m_sales->takeErrors()))
        return false;
    if (!bills.isEmpty())
        form->showNotice(
            tr("This order is billed already: %1. What you change now is not on the bill. Press Pay afterwards.")
                .arg(bills.join("; ")));
    return true;
}

void OrderBoard::tell(const QString& text) { KorErrorBox::information(this, tr("Info"), text); }

bool OrderBoard::failed(KorBusinessLogic* service)
{
    KorErrorBox::critical(this, tr("Error"), service->takeErrors());
    return false;
}
