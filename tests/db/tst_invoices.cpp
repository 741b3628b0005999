#include "pos/invoice/DataMapperInvoice.h"
#include "pos/invoice/EntityInvoiceDetail.h"
#include "pos/registry/PosMapperRegistry.h"
#include "pos/totals/InvoiceTotals.h"
#include "support/DatabaseTest.h"
#include "support/TripCount.h"
#include "zavel/service/BusinessPenjualan.h"

namespace
{
/** A kind of sale that the program does not support. */
class StrangeSale : public EntityInvoiceLink
{
    Q_OBJECT

public:
    using EntityInvoiceLink::EntityInvoiceLink;
};

using Dish = QPair<int, int>;
} // namespace

/** The database after a dine-in sale, and after a failed one. */
class TestInvoices : public DatabaseTest
{
    Q_OBJECT

protected:
    void prepare() override
    {
        insertShop(*m_database);
        m_sales = service<BusinessPenjualan>("Sales");
    }

private slots:
    void savingAndReadingTakeAFixedNumberOfTrips()
    {
        const QList<Dish> dishes{{1, 10}, {2, 20}, {3, 30}, {4, 40}, {5, 50}, {6, 60}};
        const int id = insertDineOrder(*m_database, dishes);
        StatementCount reading;
        EntityMakanDitempat* table = m_sales->findOrder(id);
        QVERIFY2(reading.count() <= 3, qPrintable(QString::number(reading.count())));

        // The first bill of the day prepares the statements.
        QVERIFY(m_sales->insertInvoice(sale(order(dishes), dishes, 0)));
        EntityInvoiceMakanDitempat* first = sale(table, dishes, 100);
        first->setKnownBills({});
        {
            // The round trips: begin with the locks and the other bills; read and increase the number; the invoice; its
            // link with the lines; commit; the sum of the order's bills; its status.
            const TripCount saving;
            QVERIFY(m_sales->insertInvoice(first));
            QVERIFY2(saving.sent().size() <= 8, qPrintable(saving.sent().join('\n')));
        }

        StatementCount one;
        QCOMPARE(m_sales->getInvoicesOfOrder(id).size(), 1);
        const int forOne = one.count();
        QVERIFY(m_sales->insertInvoice(sale(m_sales->findOrder(id), {{1, 10}}, 0)));
        QVERIFY(m_sales->insertInvoice(sale(m_sales->findOrder(id), {{1, 10}}, 0)));
        StatementCount three;
        QCOMPARE(m_sales->getInvoicesOfOrder(id).size(), 3);
        QCOMPARE(three.count(), forOne);
    }

    void aChangedInvoiceHasExactlyTheNewLines()
    {
        EntityMakanDitempat* table = order({{2, 300}, {1, 400}});
        EntityInvoiceMakanDitempat* first = sale(table, {{2, 300}, {1, 400}}, 0);
        QVERIFY(m_sales->insertInvoice(first));
        const int lastLine = m_database->value("select max(id) from invoice_detail").toInt();

        EntityInvoiceMakanDitempat* again = readAgain(first);
        again->setDetails({again->getDetails().at(1)});
        pay(again, 100);
        QVERIFY2(m_sales->updateInvoice(again), qPrintable(m_sales->takeErrors()));
        QCOMPARE(soldQuantities(again->getInvoice()->getId()), QString("1"));
        QVERIFY(m_database->value("select min(id) from invoice_detail").toInt() > lastLine);
        QCOMPARE(stored("no, sub_total_amount, status", "invoice", again->getInvoice()->getId()),
                 QString("TRD-0007 400 3"));

        // The form could not read it again, so it saves once more from memory.
        again->setDetails(lines({{5, 100}}));
        pay(again, 500);
        QVERIFY2(m_sales->updateInvoice(again), qPrintable(m_sales->takeErrors()));
        QVERIFY2(!m_sales->hasError(), qPrintable(m_sales->takeErrors()));
        QCOMPARE(soldQuantities(again->getInvoice()->getId()), QString("5"));
        QCOMPARE(orderStatus(table->getId()), int(EntityOrder::PAID));
    }

    void aLineThatFailsTakesTheWholeSaleBack()
    {
        EntityMakanDitempat* table = order({{2, 300}});
        EntityInvoiceMakanDitempat* first = sale(table, {{2, 300}, {1, 100}}, 700);
        first->getDetails().last()->getItem()->setId(4711);
        QVERIFY(!m_sales->insertInvoice(first));
        const QString told = m_sales->takeErrors();
        QVERIFY2(told.startsWith("error: insert dine invoice detail failed.\r\n \r\n "), qPrintable(told));
        QVERIFY2(told.contains("foreign key"), qPrintable(told));
        QCOMPARE(count("invoice") + count("invoice_makan_ditempat") + count("invoice_detail"), 0);
        QCOMPARE(orderStatus(table->getId()), int(EntityOrder::WAITING_FOR_MENU));
        QVERIFY(!first->isSaved() && !first->getInvoice()->isSaved());

        first->getDetails().last()->getItem()->setId(1);
        QVERIFY2(m_sales->insertInvoice(first), qPrintable(m_sales->takeErrors()));
        // The failed attempt did not use up the number.
        QCOMPARE(first->getInvoice()->getInvoiceNo(), QString("TRD-0007"));
        QCOMPARE(soldQuantities(first->getInvoice()->getId()), QString("2,1"));
    }

