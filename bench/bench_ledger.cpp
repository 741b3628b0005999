#include "BenchMain.h"

#include "app/context/EntityPool.h"
#include "kor/business/KorServiceDirectory.h"
#include "pos/cash/ledger/BusinessCashFlow.h"
#include "pos/cash/ledger/CashFlowFilter.h"
#include "pos/cash/ledger/DataMapperCashFlow.h"
#include "pos/cash/ledger/EntityCashFlow.h"
#include "pos/cash/ledger/TabCashFlow.h"
#include "support/LedgerRows.h"
#include "support/SalesRows.h"
#include "support/ShopRows.h"

#include <QApplication>

// The ledger of one month after some years with 40,000 sales each. ZAVEL_BENCH_YEARS sets the number of years; default
// 5.

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
    // The dates are bound in each of the ten branches and once more in the outer select.
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
} // namespace

void setUp(TestDatabase& database, ByHand& byHand)
{
    const int years =
        qEnvironmentVariableIsSet("ZAVEL_BENCH_YEARS") ? qEnvironmentVariableIntValue("ZAVEL_BENCH_YEARS") : 5;
    insertShop(database);
    insertSeller(database, 1, "ann");
    insertLedgerYears(database, years, salesPerYear, documentsPerYear);
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
