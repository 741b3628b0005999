#include "kor/business/KorServiceDirectory.h"
#include "pos/inventory/stock/BusinessInventory.h"
#include "pos/inventory/stock/EntityStockTake.h"
#include "pos/masterdata/item/BusinessItem.h"
#include "pos/masterdata/member/BusinessMember.h"
#include "pos/masterdata/supplier/BusinessSupplier.h"
#include "pos/purchasing/creditnote/BusinessCreditNote.h"
#include "pos/purchasing/payment/BusinessPayment.h"
#include "pos/purchasing/payment/EntityPayment.h"
#include "pos/purchasing/purchase/BusinessPurchases.h"
#include "pos/purchasing/purchaseorder/BusinessPurchaseOrder.h"
#include "pos/purchasing/purchaseorder/EntityPurchaseOrder.h"
#include "reports/ReadReport.h"
#include "support/Rows.h"
#include "support/TestDatabase.h"
#include "zavel/receivable/EntityPiutangDetail.h"
#include "zavel/service/BusinessPenjualan.h"

#include <memory>

namespace
{
const QDate firstDay(2026, 3, 1);
const QDate lastDay(2026, 3, 31);

template <class Document, class Base>
double sumOf(const QList<Document*>& documents, Money* (Base::*amount)() const)
{
    double sum = 0;
    for (const Document* document : documents)
        sum += (document->*amount)()->getAmount();
    return sum;
}

/** The values of one column by those of another. */
QMap<QString, double> valuesBy(const ReadReport& read, const QString& key, const QString& field)
{
    QMap<QString, double> values;
    for (int row = 0; row < read.table.rowCount(); ++row)
        values[read.value(row, key).toString()] += read.value(row, field).toDouble();
    return values;
}
} // namespace

