#include "pos/invoice/EntityInvoiceDetail.h"
#include "support/DatabaseTest.h"
#include "zavel/dinein/DialogBayarMakanDitempat.h"
#include "zavel/dinein/DialogBayarMakanDitempatDetailSplit.h"
#include "zavel/service/BusinessPenjualan.h"

#include <QRandomGenerator>

#include <numeric>

namespace
{
const char* const printQuestion = "Do you want to print this invoice?";
const char* const splitQuestion =
    "Are you sure you want to split this invoice? Please make sure everything is correct.";
const char* const doneQuestion = "Are you done with this table: Window ?";
} // namespace

/** Guests of one table who pay separately: three teas of 10 and two cakes of 25. */
class TestSplit : public DatabaseTest
{
    Q_OBJECT

protected:
    void prepare() override
    {
        AppContext::instance()->setLocale("id_ID");
        m_make = std::make_unique<Builders>();
        m_order = m_make
                      ->openOrder(m_make->table("T1", "Window"), {m_make->line(m_make->item("TEA", "Tea", 10), 3),
                                                                  m_make->line(m_make->item("CAKE", "Cake", 25), 2)})
                      ->getId();
    }
    void tidy() override { m_form.reset(); }

private slots:
    void theSplitShowsOnlyWhereItIsWanted()
    {
        openForm();
        QCOMPARE(grid()->model()->columnCount(), 8);
        QCOMPARE(grid()->model()->headerData(3, Qt::Horizontal).toString(), QString("Split"));
        QCOMPARE(grid()->model()->headerData(4, Qt::Horizontal).toString(), QString("Split Group"));
        split(0, "2", "Grp 3");
        QCOMPARE(grid()->model()->index(0, 2).data().toInt(), 1);
        QCOMPARE(grid()->model()->index(0, 4).data().toString(), QString("Grp 3"));
        QCOMPARE(shown(m_form.get(), "txtSubTotal"), QString("60,00"));
        m_form->findChild<QCheckBox*>("cbShowSplit")->click();
        QCOMPARE(grid()->model()->columnCount(), 6);
        QVERIFY(!m_form->findChild<QPushButton*>("btnProcessSplit")->isVisible());
    }

    void eachGroupGetsItsInvoiceAndTheTableWaitsForAll()
    {
        openForm();
        split(0, "1", "Grp 1");
        split(1, "2", "Grp 2");
        typeInto(m_form.get(), "txtPaid", "20");
        m_people->answer(QMessageBox::Yes); // split
        m_people->answer(QMessageBox::No);  // print
        expectGroup(" Split: Grp 1", "10");
        m_people->answer(QMessageBox::No);
        expectGroup(" Split: Grp 2", "30");
        m_people->answer(QMessageBox::No);
        click("btnProcessSplit");
        // A line that was split off completely stays on the invoice with quantity 0.
        QCOMPARE(invoices(), QString("1:2+0, 1:1, 3:2"));
        QCOMPARE(orderStatus(), int(EntityOrder::PARTIALY_PAID));
        QVERIFY2(!m_people->texts().contains(doneQuestion), "the last group still owes");
        QVERIFY2(m_people->finished(), qPrintable(m_people->surprises().join('\n')));
        QCOMPARE(m_people->boxes().first().title, QString("Save"));
        QCOMPARE(m_people->texts().first(), QString(splitQuestion));
    }

    void aGroupThatDoesNotPayGoesBackToItsInvoice()
    {
        openForm();
        split(0, "3", "Grp 1");
        split(1, "1", "Grp 2");
        m_people->answer(QMessageBox::Yes);
        m_people->answer(QMessageBox::No);
        expectGroup(" Split: Grp 1", QString());
        expectGroup(" Split: Grp 2", "25");
        m_people->answer(QMessageBox::No);
        m_people->answer(QMessageBox::No);
        click("btnProcessSplit");
        QVERIFY2(invoices() == "2:3+1, 1:1", qPrintable(invoices() + '\n' + m_people->texts().join('\n')));
        QCOMPARE(shown(m_form.get(), "txtGrandTotal"), QString("55,00"));
        QVERIFY2(m_people->finished(), qPrintable(m_people->surprises().join('\n')));
    }

    void aSplitThatCannotBeIsTold_data()
    {
        const auto row = addColumns<QString, QString, QString, QString>("quantity", "button", "title", "text");
        row("more than ordered", "4", "btnSplit", "Info",
            "Split number should be less than equal to the number of orders");
        row("less than nothing", "-1", "btnSplit", "Error", "Please enter a whole number from 0 to 999.999.999\r\n");
        row("nothing to split", "0", "btnProcessSplit", "Error", "There is no invoice to split");
        row("saved before it is split", "2", "btnPrintBill", "Info", "Please split the invoice first");
    }
    void aSplitThatCannotBeIsTold()
    {
        FETCH(QString, quantity, button, title);
        openForm();
        split(0, quantity, "Grp 1");
        if (button != "btnSplit")
            click(button);
        QTEST(m_people->lastText(), "text");
        QCOMPARE(m_people->lastTitle(), title);
        QCOMPARE(m_database->value("SELECT count(*) FROM invoice").toInt(), 0);
        // Nothing is lost: what was split off comes back.
        grid()->selectRow(0);
        click("btnDelSplit");
        QCOMPARE(grid()->model()->index(0, 2).data().toInt(), 3);
        QCOMPARE(shown(m_form.get(), "txtSubTotal"), QString("80,00"));
    }

