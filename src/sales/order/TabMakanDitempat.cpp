#include "sales/order/TabMakanDitempat.h"

#include "app/access/AccessCheck.h"
#include "kor/business/KorServiceDirectory.h"
#include "masterdata/meja/BusinessMeja.h"
#include "printing/slips/ZavelReportFactory.h"
#include "sales/order/DialogMakanDitempat.h"
#include "sales/order/EntityMakanDitempat.h"
#include "sales/order/TableModelMakanDitempat.h"
#include "sales/payment/DialogBayarMakanDitempat.h"
#include "sales/service/BusinessPenjualan.h"

#include "ui_TabMakanDitempat.h"

#include <QHeaderView>
#include <QMessageBox>
#include <QShortcut>
#include <QSortFilterProxyModel>

namespace
{
constexpr int boardRowHeight = 44;
constexpr char businessName[] = "Sales";

/** Every table with its orders, and where it has none with a placeholder, which goes to the pool of the rows. */
QList<KorEntity*> boardRows(const QList<EntityMakanDitempat*>& orders, const QList<KorEntity*>& tables, QObject* pool)
{
    QHash<int, QList<KorEntity*>> ordersOf;
    for (EntityMakanDitempat* order : orders)
        ordersOf[order->getMeja()->getId()].append(order);
    QList<KorEntity*> rows;
    for (KorEntity* table : tables) {
        if (ordersOf.contains(table->getId())) {
            rows.append(ordersOf.value(table->getId()));
            continue;
        }
        auto* placeholder = new EntityMakanDitempat(pool);
        placeholder->setMeja(static_cast<EntityMeja*>(table));
        rows.append(placeholder);
    }
    return rows;
}
} // namespace

TabMakanDitempat::TabMakanDitempat(QWidget* parent)
    : AppTab(parent), m_ui(std::make_unique<Ui::TabMakanDitempat>()), m_sales(service<BusinessPenjualan>("Sales")),
      m_tables(service<BusinessMeja>("Table"))
{
    m_ui->setupUi(this);
    m_ui->tblMeja->verticalHeader()->setDefaultSectionSize(boardRowHeight);
    m_ui->tblMeja->setWordWrap(false);
    const auto* focusFilter = new QShortcut(QKeySequence("Ctrl+F"), this);
    connect(focusFilter, &QShortcut::activated, m_ui->txtFilter, [this] { m_ui->txtFilter->setFocus(); });
    refresh();
}

TabMakanDitempat::~TabMakanDitempat() = default;

// --- the board -----------------------------------------------------------------------------------------------------

void TabMakanDitempat::refresh()
{
    const QString filter = m_ui->txtFilter->text().toLower();
    EntityPool read;
    QList<KorEntity*> rows;
    {
        const EntityPoolScope scope(read);
        const QList<EntityMakanDitempat*> orders = m_sales->getMakanDitempatList(0, filter);
        if (m_sales->hasError()) {
            failed(m_sales);
            return;
        }
        const QList<KorEntity*> tables = m_tables->findAll(filter);
        if (m_tables->hasError()) {
            failed(m_tables);
            return;
        }
        rows = boardRows(orders, tables, read.parent());
    }
    showRows(rows);
    m_rows.swap(read);
}

void TabMakanDitempat::showRows(const QList<KorEntity*>& rows)
{
    // A free table's row has no id of its own, so the table is what the cursor stays on.
    const auto tableOf = [](const KorEntity* row) {
        return static_cast<const EntityMakanDitempat*>(row)->getMeja()->getId();
    };
    const KorEntity* current = m_model ? selectedEntities(m_ui->tblMeja, m_model).value(0) : nullptr;
    const int currentTable = current ? tableOf(current) : KorNoValue;

    const TableModelMakanDitempat* former = m_model;
    m_model = new TableModelMakanDitempat(rows, this);
    applyModel(m_ui->tblMeja, m_model);
    if (!former)
        setColumnWidths(m_ui->tblMeja, {120, 180, 200, 210, 120});
    // No clear(): the pool of the rows frees them together.
    delete former;

    const QAbstractItemModel* shown = m_ui->tblMeja->model();
    for (int row = 0; row < rows.size(); ++row) {
        if (tableOf(rows.at(row)) != currentTable)
            continue;
        m_ui->tblMeja->setCurrentIndex(
            static_cast<const QSortFilterProxyModel*>(shown)->mapFromSource(m_model->index(row, 0)));
        break;
    }
    m_ui->tblMeja->setFocus();
    m_ui->lblCount->setText(tr("%1 Items").arg(rows.size()));
}

