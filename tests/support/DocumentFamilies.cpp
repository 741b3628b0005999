#include "support/DocumentFamilies.h"

#include "pos/cash/ledger/BusinessCashFlow.h"
#include "pos/cash/ledger/TabCashFlow.h"
#include "pos/cash/transfer/TabTransfer.h"
#include "pos/inventory/adjustment/TabInventoryAdj.h"
#include "pos/inventory/balance/TabStokAwal.h"
#include "pos/purchasing/creditnote/TabCreditNote.h"
#include "pos/purchasing/payment/TabPayment.h"
#include "pos/purchasing/purchase/TabPurchases.h"
#include "pos/purchasing/purchaseorder/TabPurchaseOrder.h"
#include "support/LedgerRows.h"
#include "support/SalesRows.h"
#include "support/ShopRows.h"
#include "zavel/commission/TabKomisiAgen.h"
#include "zavel/dinein/TabMakanDitempat.h"
#include "zavel/fastfood/TabFastFood.h"
#include "zavel/list/TabDaftarPenjualan.h"
#include "zavel/receivable/TabPiutang.h"
#include "zavel/service/BusinessPenjualan.h"
#include "zavel/takeaway/TabBawaPulang.h"

namespace
{
using Sales = BusinessPenjualan;

template <class Page>
std::function<std::unique_ptr<QWidget>()> page()
{
    return [] { return std::make_unique<Page>(); };
}

QList<KeyRight> three(int add, int change, int remove)
{
    return {{Qt::Key_F12, add}, {Qt::Key_F2, change}, {Qt::Key_Delete, remove}};
}

/** Three consecutive rights of a service. */
QList<KeyRight> threeFrom(int first) { return three(first, first + 1, first + 2); }

QList<KeyRight> ofSales(bool mayAdd)
{
    QList<KeyRight> rights{{Qt::Key_F2, Sales::SAVE_INVOICE, false}, {Qt::Key_F2, Sales::UBAH_PESANAN}};
    // The list of all sales checks the right once for all rows, regardless of their users.
    rights.append({Qt::Key_Delete, Sales::DELETE_SALES, mayAdd});
    if (mayAdd)
        rights.append({Qt::Key_F12, Sales::SAVE_INVOICE});
    return rights;
}

QList<KeyRight> ofOrders()
{
    return {{Qt::Key_F12, Sales::TAMBAH_PESANAN, false},
            {Qt::Key_F2, Sales::UBAH_PESANAN},
            {Qt::Key_Delete, Sales::HAPUS_PESANAN, false},
            {Qt::Key_F9, Sales::SAVE_INVOICE, false}};
}

void layPurchase(TestDatabase& database, int n)
{
    insertRows(
        database, "acquisition",
        QString("no='NB-%1', bank_id=1, sub_total_amount=500, grandtotal_amount=500, net_due_amount=500, status=2")
            .arg(n));
    insertRows(
        database, "acquisition_detail",
        QString("acquisition_id=%1, qty=2, price_each_amount=250, total_price_amount=500, po_detail_id=NULL").arg(n));
}

void layOrder(TestDatabase& database, int n)
{
    insertRows(database, "purchase_order",
               QString("no='PO-%1', bank_id=1, status_id=2, sub_total_amount=30, grandtotal_amount=30").arg(n));
    insertRows(database, "purchase_order_detail",
               QString("purchase_order_id=%1, jumlah=3, price_amount=10, total_price_amount=30").arg(n));
}

void layCreditNote(TestDatabase& database, int n)
{
    if (n == 1)
        layPurchase(database, 1);
    insertRows(database, "credit_note",
               QString("no='CN-%1', bank_id=1, acquisition_id=1, apply_to_invoice=true, amount_paid_amount=20, "
                       "grandtotal_amount=20, sub_total_amount=20")
                   .arg(n));
    insertRows(database, "credit_note_detail",
               QString("credit_note_id=%1, qty=2, qty_returned=1, price_each_amount=20, total_price_amount=20, "
                       "acquisition_detail_id=1")
                   .arg(n));
}

void layPayment(TestDatabase& database, int n)
{
    if (n == 1)
        layPurchase(database, 1);
    insertRows(database, "payment", QString("no='TPH-%1', bank_id=1, grandtotal_amount=300").arg(n));
    insertRows(database, "payment_invoice", QString("payment_id=%1, amount_paid_amount=300").arg(n));
}

void layMembersPayment(TestDatabase& database, int n)
{
    insertRows(database, "invoice", "acct_code='1-100', member_id=1, grandtotal_amount=100, net_due_amount=100");
    insertRows(database, "piutang", QString("no='PIU-%1', bank_id=1, grandtotal_amount=70").arg(n));
    insertRows(database, "piutang_detail",
               QString("piutang_id=%1, invoice_id=%2, amount_paid_amount=70, amount_due_amount=30").arg(n).arg(n));
}

void layCommission(TestDatabase& database, int n)
{
    insertSale(database, {QString("TRF-%1").arg(n), "TRF", 100, 100, 0, 1, QDate(2026, 3, 1), "", 1, 0, 0, 1});
    insertRows(database, "komisi_agen",
               QString("no='KAG-%1', bank_id=1, grandtotal_amount=10, amount_paid_amount=10").arg(n));
    insertRows(database, "komisi_agen_detail",
               QString("komisi_agen_id=%1, invoice_id=%2, commision_perc=10, commision_amount=10").arg(n).arg(n));
}

void layCounterSale(TestDatabase& database, int n)
{
    insertSale(database, {QString("F%1").arg(n), "TRF", 100, 40, 0, 3, QDate::currentDate()});
}

void layEntry(TestDatabase& database, int n)
{
    insertLedgerRow(database, {LedgerRow::DebitEntry, QString("KK-%1").arg(n), QDate::currentDate()});
}

void layTransfer(TestDatabase& database, int n)
{
    if (n == 1)
        database.run("INSERT INTO bank (id, kode, nama, account_type, active, version) VALUES "
                     "(2, '2-AB', 'Safe', 1, true, 1)");
    insertLedgerRow(database, {LedgerRow::Transfer, QString("TR-%1").arg(n), QDate::currentDate()});
}

void layTakeAway(TestDatabase& database, int n)
{
    insertRows(database, "bawa_pulang", "status=1, tgl=current_date");
    insertRows(database, "bawa_pulang_detail", QString("bawa_pulang_id=%1, status=1, qty=2, total_amount=300").arg(n));
}

void layAdjustment(TestDatabase& database, int)
{
    insertRows(database, "stock_take", "source_acct_code='1-100', qty=3, qty_adj=3");
}

void layDineOrder(TestDatabase& database, int) { insertDineOrder(database, {{2, 300}}); }

void layBalance(TestDatabase& database, int n)
{
    if (n == 2)
        insertItem(database, 2, "EGG", "Egg");
    insertRows(database, "stok_awal", QString("item_id=%1, jumlah=7").arg(n));
}
} // namespace

