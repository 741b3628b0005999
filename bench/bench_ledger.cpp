#include "BenchMain.h"

#include "app/context/EntityPool.h"
#include "cash/cashflow/BusinessCashFlow.h"
#include "cash/cashflow/CashFlowFilter.h"
#include "cash/cashflow/DataMapperCashFlow.h"
#include "cash/cashflow/EntityCashFlow.h"
#include "cash/cashflow/TabCashFlow.h"
#include "kor/business/KorServiceDirectory.h"
#include "support/LedgerRows.h"
#include "support/SalesRows.h"
#include "support/ShopRows.h"

#include <QApplication>

// The ledger of a month after years of trade, 40,000 sales a year. ZAVEL_BENCH_YEARS says how many, five unless told.

namespace
{
constexpr int salesPerYear = 40000;
constexpr int documentsPerYear = 2000;
constexpr QSize pageSize(1000, 700);

CashFlowFilter lastMonth()
{
    const QDate today = QDate::currentDate();
    return {today.addDays(-29), today, CashFlowFilter::AllRows, {}};
}

int readByHand(ByHand& byHand)
{
    const CashFlowFilter filter = lastMonth();
    std::vector<std::string> dates;
    // Twice in each of the ten branches, and once more around them.
    for (int i = 0; i < 11; ++i) {
        dates.push_back(filter.fromDate.toString(Qt::ISODate).toStdString());
        dates.push_back(filter.toDate.toString(Qt::ISODate).toStdString());
    }
    return static_cast<int>(ByHand::rows(byHand.execute("ledger", dates).get()).size());
}

int read()
{
    EntityPool rows;
    const EntityPoolScope scope(rows);
    return service<BusinessCashFlow>("Journal Transaction")->search(lastMonth()).size();
}

void layDown(TestDatabase& database, int years)
{
    struct Documents
    {
        const char* table;
        const char* date;
        RowValues account;
    };
    const RowValues bank{{"bank_id", "1"}};
    const Documents all[] = {{"purchase_order", "purchase_date", bank},
                             {"acquisition", "purchase_date", bank},
                             {"credit_note", "credit_note_date", bank},
                             {"payment", "payment_date", bank},
                             {"piutang", "payment_date", bank},
                             {"komisi_agen", "payment_date", bank},
                             {"invoice", "invoice_date", {{"acct_code", "'1-100'"}, {"no", "'TRD' || i"}}},
                             {"cash_flow", "trans_date", {{"account_code", "'1-100'"}, {"debet_amount", "i"}}},
                             {"accounting_trans", "trans_date", {{"from_account_id", "1"}, {"to_account_id", "1"}}}};
    for (const Documents& documents : all) {
        RowValues values = documents.account;
        values[documents.date] = QString("current_date - i % %1").arg(365 * years);
        values["createdby"] = "1";
        const bool areSales = documents.account.contains("acct_code");
        insertRows(database, documents.table, values, (areSales ? salesPerYear : documentsPerYear) * years);
    }
    database.run("ANALYZE");
}
} // namespace

void setUp(TestDatabase& database, ByHand& byHand)
{
    const int years =
        qEnvironmentVariableIsSet("ZAVEL_BENCH_YEARS") ? qEnvironmentVariableIntValue("ZAVEL_BENCH_YEARS") : 5;
    insertShop(database);
    insertSeller(database, 1, "ann");
    layDown(database, years);
    const auto* mapper = static_cast<DataMapperCashFlow*>(service<BusinessCashFlow>("Journal Transaction")->mapper());
    byHand.prepare("ledger", mapper->getCashFlowQuery() + " where trans_date >= :fromDate and trans_date <= :toDate "
                                                          "order by trans_date desc, no desc, id desc, account_code");
    const int expected = read();
    const auto expect = [expected](int rows) {
        if (rows != expected || rows < salesPerYear / 13)
            qFatal("the ledger has %d rows", rows);
    };
    const std::string history = " after " + std::to_string(years) + " year(s)";
    enter({"Read a month of the ledger" + history, [expect] { expect(read()); },
           [expect, &byHand] { expect(readByHand(byHand)); }, [] {}, 5});
    enter({"Open the page of the ledger" + history,
           [] {
               TabCashFlow page;
               page.resize(pageSize);
               page.show();
               QApplication::processEvents();
           },
           [expect, &byHand] { expect(readByHand(byHand)); }, [] {}, 5});
}