void TabMakanDitempat::on_btnRefresh_clicked() { refresh(); }

void TabMakanDitempat::on_btnSearch_clicked() { refresh(); }

void TabMakanDitempat::on_btnClose_clicked() { close(); }

// --- taking orders -------------------------------------------------------------------------------------------------

void TabMakanDitempat::on_btnAdd_clicked()
{
    if (!hasAccess(businessName, BusinessPenjualan::TAMBAH_PESANAN))
        return;
    const QList<EntityMakanDitempat*> rows = selectedOrders();
    if (rows.isEmpty()) {
        tell(tr("Please select a table"));
        return;
    }
    for (const EntityMakanDitempat* row : rows) {
        if (row->isSaved())
            addToOrder(*row);
        else
            takeNewOrder(*row);
    }
    refresh();
}

void TabMakanDitempat::takeNewOrder(const EntityMakanDitempat& row)
{
    DialogMakanDitempat dialog(this, row.getMeja());
    dialog.setWindowTitle(tr("Dine - Add a new order"));
    EntityMakanDitempat* order = nullptr;
    dialog.setSaver([&] {
        order = static_cast<EntityMakanDitempat*>(dialog.getEntity());
        if (m_sales->insertNewOrder(order))
            return true;
        tell(m_sales->takeErrors());
        return false;
    });
    if (dialog.exec() == QDialog::Accepted)
        sendToKitchen(order);
}

void TabMakanDitempat::addToOrder(const EntityMakanDitempat& row)
{
    EntityPool pool;
    DialogMakanDitempat dialog(this, row.getMeja());
    dialog.setWindowTitle(tr("Dine - Add a new order"));
    dialog.showOpenOrder(row);
    EntityMakanDitempat* stored = nullptr;
    dialog.setSaver([&] {
        // Read at the last moment: another waiter may have added to it while this one was typing.
        stored = readOrder(row.getId(), pool);
        if (!stored)
            return false;
        stored->mergeLines(static_cast<EntityMakanDitempat*>(dialog.getEntity())->getDetails());
        stored->setStatus(EntityOrder::WAITING_FOR_MENU);
        stored->setTgl(QDate::currentDate());
        return m_sales->updateOrder(stored) || failed(m_sales);
    });
    if (dialog.exec() != QDialog::Accepted)
        return;
    stored->setDetails(stored->getChangedDetails());
    sendToKitchen(stored);
}

void TabMakanDitempat::on_btnEdit_clicked()
{
    if (!hasAccess(businessName, BusinessPenjualan::UBAH_PESANAN))
        return;
    const QList<EntityMakanDitempat*> rows = selectedOrders();
    for (const EntityMakanDitempat* row : rows) {
        if (isFree(*row, tr("This table: %1 is empty")))
            continue;
        if (!editOrder(row->getId()))
            break;
    }
    refresh();
}

bool TabMakanDitempat::editOrder(int id)
{
    EntityPool pool;
    EntityMakanDitempat* order = readOrder(id, pool);
    if (!order || !hasAccess(businessName, BusinessPenjualan::UBAH_PESANAN, order))
        return true;
    order->takeSnapshot();
    DialogMakanDitempat dialog(this);
    dialog.setWindowTitle(tr("Dine - Edit Order"));
    dialog.setEntity(order);
    dialog.setSaver([&] {
        dialog.getEntity();
        order->compareWithSnapshot();
        return m_sales->updateOrder(order) || failed(m_sales);
    });
    if (dialog.exec() != QDialog::Accepted)
        return false;
    // The kitchen sees only what changed.
    order->setDetails(order->getChangedDetails());
    sendToKitchen(order);
    return true;
}

