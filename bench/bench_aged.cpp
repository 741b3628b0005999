#include "BenchMain.h"

#include "app/context/EntityPool.h"
#include "app/persistence/FoundRows.h"
#include "kor/business/KorServiceDirectory.h"
#include "pos/cash/ledger/BusinessCashFlow.h"
#include "pos/cash/ledger/CashFlowFilter.h"
#include "pos/inventory/stock/BusinessInventory.h"
#include "pos/masterdata/item/EntityItem.h"
#include "pos/purchasing/document/PurchasingFilter.h"
#include "pos/purchasing/purchase/BusinessPurchases.h"
#include "zavel/commission/CommissionFilters.h"
#include "zavel/fastfood/FastFoodFilter.h"
#include "zavel/list/SalesFilter.h"
#include "zavel/service/BusinessPenjualan.h"

// What a restaurant asks for after years of trade, beside statements written by hand for the same answer. The database
// holds sample trade; scripts/bench --age makes it.

namespace
{
using Work = std::function<void()>;

/** The database, and what the tasks ask for in it. */
struct Shop
{
    TestDatabase& database;
    ByHand& byHand;
    QDate day = database.value("SELECT max(invoice_date) FROM invoice").toDate();
    QDate monthBegin = QDate(day.year(), day.month(), 1).addMonths(-1);
    QDate monthEnd = monthBegin.addMonths(1).addDays(-1);
    QDate first = database.value("SELECT min(invoice_date) FROM invoice").toDate();

