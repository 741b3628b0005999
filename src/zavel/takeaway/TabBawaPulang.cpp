#include "zavel/takeaway/TabBawaPulang.h"

#include "app/context/AccessCheck.h"
#include "app/context/EntityPool.h"
#include "app/persistence/AppDocumentLines.h"
#include "kor/widgets/KorErrorBox.h"
#include "zavel/service/BusinessPenjualan.h"
#include "zavel/takeaway/DialogBawaPulang.h"
#include "zavel/takeaway/DialogBayarBawaPulang.h"
#include "zavel/takeaway/EntityInvoiceBawaPulang.h"
#include "zavel/takeaway/TableModelBawaPulang.h"

#include "ui_TabBawaPulang.h"

#include <QMessageBox>

TabBawaPulang::TabBawaPulang(QWidget* parent)
    : OrderBoard(TakeAwayOrder, parent), m_ui(std::make_unique<Ui::TabBawaPulang>())
{
    m_ui->setupUi(this);
    m_ui->ddlStatus->addItem(tr("All"), 0);
    m_ui->ddlStatus->addItem(tr("Paid"), EntityOrder::PAID);
    m_ui->ddlStatus->addItem(tr("Partially Paid"), EntityOrder::PARTIALY_PAID);
    m_ui->ddlStatus->addItem(tr("Waiting for the order"), EntityOrder::WAITING_FOR_MENU);
    setGrid(m_ui->tblMeja, m_ui->lblCount, {90, 240, 210, 300});
    refresh();
}

TabBawaPulang::~TabBawaPulang() = default;

// --- the list ------------------------------------------------------------------------------------------------------

bool TabBawaPulang::readRows(QList<KorEntity*>* rows, QObject*)
{
    *rows = asEntities(sales()->getBawaPulangList(m_ui->ddlStatus->currentData().toInt()));
    return !KorErrorBox::tell(this, sales()->takeErrors());
}

OrderBoardModel* TabBawaPulang::createModel(const QList<KorEntity*>& rows)
{
    return new TableModelBawaPulang(rows, this);
}

EntityOrder* TabBawaPulang::findOrder(int id) { return sales()->findOrderBawaPulang(id); }

// --- taking orders -------------------------------------------------------------------------------------------------

void TabBawaPulang::on_btnAdd_clicked()
{
    if (!hasAccess(businessName, BusinessPenjualan::TAMBAH_PESANAN))
        return;
    EntityPool read;
    const EntityPoolScope scope(read);
    DialogBawaPulang form(this);
    form.setWindowTitle(tr("Take Away - Add a new order"));
    EntityBawaPulang* order = nullptr;
    form.setSaver([&] {
        order = static_cast<EntityBawaPulang*>(form.getEntity());
        if (sales()->insertNewOrder(order))
            return true;
        KorErrorBox::information(this, tr("Error"), sales()->takeErrors());
        return false;
    });
    if (form.exec() == QDialog::Accepted)
        sendToKitchen(order);
    refresh();
}

QList<EntityInvoiceLink*> TabBawaPulang::readBills(int orderId)
{
    return castAll<EntityInvoiceLink>(asEntities(sales()->getInvoicesOfBawaPulang(orderId)));
}

std::unique_ptr<OrderDialog> TabBawaPulang::createEditForm()
{
    auto form = std::make_unique<DialogBawaPulang>(this);
    form->setWindowTitle(tr("Take Away - Edit Order"));
    return form;
}

bool TabBawaPulang::updateOrder(EntityOrder* order)
{
    return sales()->updateOrder(static_cast<EntityBawaPulang*>(order));
}

// --- until the guest has the food ----------------------------------------------------------------------------------

void TabBawaPulang::on_btnCancel_clicked() { cancelSelectedOrders(); }

bool TabBawaPulang::cancelOrder(EntityOrder* row)
{
    if (QMessageBox::question(this, tr("Delete"),
                              tr("Are you sure you want to delete this order? order id: %1 ").arg(row->getId())) !=
        QMessageBox::Yes)
        return false;
    EntityPool pool;
    const EntityPoolScope scope(pool);
    const bool isPaid = row->getStatus() == EntityOrder::PAID || row->getStatus() == EntityOrder::PARTIALY_PAID;
    // An unpaid bill, or one from before an edit: the database would refuse with a less clear message.
    const bool hasOpenInvoice = !isPaid && !readBills(row->getId()).isEmpty();
    if (KorErrorBox::tell(this, sales()->takeErrors()))
        return false;
    if (hasOpenInvoice) {
        tell(tr("Order %1 already has an invoice. Please finish the payment, or press Done in the payment form")
                 .arg(row->getId()));
        return false;
    }
    return sales()->removeOrder(static_cast<EntityBawaPulang*>(row)) || failed(sales());
}

void TabBawaPulang::payOrder(EntityOrder* order)
{
    DialogBayarBawaPulang form(this);
    if (form.openOrder(order))
        form.exec();
}