    void aFirstSaveAsksAllInvoicesOfTheTableALaterOneOnlyItself()
    {
        const int id = order({{2, 300}})->getId();
        EntityInvoiceMakanDitempat* paid = sale(m_sales->findOrder(id), {{1, 300}}, 300);
        QVERIFY(m_sales->insertInvoice(paid));
        QCOMPARE(orderStatus(id), int(EntityOrder::PAID));
        EntityInvoiceMakanDitempat* open = sale(m_sales->findOrder(id), {{1, 300}}, 0);
        QVERIFY(m_sales->insertInvoice(open));
        QCOMPARE(stored("status", "invoice", open->getInvoice()->getId()).toInt(), int(Invoice::UNPAID));
        QCOMPARE(orderStatus(id), int(EntityOrder::PARTIALY_PAID));

        // After the next save only this invoice counts; the other one does not.
        QVERIFY(m_sales->updateInvoice(readAgain(open)));
        QCOMPARE(orderStatus(id), int(EntityOrder::UNPAID));
        QVERIFY(m_sales->updateInvoice(readAgain(paid)));
        QCOMPARE(orderStatus(id), int(EntityOrder::PAID));
    }

    void aSaleStandsEvenWhenTheOrderHasChangedMeanwhile()
    {
        EntityMakanDitempat* table = order({{2, 300}});
        run("UPDATE makan_ditempat SET version = 2");
        EntityInvoiceMakanDitempat* first = sale(table, {{2, 300}}, 600);
        QVERIFY(m_sales->insertInvoice(first));
        QCOMPARE(count("invoice"), 1);
        const QString told = m_sales->takeErrors();
        QVERIFY2(told.startsWith("error update status failed \r\n Table: makan_ditempat has been updated"),
                 qPrintable(told));
        QCOMPARE(orderStatus(table->getId()), int(EntityOrder::WAITING_FOR_MENU));
        // The next save makes up for it.
        QVERIFY(m_sales->updateInvoice(readAgain(first)));
        QCOMPARE(orderStatus(table->getId()), int(EntityOrder::PAID));
    }

    void anUnknownKindOfSaleIsRefused()
    {
        StrangeSale strange;
        QVERIFY(!m_sales->insertInvoice(&strange));
        QCOMPARE(m_sales->errors().value("insertInvoice"), QStringList{"mapper not found"});
        QVERIFY(!m_sales->updateInvoice(&strange));
        QCOMPARE(m_sales->errors().value("updateInvoice"), QStringList{"mapper not found"});
    }

    void aTableIsFreedHoweverOldItsOrderInMemoryIs()
    {
        EntityMakanDitempat* table = order({{2, 300}});
        run("UPDATE makan_ditempat SET version = 5");
        QVERIFY2(m_sales->makanDitempatSelesai(table), qPrintable(m_sales->takeErrors()));
        QCOMPARE(orderStatus(table->getId()), int(EntityOrder::DONE));
        run("DELETE FROM makan_ditempat_detail");
        run("DELETE FROM makan_ditempat");
        QVERIFY(!m_sales->makanDitempatSelesai(table));
        QVERIFY(m_sales->hasError());
    }

    void quantitiesSoldCountBothLimits()
    {
        const QDate day(2026, 3, 10);
        DataMapperInvoice* invoices = PosMapperRegistry::instance()->invoiceMapper();
        QCOMPARE(invoices->quantityUsed(1, day), 0);
        for (int offset : {-1, 0, 1}) {
            EntityInvoiceMakanDitempat* one = sale(order({{2, 300}}), {{offset + 3, 300}}, 0);
            one->getInvoice()->setInvoiceDate(day.addDays(offset));
            QVERIFY(m_sales->insertInvoice(one));
        }
        QCOMPARE(invoices->quantityUsed(1, day), 5);
        QCOMPARE(invoices->quantityUsed(1, day.addDays(-1), day), 5);
        QCOMPARE(invoices->quantityUsed(1, day, day.addDays(1)), 7);
        QCOMPARE(invoices->quantityUsed(1, day.addDays(2), day.addDays(9)), 0);
        QCOMPARE(invoices->quantityUsed(4711, day), 0);
    }