// --- until the guests go -------------------------------------------------------------------------------------------

void TabMakanDitempat::on_btnDelete_clicked()
{
    if (!hasAccess(businessName, BusinessPenjualan::HAPUS_PESANAN))
        return;
    const QList<EntityMakanDitempat*> rows = selectedOrders();
    for (EntityMakanDitempat* row : rows) {
        if (!isFree(*row, tr("Table %1 is empty")))
            cancelOrder(row);
    }
    refresh();
}

void TabMakanDitempat::cancelOrder(EntityMakanDitempat* order)
{
    const QString table = order->getMeja()->getNama();
    if (QMessageBox::question(this, tr("Delete"),
                              tr("Are you sure you want to delete order of table: %1 ?").arg(table)) !=
        QMessageBox::Yes)
        return;
    EntityPool pool;
    const EntityPoolScope scope(pool);
    const bool hasInvoice = !m_sales->getInvoicesOfOrder(order->getId()).isEmpty();
    if (m_sales->hasError())
        failed(m_sales);
    else if (hasInvoice)
        tell(tr("Table %1 is already have an invoice. Please finish the payment or click Finish button on Payment "
                "Dialog")
                 .arg(table));
    // The row as the user saw it: an order that has changed since is not cancelled unseen.
    else if (!m_sales->removeOrder(order))
        failed(m_sales);
}

void TabMakanDitempat::on_btnPay_clicked()
{
    if (!hasAccess(businessName, BusinessPenjualan::SAVE_INVOICE))
        return;
    const QList<EntityMakanDitempat*> rows = selectedOrders();
    if (rows.isEmpty())
        tell(tr("Please select a table"));
    for (const EntityMakanDitempat* row : rows) {
        if (!isFree(*row, tr("Table %1 is empty")))
            payOrder(row->getId());
    }
    refresh();
}

void TabMakanDitempat::payOrder(int id)
{
    EntityPool pool;
    EntityMakanDitempat* order = readOrder(id, pool);
    if (!order)
        return;
    DialogBayarMakanDitempat dialog(this);
    if (dialog.openOrder(order))
        dialog.exec();
}

void TabMakanDitempat::on_btnPrint_clicked()
{
    const QList<EntityMakanDitempat*> rows = selectedOrders();
    if (rows.isEmpty())
        tell(tr("Please select a table"));
    for (const EntityMakanDitempat* row : rows) {
        if (!isFree(*row, tr("Table %1 is empty")))
            printRecap(row->getId());
    }
}

void TabMakanDitempat::sendToKitchen(EntityMakanDitempat* order)
{
    ZavelReportFactory::instance()->printMenuOrder(DineOrder, order);
}

void TabMakanDitempat::printRecap(int id) { ZavelReportFactory::instance()->printMakanDitempat(id); }

// --- what the actions share ----------------------------------------------------------------------------------------

QList<EntityMakanDitempat*> TabMakanDitempat::selectedOrders() const
{
    QList<EntityMakanDitempat*> orders;
    const QList<KorEntity*> rows = m_model ? selectedEntities(m_ui->tblMeja, m_model) : QList<KorEntity*>();
    for (KorEntity* row : rows)
        orders.append(static_cast<EntityMakanDitempat*>(row));
    return orders;
}

bool TabMakanDitempat::isFree(const EntityMakanDitempat& row, const QString& text)
{
    if (!row.isSaved())
        tell(text.arg(row.getMeja()->getNama()));
    return !row.isSaved();
}

EntityMakanDitempat* TabMakanDitempat::readOrder(int id, EntityPool& pool)
{
    const EntityPoolScope scope(pool);
    EntityMakanDitempat* order = m_sales->findOrder(id);
    if (m_sales->hasError())
        failed(m_sales);
    else if (!order)
        QMessageBox::information(this, tr("Error"), tr("Can not find entity with id: %1").arg(id));
    return order;
}

void TabMakanDitempat::tell(const QString& text) { QMessageBox::information(this, tr("Info"), text); }

bool TabMakanDitempat::failed(KorBusinessLogic* service)
{
    QMessageBox::critical(this, tr("Error"), service->takeErrors());
    return false;
}