const QList<DocumentFamily>& documentFamilies()
{
    const QString gone = "Can not find entity with id: ";
    static const QList<DocumentFamily> families{
        {"purchase orders", "Purchase Order", "purchase_order", threeFrom(0), page<TabPurchaseOrder>(), layOrder,
         "Are you sure you want to delete Purchase Order with No: PO-",
         "Can not find PO with id: ", "Can not find PO with id: ", "txtNotes", "error: update PO failed"},
        {"purchases", "Purchases", "acquisition", threeFrom(0), page<TabPurchases>(), layPurchase,
         "Are you sure you want to delete Purchase with No: NB-", gone, gone, "txtInvoiceNo",
         "error: update acquisition failed"},
        {"credit notes", "Credit Note", "credit_note", threeFrom(0), page<TabCreditNote>(), layCreditNote,
         "Are you sure you want to delete Credit Note with No: CN-", "Can not find Credit Note with id: ",
         "Can not find Credit Note with id: ", "txtNotes", "error: update credit note failed"},
        {"bill payments", "Payment", "payment", threeFrom(0), page<TabPayment>(), layPayment,
         "Are you sure you want to delete purchase invoice with No: TPH-", "Can not find purchase invoice with id: ",
         "Can not find purchase invoice with id: ", "txtRefNo", "error: update payment invoice failed"},
        {"member payments", "Sales", "piutang",
         three(Sales::BAYAR_PIUTANG, Sales::UPDATE_PIUTANG, Sales::DELETE_PIUTANG), page<TabPiutang>(),
         layMembersPayment, "Are you sure you want to delete Payment with No: PIU-",
         "Can not find Payment with id: ", gone, "txtRefNo", "error: update credit invoice failed"},
        {"commission payments", "Sales", "komisi_agen",
         three(Sales::BAYAR_KOMISI_AGEN, Sales::UPDATE_BAYAR_KOMISI_AGEN, Sales::HAPUS_BAYAR_KOMISI),
         page<TabKomisiAgen>(), layCommission, "Are you sure you want to delete Payment with No: KAG-",
         "Can not find Payment with id: ", gone, "txtNoRef", "error: update komisi agen failed"},
        {"journal entries", "Journal Transaction", "cash_flow", threeFrom(BusinessCashFlow::INSERT_CASH_FLOW),
         page<TabCashFlow>(), layEntry, "Are you sure, you want to delete this entity with no: KK-",
         "Please open it from Purchases menu or Sales menu", "Can not find entity with no: KK-", "txtNotes"},
        {"transfers", "Accounting Transaction", "accounting_trans", threeFrom(0), page<TabTransfer>(), layTransfer,
         "Are you sure, you want to delete transaction with no: TR-",
         "Can not find transaction with id: ", "Can not find transaction with no: TR-", "txtNotes"},
        {"adjustments",
         "Inventory",
         "stock_take",
         {{Qt::Key_F12, BusinessInventory::INSERT_STOCKTAKE}, {Qt::Key_Delete, BusinessInventory::DELETE_STOCKTAKE}},
         page<TabInventoryAdj>(),
         layAdjustment,
         "Are you sure you want to delete this item: Rice ?",
         "",
         gone},
        {"counter sales", "Sales", "invoice", ofSales(true), page<TabFastFood>(), layCounterSale,
         "Are you sure, you want to delete this invoice: F", "Can not find entity #", gone, "txtNamaPelanggan",
         "error: insert fast food invoice failed"},
        {"all sales", "Sales", "invoice", ofSales(false), page<TabDaftarPenjualan>(), layCounterSale,
         "Are you sure, you want to delete this sales invoice: F", gone, ""},
        {"orders to take away", "Sales", "bawa_pulang", ofOrders(), page<TabBawaPulang>(), layTakeAway,
         "Are you sure you want to delete this order? order id: ", gone, "", "txtNamaPelanggan",
         "error: update take away food detail failed"},
        {"orders at tables", "Sales", "makan_ditempat", ofOrders(), page<TabMakanDitempat>(), layDineOrder,
         "Are you sure you want to delete order of table: Window ?", gone, "", "txtNamaPelanggan",
         "error: update dine failed"},
        {"beginning balances",
         "Beginning Balance",
         "stok_awal",
         {{Qt::Key_F12, 0}, {Qt::Key_F2, 0}},
         page<TabStokAwal>(),
         layBalance,
         "",
         gone,
         "",
         "txtJumlah"},
    };
    return families;
}