    void aPartlyPaidInvoiceCanStillBeSplit()
    {
        openForm();
        m_people->answer(QMessageBox::No);
        pay(m_form.get(), "30");
        QCOMPARE(invoices(), QString("3:3+2"));
        split(1, "2", "Grp 1");
        m_people->answer(QMessageBox::Yes);
        m_people->answer(QMessageBox::No);
        expectGroup(" Split: Grp 1", "50");
        m_people->answer(QMessageBox::No);
        // All have paid, so the order could be finished; the cashier answers No.
        m_people->answer(QMessageBox::No);
        click("btnProcessSplit");
        QCOMPARE(invoices(), QString("1:3+0, 1:2"));
        QCOMPARE(orderStatus(), int(EntityOrder::PAID));
        QCOMPARE(m_people->texts().last(), QString(doneQuestion));
        QCOMPARE(m_people->texts().count(doneQuestion), 1);

        split(0, "1", "Grp 1");
        click("btnProcessSplit");
        QCOMPARE(m_people->lastText(), QString("This invoice is already paid"));
        QCOMPARE(m_people->texts().count(printQuestion), 3);
    }

    void whateverIsSplitTheInvoicesAddUpToTheOrder()
    {
        auto* sales = service<BusinessPenjualan>("Sales");
        for (quint32 seed = 1; seed <= 25; ++seed) {
            QRandomGenerator random(seed);
            const auto trace = QString("seed %1").arg(seed);
            EntityOrder::Lines ordered;
            for (int line = 0; line < 1 + int(random.bounded(4)); ++line)
                ordered.append(
                    m_make->line(m_make->item(QString("I%1-%2").arg(seed).arg(line), "Dish", 1 + random.bounded(5000)),
                                 1 + random.bounded(9)));
            EntityMakanDitempat* order = m_make->openOrder(m_make->table(QString("S%1").arg(seed)), ordered);
            QObject owner;
            const auto sell = [&](const InvoiceLines& lines, double paidPart, EntityInvoiceMakanDitempat* sale) {
                double subtotal = 0;
                for (const EntityInvoiceDetail* line : lines)
                    subtotal += line->getTotal()->rawAmount() / double(line->getTotal()->factor());
                InvoiceTotals totals;
                totals.setCurrency("Rp");
                totals.setSubtotal(subtotal);
                totals.setPaid(subtotal * paidPart);
                totals.writeTo(sale->getInvoice());
                sale->getInvoice()->setInvoiceDate(QDate(2026, 3, 1));
                sale->getInvoice()->setAcctCode("1010");
                sale->setMakanDitempat(sales->findOrder(order->getId()));
                sale->setDetails(lines);
                return sale->isSaved() ? sales->updateInvoice(sale) : sales->insertInvoice(sale);
            };
            InvoiceLines lines = billOf(*order, &owner);
            for (int step = 0; step < 12; ++step) {
                EntityInvoiceDetail* line = lines.at(int(random.bounded(lines.size())));
                line->setQtySplit(int(random.bounded(line->getQty() + line->qtySplit() + 1)));
                line->setSplitGroup(QString("Grp %1").arg(1 + random.bounded(3)));
            }
            const QMap<QString, InvoiceLines> groups = splitGroups(lines, &owner);
            EntityInvoiceMakanDitempat parent;
            QVERIFY2(sell(lines, 1, &parent), qPrintable(trace));
            for (EntityInvoiceDetail* line : qAsConst(lines)) {
                // What is saved is read again, and knows nothing of the split.
                const int kept = line->getQty();
                line->setQtySplit(0);
                line->setQty(kept);
                line->recomputeTotal();
            }
            // What the guests of the groups have still to pay is what no bill knows yet.
            const auto sum = [](const InvoiceLines& some) {
                return std::accumulate(some.cbegin(), some.cend(), 0, [](int all, const EntityInvoiceDetail* line) {
                    return all + line->getTotal()->rawAmount();
                });
            };
            const BillDifference difference = differenceOf(*order, lines, &owner);
            QCOMPARE(sum(difference.unbilled), sum(std::accumulate(groups.cbegin(), groups.cend(), InvoiceLines())));
            QVERIFY(difference.takenBack.isEmpty());
            qint64 due = 0;
            qint64 taken = 0;
            const auto count = [&](const EntityInvoiceMakanDitempat& sale) {
                due += sale.getInvoice()->getGrandTotal()->rawAmount();
                taken += sale.getInvoice()->getAmountPaid()->rawAmount();
            };
            count(parent);
            for (const InvoiceLines& group : groups) {
                if (random.bounded(4) == 0) {
                    addLines(group, &lines, &owner);
                    continue;
                }
                EntityInvoiceMakanDitempat own;
                QVERIFY2(sell(group, random.bounded(3) > 0 ? 1 : 0.5, &own), qPrintable(trace));
                count(own);
            }
            const int afterGroups =
                m_database->value(QString("SELECT status FROM makan_ditempat WHERE id = %1").arg(order->getId()))
                    .toInt();
            QVERIFY2((afterGroups == EntityOrder::PAID) == (taken > 0 && taken >= due), qPrintable(trace));
            QVERIFY2(sell(lines, 1, &parent), qPrintable(trace + " " + sales->takeErrors()));
            QCOMPARE(value(QString("SELECT count(*) FROM (SELECT item_id, sum(qty), sum(total_amount) FROM "
                                   "makan_ditempat_detail WHERE makan_ditempat_id = %1 GROUP BY item_id "
                                   "EXCEPT SELECT d.item_id, sum(d.qty), sum(d.total_amount) FROM "
                                   "invoice_makan_ditempat m JOIN invoice_detail d USING (invoice_id) WHERE "
                                   "m.makan_ditempat_id = %1 GROUP BY d.item_id) missing")
                               .arg(order->getId()))
                         .toInt(),
                     0);
        }
    }