/** The stock and purchasing reports match the program's own pages. */
class TestGoodsReports : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QLocale::setDefault(QLocale("en_US")); }
    void cleanup() { m_database.reset(); }
    void theStockIsWhatTheItemsShow_data() { seeds(); }
    void theStockIsWhatTheItemsShow()
    {
        open();
        auto* inventory = service<BusinessInventory>("Inventory");
        const QList<KorEntity*> items = service<BusinessItem>("Item")->search({}, {});
        const auto onHand = [&](const QDate& day) {
            QMap<QString, double> quantities;
            for (const KorEntity* entity : items) {
                const auto* item = static_cast<const EntityItem*>(entity);
                if (item->getItemType() == EntityItem::INV)
                    quantities[item->getKode()] = inventory->getQuantityOnHand(item, day);
            }
            return quantities;
        };
        for (const QDate& day :
             {QDate(2025, 1, 1), firstDay.addDays(-1), QDate(2026, 3, 10), lastDay, lastDay.addDays(90)})
            QCOMPARE(valuesBy(read("stock-on-hand", day), "code", "qty"), onHand(day));
        const ReadReport movements = read("stock-movements");
        QCOMPARE(valuesBy(movements, "code", "opening"), onHand(firstDay.addDays(-1)));
        QCOMPARE(valuesBy(movements, "code", "closing"), onHand(lastDay));
        const QMap<QString, double> below = valuesBy(read("stock-negative"), "code", "qty");
        QMap<QString, double> expected = onHand(lastDay);
        for (const QString& code : expected.keys()) {
            if (expected.value(code) >= 0)
                expected.remove(code);
        }
        QCOMPARE(below, expected);
    }

    void whatIsOwedIsWhatTheBillsShow_data() { seeds(); }
    void whatIsOwedIsWhatTheBillsShow()
    {
        open();
        auto* purchases = service<BusinessPurchases>("Purchases");
        QMap<QString, double> expected;
        for (const KorEntity* supplier : service<BusinessSupplier>("Supplier")->findAll({})) {
            const auto* owed = static_cast<const EntitySupplier*>(supplier);
            expected[owed->getNama()] =
                sumOf(purchases->getPendingInvoiceBySupplier(owed), &EntityAcquisition::getNetDue);
        }
        QCOMPARE(valuesBy(read("payables"), "supplier", "due"), expected);
        QCOMPARE(valuesBy(read("suppliers"), "name", "due"), expected);
        const ReadReport ages = read("payables-by-age");
        QCOMPARE(valuesBy(ages, "supplier", "due"), expected);
        double parts = 0;
        for (const char* age : {"notdue", "month", "second", "third", "older"})
            parts += ages.table.total(ages.table.report().columnOf(age)).toDouble();
        QCOMPARE(parts, ages.table.total(ages.table.report().columnOf("due")).toDouble());
    }

    void membersOweWhatTheirPaymentsOffer_data() { seeds(); }
    void membersOweWhatTheirPaymentsOffer()
    {
        open();
        QMap<QString, double> expected;
        for (const KorEntity* entity : service<BusinessMember>("Member")->findAll({})) {
            const auto* member = static_cast<const EntityMember*>(entity);
            expected[member->getNama()] =
                sumOf(service<BusinessPenjualan>("Sales")->getUnpaidInvoicesForMember(member->getId()),
                      &EntityPiutangDetail::getAmountDue);
            QVERIFY(expected[member->getNama()] > 0);
        }
        QCOMPARE(valuesBy(read("members"), "name", "due"), expected);
    }

    void documentsAreThoseOfTheLists_data() { seeds(); }
    void documentsAreThoseOfTheLists()
    {
        open();
        PurchasingFilter month;
        month.from = firstDay;
        month.to = lastDay;
        const auto bought = service<BusinessPurchases>("Purchases")->findAll(month);
        const double total = sumOf(bought, &EntityAcquisition::getGrandTotal);
        const auto totalOf = [this](const QString& id, const QString& field) {
            const ReadReport report = read(id);
            return report.table.total(report.table.report().columnOf(field)).toDouble();
        };
        QCOMPARE(read("purchases").table.rowCount(), bought.size());
        QCOMPARE(totalOf("purchases", "due"), sumOf(bought, &EntityAcquisition::getNetDue));
        for (const char* id : {"purchases", "purchases-by-day", "purchases-by-supplier"})
            QCOMPARE(totalOf(id, "total"), total);

        const auto paid = service<BusinessPayment>("Payment")->findAll(month);
        QCOMPARE(read("supplier-payments").table.rowCount(), paid.size());
        QCOMPARE(totalOf("supplier-payments", "total"), sumOf(paid, &EntityPayment::getGrandTotal));

        QSet<QString> returned;
        for (const EntityCreditNote* note : service<BusinessCreditNote>("Credit Note")->findAll(month)) {
            if (note->getStatus() != EntityCreditNote::CANCELLED)
                returned.insert(note->getNo());
        }
        QCOMPARE(valuesBy(read("purchase-returns"), "no", "qty").keys().toSet(), returned);

        QSet<QString> ordered;
        for (const KorEntity* supplier : service<BusinessSupplier>("Supplier")->findAll({})) {
            const auto* asked = static_cast<const EntitySupplier*>(supplier);
            for (const EntityPurchaseOrder* order :
                 service<BusinessPurchaseOrder>("Purchase Order")->getOpenBySupplier(asked))
                ordered.insert(order->getNo());
        }
        QCOMPARE(valuesBy(read("purchase-orders-open"), "no", "late").keys().toSet(), ordered);

        int counts = 0;
        for (const KorEntity* take : service<BusinessInventory>("Inventory")->findAll({})) {
            const QDate day = static_cast<const EntityStockTake*>(take)->getStockTakeDate();
            counts += day >= firstDay && day <= lastDay ? 1 : 0;
        }
        QCOMPARE(read("stock-adjustments").table.rowCount(), counts);
    }

private:
    static void seeds()
    {
        addColumns<double>("seed");
        for (const double seed : {0.1, 0.26, 0.77})
            addRow(qPrintable(QString("seed %1").arg(seed)), seed);
    }

    /** A shop with a random quarter of trade, seeded by the row. */
    void open()
    {
        QFETCH(double, seed);
        m_database = std::make_unique<TestDatabase>();
        m_database->runFile("reports/month_of_trade.sql");
        m_database->value(QString("SELECT setseed(%1)").arg(seed));
        m_database->runFile("reports/busy_quarter.sql");
    }

    [[nodiscard]] ReadReport read(const QString& id, const QDate& day = lastDay) const
    {
        ReadReport read = readReport(*m_database, id, firstDay, day);
        if (!read.error.isEmpty())
            qWarning() << id << read.error;
        return read;
    }

    std::unique_ptr<TestDatabase> m_database;
};

QTEST_GUILESS_MAIN(TestGoodsReports)
#include "tst_goods_reports.moc"