    [[nodiscard]] int id(const char* statement) { return database.value(QString(statement)).toInt(); }
};

std::string text(const QDate& date) { return date.toString(Qt::ISODate).toStdString(); }
std::string text(int number) { return std::to_string(number); }

BusinessPenjualan* sales() { return service<BusinessPenjualan>("Sales"); }

/** The program's task, with memory of its own. */
Work inPool(const Work& work)
{
    return [work] {
        EntityPool read;
        const EntityPoolScope scope(read);
        work();
    };
}

/** All rows of a long list, and the records of its first screen. */
Work list(const SalesFilter& filter)
{
    return [filter] {
        const std::shared_ptr<FoundRows> rows = sales()->openSales(filter);
        while (!rows->isComplete() && rows->readOn()) {
        }
        for (int row = 0; row < qMin(30, rows->count()); ++row)
            (void)rows->glimpse(row);
    };
}

/** The statement by hand, prepared once, read into plain rows. */
Work plain(Shop& shop, const char* name, const char* statement, const std::vector<std::string>& values = {})
{
    shop.byHand.prepare(name, statement);
    return [&byHand = shop.byHand, name, values] { (void)ByHand::rows(byHand.execute(name, values).get()); };
}

void enterStock(Shop& shop)
{
    const QDate today = QDate::currentDate();
    enter({"Stock of all items", [today] { (void)service<BusinessInventory>("Inventory")->quantitiesOnHand(today); },
           plain(shop, "stock",
                 "with take as (select distinct on (item_id) item_id, tanggal, qty from stock_take where tanggal <= "
                 "current_date order by item_id, tanggal desc, id desc), sold as (select item_id, sum(qty) as qty from "
                 "invoice_detail group by item_id), before as (select take.item_id, sum(line.qty) as qty from take "
                 "join invoice_detail line on line.item_id = take.item_id join invoice on invoice.id = line.invoice_id "
                 "where invoice_date < take.tanggal group by take.item_id) select item.id, coalesce(take.qty, 0) - "
                 "coalesce(sold.qty, 0) + coalesce(before.qty, 0) from item left join take on take.item_id = item.id "
                 "left join sold on sold.item_id = item.id left join before on before.item_id = item.id"),
           [] {}, 1});
    const auto stockOf = [&shop, today](const char* task, const char* name, int id) {
        auto* item = new EntityItem;
        item->setId(id);
        enter({task,
               inPool([item, today] { (void)service<BusinessInventory>("Inventory")->getQuantityOnHand(item, today); }),
               plain(shop, name,
                     "select coalesce((select sum(qty) from acquisition_detail where item_id = :item), 0) - "
                     "coalesce((select sum(qty) from invoice_detail where item_id = :other), 0) - coalesce((select "
                     "sum(qty_returned) from credit_note_detail where item_id = :third), 0)",
                     {text(id), text(id), text(id)}),
               [] {}, 1});
    };
    stockOf("Stock of an item never counted", "never",
            shop.id("SELECT item_id FROM invoice_detail WHERE item_id NOT IN (SELECT item_id FROM stock_take) GROUP BY "
                    "item_id ORDER BY count(*) LIMIT 1"));
    stockOf("Stock of the best seller", "best",
            shop.id("SELECT item_id FROM invoice_detail GROUP BY item_id ORDER BY count(*) DESC LIMIT 1"));
}

void enterLists(Shop& shop)
{
    constexpr char shown[] =
        "select invoice.id, invoice.version, invoice.no, invoice_date, invoice_type, invoice.status, invoice.pemesan, "
        "grandtotal_currency, grandtotal_amount, amount_paid_amount, net_due_amount, other_payment_amount, username, "
        "member.kode, coalesce(m.nama, f.nama) from invoice join users on users.id = invoice.createdby left join "
        "member on member.id = invoice.member_id left join invoice_makan_ditempat dine on dine.invoice_id = invoice.id "
        "left join invoice_fast_food fast on fast.invoice_id = invoice.id left join employee m on m.id = "
        "dine.employee_id left join employee f on f.id = fast.employee_id where ";
    static const std::string period =
        std::string(shown) + "invoice_date between :from and :to order by invoice_date desc, invoice.id desc";
    const std::string ofMember = std::string(shown) + "invoice.member_id = :member order by invoice_date desc";
    const std::string ofNumber = std::string(shown) + "lower(invoice.no) like :part order by invoice_date desc";

    SalesFilter filter;
    filter.from = filter.to = shop.day;
    enter({"Sales list of a day", list(filter),
           plain(shop, "day", period.c_str(), {text(filter.from), text(filter.to)}), [] {}, 5});
    filter.from = shop.monthBegin;
    filter.to = shop.monthEnd;
    enter({"Sales list of a month", list(filter),
           plain(shop, "month", period.c_str(), {text(filter.from), text(filter.to)}), [] {}, 1});

    filter.from = shop.first;
    filter.to = shop.day;
    SalesFilter member = filter;
    member.memberId = shop.id("SELECT member_id FROM invoice WHERE member_id IS NOT NULL GROUP BY member_id ORDER BY "
                              "count(*) DESC LIMIT 1");
    enter({"Sales of a member, all years", list(member),
           plain(shop, "member", ofMember.c_str(), {text(member.memberId)}), [] {}, 1});
    SalesFilter number = filter;
    number.invoiceNo = "0077";
    enter(
        {"Number search over all years", list(number), plain(shop, "number", ofNumber.c_str(), {"%0077%"}), [] {}, 1});
}

void enterDues(Shop& shop)
{
    const int agent = shop.id("SELECT agent_id FROM invoice_makan_ditempat WHERE agent_id IS NOT NULL LIMIT 1");
    enter(
        {"Pending commissions of an agent",
         inPool([agent] { (void)sales()->searchPendingInvoiceForAgentCommision(agent); }),
         plain(shop, "pending",
               "select invoice.id, no, invoice_date, pemesan, grandtotal_currency, grandtotal_amount from (select "
               "invoice_id from invoice_makan_ditempat where agent_id = :agent union all select invoice_id from "
               "invoice_fast_food where agent_id = :other) link join invoice on invoice.id = link.invoice_id where not "
               "exists (select from komisi_agen_detail where komisi_agen_detail.invoice_id = invoice.id)",
               {text(agent), text(agent)}),
         [] {}, 1});
    const int member = shop.id("SELECT member_id FROM invoice WHERE status <> 1 AND member_id IS NOT NULL LIMIT 1");
    enter(
        {"Open invoices of a member", inPool([member] { (void)sales()->getUnpaidInvoicesForMember(member); }),
         plain(
             shop, "open",
             "select id, no, invoice_date, grandtotal_currency, grandtotal_amount, net_due_amount, amount_paid_amount "
             "from invoice where member_id = :member and status <> 1",
             {text(member)}),
         [] {}, 5});
}

void enterDay(Shop& shop)
{
    FastFoodFilter counter;
    counter.from = counter.to = shop.day;
    enter(
        {"Fast food of a day", inPool([counter] { (void)sales()->getFastFoodList(counter); }),
         plain(shop, "counter",
               "select fast.id, invoice.id, no, invoice_date, pemesan, status, grandtotal_currency, grandtotal_amount, "
               "amount_paid_amount, net_due_amount, employee.nama from invoice join invoice_fast_food fast on "
               "fast.invoice_id = invoice.id left join employee on employee.id = fast.employee_id where invoice_date "
               "= :day order by invoice.id",
               {text(shop.day)}),
         [] {}, 5});
    PurchasingFilter purchases;
    purchases.from = shop.monthBegin;
    purchases.to = shop.monthEnd;
    enter(
        {"Purchases of a month",
         inPool([purchases] { (void)service<BusinessPurchases>("Purchases")->findAll(purchases); }),
         plain(shop, "purchases",
               "select acquisition.id, no, purchase_date, supplier.kode, supplier.nama, grandtotal_currency, "
               "grandtotal_amount, net_due_amount, acquisition.status from acquisition join supplier on supplier.id = "
               "supplier_id where purchase_date between :from and :to order by purchase_date desc",
               {text(purchases.from), text(purchases.to)}),
         [] {}, 5});
    CashFlowFilter ledger;
    ledger.fromDate = shop.monthBegin;
    ledger.toDate = shop.monthEnd;
    enter(
        {"Ledger of a month",
         inPool([ledger] { (void)service<BusinessCashFlow>("Journal Transaction")->search(ledger); }),
         plain(shop, "ledger",
               "select 'Sales', invoice_date, no, acct_code, bank.nama, grandtotal_currency, grandtotal_amount, note, "
               "username from invoice join bank on bank.kode = acct_code join users on users.id = invoice.createdby "
               "where invoice_date between :from and :to union all select 'Purchases', purchase_date, no, bank.kode, "
               "bank.nama, grandtotal_currency, grandtotal_amount, note, username from acquisition join bank on "
               "bank.id = bank_id join users on users.id = acquisition.createdby where purchase_date between :begin "
               "and :last order by 2 desc, 3 desc",
               {text(shop.monthBegin), text(shop.monthEnd), text(shop.monthBegin), text(shop.monthEnd)}),
         [] {}, 1});
    const QDate from = shop.day.addDays(-13);
    enter({"Sold items of 14 days",
           inPool([from, to = shop.day] { (void)sales()->getSoldItems(from, to, "desc", "total_qty", QString()); }),
           plain(shop, "sold",
                 "select item.kode, item.nama, qty, total from (select item_id, sum(qty) as qty, sum(total_amount) as "
                 "total from invoice join invoice_detail on invoice.id = invoice_id where invoice_date between :from "
                 "and :to group by item_id) line join item on item.id = item_id order by qty desc",
                 {text(from), text(shop.day)}),
           [] {}, 1});
}

void enterOrders(Shop& shop)
{
    const int order = shop.id("SELECT max(id) FROM makan_ditempat");
    enter(
        {"One order with its lines", inPool([order] { (void)sales()->findOrder(order); }),
         plain(shop, "order",
               "select o.id, o.version, o.status, o.tgl, o.pemesan, meja.kode, meja.nama, line.id, line.qty, "
               "line.status, line.price_each_amount, line.total_amount, item.kode, item.nama from makan_ditempat o "
               "join meja on meja.id = o.meja_id left join makan_ditempat_detail line on line.makan_ditempat_id = o.id "
               "left join item on item.id = line.item_id where o.id = :order order by line.id",
               {text(order)}),
         [] {}, 20});
    const int invoice = shop.id("SELECT max(invoice_id) FROM invoice_makan_ditempat");
    enter(
        {"One paid sale", inPool([invoice] { (void)sales()->findMakanDitempatByInvoiceId(invoice); }),
         plain(shop, "sale",
               "select invoice.*, line.id, line.qty, line.price_each_amount, line.total_amount, item.kode, item.nama "
               "from invoice left join invoice_detail line on line.invoice_id = invoice.id left join item on item.id = "
               "line.item_id where invoice.id = :invoice order by line.id",
               {text(invoice)}),
         [] {}, 20});
}
} // namespace

void setUp(TestDatabase& database, ByHand& byHand)
{
    Shop shop{database, byHand};
    enterStock(shop);
    enterDues(shop);
    enterLists(shop);
    enterDay(shop);
    enterOrders(shop);
}