    void aSaleGoesThroughThoughTheSessionWasLostBefore()
    {
        EntityMakanDitempat* table = order({{2, 300}});
        EntityInvoiceMakanDitempat* first = sale(table, {{2, 300}, {1, 100}}, 700);
        m_database->killConnections();
        QVERIFY2(m_sales->insertInvoice(first), qPrintable(m_sales->takeErrors()));
        QCOMPARE(soldQuantities(first->getInvoice()->getId()), QString("2,1"));
        QCOMPARE(orderStatus(table->getId()), int(EntityOrder::PAID));
    }

    void aSessionLostBetweenTwoLinesWritesNothing_data()
    {
        addRows<bool>("isStored", {{"of a new invoice", false}, {"of a changed invoice", true}});
    }
    void aSessionLostBetweenTwoLinesWritesNothing()
    {
        QFETCH(bool, isStored);
        EntityMakanDitempat* table = order({{2, 300}});
        EntityInvoiceMakanDitempat* first = sale(table, {{2, 300}}, 0);
        if (isStored) {
            QVERIFY(m_sales->insertInvoice(first));
            first = readAgain(first);
        }
        first->setDetails(lines({{3, 300}, {13, 300}, {4, 300}}));
        hangUpAtQuantity13("invoice_detail");
        const auto save = [&] { return isStored ? m_sales->updateInvoice(first) : m_sales->insertInvoice(first); };
        QVERIFY(!save());
        QVERIFY(m_sales->takeErrors().startsWith("error: insert dine invoice detail failed."));
        QCOMPARE(count("invoice"), isStored ? 1 : 0);
        QCOMPARE(value("select coalesce(string_agg(qty::text, ','), '') from invoice_detail"),
                 QString(isStored ? "2" : ""));

        run("DROP TRIGGER hang_up ON invoice_detail");
        QVERIFY2(save(), qPrintable(m_sales->takeErrors()));
        QCOMPARE(soldQuantities(first->getInvoice()->getId()), QString("3,13,4"));
    }

private:
    EntityMakanDitempat* order(const QList<Dish>& dishes)
    {
        return m_sales->findOrder(insertDineOrder(*m_database, dishes));
    }

    QList<EntityInvoiceDetail*> lines(const QList<Dish>& dishes)
    {
        auto* rice = known<EntityItem>(1);
        QList<EntityInvoiceDetail*> result;
        for (const Dish& dish : dishes) {
            auto* line = new EntityInvoiceDetail(m_records.get());
            line->setItem(rice);
            line->setQty(dish.first);
            line->setPriceEach(new Money(line, dish.second, "Rp"));
            line->recomputeTotal();
            result.append(line);
        }
        return result;
    }

    /** An invoice of the order for these dishes, not yet saved. */
    EntityInvoiceMakanDitempat* sale(EntityMakanDitempat* order, const QList<Dish>& dishes, double paid)
    {
        auto* sale = new EntityInvoiceMakanDitempat(m_records.get());
        sale->setMakanDitempat(order);
        sale->setDetails(lines(dishes));
        sale->getInvoice()->setInvoiceDate(QDate(2026, 3, 1));
        sale->getInvoice()->setAcctCode("1-100");
        pay(sale, paid);
        return sale;
    }

    void pay(EntityInvoiceMakanDitempat* sale, double paid)
    {
        double subtotal = 0;
        for (const EntityInvoiceDetail* line : sale->getDetails())
            subtotal += line->getTotal()->getAmount();
        InvoiceTotals totals;
        totals.setCurrency("Rp");
        totals.setSubtotal(subtotal);
        totals.setPaid(paid);
        totals.writeTo(sale->getInvoice());
    }

    EntityInvoiceMakanDitempat* readAgain(EntityInvoiceMakanDitempat* sale)
    {
        return m_sales->findInvoiceMakanDitempat(sale->getId());
    }

    QString stored(const QString& columns, const QString& table, int id)
    {
        return value(QString("select concat_ws(' ', %1) from %2 where id = %3").arg(columns, table).arg(id));
    }

    int orderStatus(int id) { return stored("status", "makan_ditempat", id).toInt(); }
    QString soldQuantities(int invoiceId)
    {
        return value(QString("select string_agg(qty::text, ',' order by id) from invoice_detail where invoice_id = %1")
                         .arg(invoiceId));
    }

    /** The server ends the program's session when it writes a line of quantity 13 to the table. */
    void hangUpAtQuantity13(const QString& table)
    {
        run("CREATE FUNCTION hang_up() RETURNS trigger LANGUAGE plpgsql AS "
            "'BEGIN PERFORM pg_terminate_backend(pg_backend_pid()); RETURN NEW; END'");
        run("CREATE TRIGGER hang_up BEFORE INSERT ON " + table +
            " FOR EACH ROW WHEN (NEW.qty = 13) "
            "EXECUTE FUNCTION hang_up()");
    }

    BusinessPenjualan* m_sales = nullptr;
};

QTEST_MAIN(TestInvoices)
#include "tst_invoices.moc"
