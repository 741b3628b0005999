#include "zavel/dinein/TabMakanDitempat.h"

#include "app/context/AccessCheck.h"
#include "app/context/EntityPool.h"
#include "app/persistence/AppDocumentLines.h"
#include "kor/business/KorServiceDirectory.h"
#include "kor/widgets/KorErrorBox.h"
#include "zavel/dinein/DialogBayarMakanDitempat.h"
#include "zavel/dinein/DialogMakanDitempat.h"
#include "zavel/dinein/EntityInvoiceMakanDitempat.h"
#include "zavel/dinein/EntityMakanDitempat.h"
#include "zavel/dinein/TableModelMakanDitempat.h"
#include "zavel/order/SlipRequests.h"
#include "zavel/service/BusinessPenjualan.h"
#include "zavel/tables/BusinessMeja.h"

#include "ui_TabMakanDitempat.h"

#include <QMessageBox>
#include <QShortcut>

namespace
{
const EntityMeja* tableOf(const EntityOrder& row) { return static_cast<const EntityMakanDitempat&>(row).getMeja(); }

/** One row per open order, and one placeholder row, owned by the pool, for each table without an order. */
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
    : OrderBoard(DineOrder, parent), m_ui(std::make_unique<Ui::TabMakanDitempat>()),
      m_tables(service<BusinessMeja>("Table"))
{
    m_ui->setupUi(this);
    setGrid(m_ui->tblMeja, m_ui->lblCount, {120, 180, 200, 210, 120});
    const auto* focusFilter = new QShortcut(QKeySequence("Ctrl+F"), this);
    connect(focusFilter, &QShortcut::activated, m_ui->txtFilter, [this] { m_ui->txtFilter->setFocus(); });
    refresh();
}

TabMakanDitempat::~TabMakanDitempat() = default;

// --- the board -----------------------------------------------------------------------------------------------------

bool TabMakanDitempat::readRows(QList<KorEntity*>* rows, QObject* pool)
{
    const QString filter = m_ui->txtFilter->text().toLower();
    const QList<EntityMakanDitempat*> orders = sales()->getMakanDitempatList(0, filter);
    if (KorErrorBox::tell(this, sales()->takeErrors()))
        return false;
    const QList<KorEntity*> tables = m_tables->findAll(filter);
    if (KorErrorBox::tell(this, m_tables->takeErrors()))
        return false;
    *rows = boardRows(orders, tables, pool);
    return true;
}

OrderBoardModel* TabMakanDitempat::createModel(const QList<KorEntity*>& rows)
{
    return new TableModelMakanDitempat(rows, this);
}

// A free table's row has no id of its own, so the selection is kept by table.
int TabMakanDitempat::placeOf(const EntityOrder& row) const { return tableOf(row)->getId(); }

QString TabMakanDitempat::tableCodeOf(const EntityOrder& order) const { return tableOf(order)->getKode(); }

bool TabMakanDitempat::carriesOrder(const EntityOrder& row, Action action)
{
    if (row.isSaved())
        return true;
    const QString text = action == Edit ? tr("This table: %1 is empty") : tr("Table %1 is empty");
    tell(text.arg(tableOf(row)->getNama()));
    return false;
}

// --- taking orders -------------------------------------------------------------------------------------------------

void TabMakanDitempat::on_btnAdd_clicked()
{
    if (!hasAccess(businessName, BusinessPenjualan::TAMBAH_PESANAN))
        return;
    // Keeps the rows alive while the forms use their tables.
    EntityPool read;
    const EntityPoolScope scope(read);
    const QList<EntityOrder*> rows = selectedOrders();
    if (rows.isEmpty()) {
        tell(nothingSelectedText());
        return;
    }
    for (const EntityOrder* order : rows) {
        const auto& row = static_cast<const EntityMakanDitempat&>(*order);
        if (row.isSaved())
            addToOrder(row);
        else
            takeNewOrder(row);
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
        if (sales()->insertNewOrder(order))
            return true;
        tell(sales()->takeErrors());
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
    if (!tellOfBills(row.getId(), &dialog))
        return;
    dialog.showOpenOrder(row);
    EntityMakanDitempat* stored = nullptr;
    dialog.setSaver([&] {
        // Read just before saving: another waiter may have changed the order meanwhile.
        stored = static_cast<EntityMakanDitempat*>(readOrder(row.getId(), pool));
        if (!stored)
            return false;
        stored->mergeLines(static_cast<EntityMakanDitempat*>(dialog.getEntity())->getDetails());
        stored->setStatus(EntityOrder::WAITING_FOR_MENU);
        stored->setTgl(QDate::currentDate());
        return sales()->updateOrder(stored) || failed(sales());
    });
    if (dialog.exec() != QDialog::Accepted)
        return;
    stored->setDetails(stored->getChangedDetails());
    sendToKitchen(stored);
}

EntityOrder* TabMakanDitempat::findOrder(int id) { return sales()->findOrder(id); }

QList<EntityInvoiceLink*> TabMakanDitempat::readBills(int orderId)
{
    return castAll<EntityInvoiceLink>(asEntities(sales()->getInvoicesOfOrder(orderId)));
}

std::unique_ptr<OrderDialog> TabMakanDitempat::createEditForm()
{
    auto form = std::make_unique<DialogMakanDitempat>(this);
    form->setWindowTitle(tr("Dine - Edit Order"));
    return form;
}

bool TabMakanDitempat::updateOrder(EntityOrder* order)
{
    return sales()->updateOrder(static_cast<EntityMakanDitempat*>(order));
}

// --- until the guests go -------------------------------------------------------------------------------------------

void TabMakanDitempat::on_btnDelete_clicked() { cancelSelectedOrders(); }

bool TabMakanDitempat::cancelOrder(EntityOrder* row)
{
    const QString table = tableOf(*row)->getNama();
    if (QMessageBox::question(this, tr("Delete"),
                              tr("Are you sure you want to delete order of table: %1 ?").arg(table)) !=
        QMessageBox::Yes)
        return false;
    EntityPool pool;
    const EntityPoolScope scope(pool);
    const bool hasInvoice = !readBills(row->getId()).isEmpty();
    if (KorErrorBox::tell(this, sales()->takeErrors()))
        return false;
    if (hasInvoice) {
        tell(tr("Table %1 is already have an invoice. Please finish the payment or click Finish button on Payment "
                "Dialog")
                 .arg(table));
        return false;
    }
    return sales()->removeOrder(static_cast<EntityMakanDitempat*>(row)) || failed(sales());
}

void TabMakanDitempat::payOrder(EntityOrder* order)
{
    DialogBayarMakanDitempat form(this);
    if (form.openOrder(static_cast<EntityMakanDitempat*>(order)))
        form.exec();
}

void TabMakanDitempat::on_btnPrint_clicked()
{
    const QList<EntityOrder*> rows = selectedOrders();
    if (rows.isEmpty())
        tell(nothingSelectedText());
    for (const EntityOrder* row : rows) {
        if (carriesOrder(*row, Print))
            SlipRequests::instance()->printMakanDitempat(row->getId());
    }
}