    void aDifferenceIsToldInItsCurrency()
    {
        QObject owner;
        InvoiceLines billed;
        for (EntityItem* dish : {m_make->item("PIE", "Pie", 0), m_make->item("ALE", "Ale", 0)}) {
            auto* line = new EntityInvoiceDetail(&owner);
            line->setItem(dish);
            line->setQty(2);
            line->setPriceEach(new Money(line, 12.0, "$"));
            line->recomputeTotal();
            billed.append(line);
        }
        EntityMakanDitempat order;
        order.setDetails({m_make->line(m_make->item("GIN", "Gin", 500), 1)});
        QCOMPARE(
            differenceOf(order, billed, &owner).text(),
            QString("Ordered, but on no bill: 1 Gin (Rp500)\r\nOn the bill, but taken back: 2 Pie ($24), 2 Ale ($24); "
                    "$48 in all"));
    }

private:
    void openForm()
    {
        m_form = std::make_unique<DialogBayarMakanDitempat>();
        QVERIFY(m_form->openOrder(service<BusinessPenjualan>("Sales")->findOrder(m_order)));
        showForm(m_form.get());
        m_form->findChild<QCheckBox*>("cbShowSplit")->click();
    }

    void click(const QString& button) { ::click(m_form.get(), qPrintable(button)); }
    [[nodiscard]] QTableView* grid() const { return m_form->findChild<QTableView*>("tblDetail"); }
    /** Splits this quantity off the line in this row, as the cashier does. */
    void split(int row, const QString& quantity, const QString& group)
    {
        m_people->expect<DialogBayarMakanDitempatDetailSplit>([&](DialogBayarMakanDitempatDetailSplit* dialog) {
            typeInto(dialog, "txtQtySplit", quantity);
            auto* groups = dialog->findChild<QComboBox*>("ddlGroupSplit");
            QTest::keyClick(groups, Qt::Key_Home);
            for (int step = 1; step < group.right(1).toInt(); ++step)
                QTest::keyClick(groups, Qt::Key_Down);
            QTest::keyClick(dialog, Qt::Key_Return);
            if (dialog->isVisible())
                QTest::keyClick(dialog, Qt::Key_Escape);
        });
        grid()->selectRow(row);
        click("btnSplit");
    }

    static void pay(DialogBayarMakanDitempat* form, const QString& amount)
    {
        typeInto(form, "txtPaid", amount);
        confirm(form, "txtPaid");
    }

    /** The next group's form: its note has to end so, and this is paid; an empty amount leaves the form. */
    void expectGroup(const QString& note, const QString& amount)
    {
        m_people->expect<DialogBayarMakanDitempat>([=](DialogBayarMakanDitempat* form) {
            QVERIFY2(shown(form, "txtKode").endsWith(note), qPrintable(note));
            QCOMPARE(shown(form, "txtMeja"), QString("Window"));
            if (!amount.isEmpty())
                pay(form, amount);
            QTest::keyClick(form, Qt::Key_Escape);
        });
    }

    /** Each invoice of the order as "status quantities", oldest first. */
    QString invoices()
    {
        return value("SELECT string_agg(line, ', ' ORDER BY id) FROM (SELECT i.id, i.status || ':' || "
                     "string_agg(d.qty::text, '+' ORDER BY d.id) AS line FROM invoice i "
                     "JOIN invoice_detail d ON d.invoice_id = i.id GROUP BY i.id) all_of_them");
    }

    int orderStatus() { return m_database->value("SELECT status FROM makan_ditempat").toInt(); }

    std::unique_ptr<DialogBayarMakanDitempat> m_form;
    int m_order = 0;
};

QTEST_MAIN(TestSplit)
#include "tst_split.moc"
