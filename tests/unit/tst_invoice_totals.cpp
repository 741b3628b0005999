#include "app/context/AppContext.h"
#include "pos/invoice/EntityInvoiceDetail.h"
#include "pos/invoice/Invoice.h"
#include "pos/invoice/InvoiceStatus.h"
#include "pos/totals/InvoiceTotals.h"
#include "support/Rows.h"
#include "zavel/order/EntityOrder.h"
#include "zavel/order/OrderStatus.h"

#include <cmath>
#include <limits>

namespace
{
constexpr double nothing = std::numeric_limits<double>::quiet_NaN();

/** What the cashier types for one part of an invoice: "10%", or an amount. */
void enter(InvoiceTotals& totals, InvoiceTotals::Part part, QString entry)
{
    if (entry.endsWith('%')) {
        entry.chop(1);
        totals.setPercent(part, entry.toDouble());
    } else if (!entry.isEmpty()) {
        totals.setAmount(part, entry.toDouble());
    }
}

InvoiceTotals totalsOf(const QString& currency, double subtotal)
{
    InvoiceTotals totals;
    totals.setCurrency(currency);
    totals.setSubtotal(subtotal);
    return totals;
}

bool same(double left, double right) { return qAbs(left - right) < 1e-9 || (std::isnan(left) && std::isnan(right)); }
} // namespace

/** The figures of an invoice in the making, without a form around them. */
class TestInvoiceTotals : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { AppContext::instance()->setLocale("id_ID"); }
    void theFiguresFollowWhatIsTyped_data()
    {
        const auto row = addColumns<QString, double, QStringList, double, double, QList<double>, double, double>(
            "currency", "subtotal", "entries", "paid", "credit", "amounts", "grandTotal", "change");

        row("nothing typed", "Rp", 1000, {"", "", ""}, 0, 0, {0, 0, 0}, 1000, -1000);
        row("ten percent off, paid with a round note", "Rp", 1000, {"10%", "", ""}, 1000, 0, {100, 0, 0}, 900, 100);
        row("a note too small", "Rp", 1000, {"10%", "", ""}, 800, 0, {100, 0, 0}, 900, -100);
        row("to the last coin", "Rp", 1000, {"10%", "", ""}, 900, 0, {100, 0, 0}, 900, 0);
        row("all on credit", "Rp", 1000, {"", "", ""}, 0, 1000, {0, 0, 0}, 1000, 0);
        row("all three of the subtotal alone", "Rp", 1000, {"10%", "11%", "5%"}, 0, 0, {100, 110, 50}, 1060, -1060);
        row("half a coin rounds up", "Rp", 5, {"10%", "", ""}, 0, 0, {1, 0, 0}, 4, -4);
        row("less than half rounds down", "Rp", 4, {"10%", "", ""}, 0, 0, {0, 0, 0}, 4, -4);
        row("an amount with cents in a currency without", "Rp", 1000, {"99.6", "", ""}, 900.4, 0, {100, 0, 0}, 900, 0);
        row("a surcharge is a negative discount", "Rp", 1000, {"-10%", "", ""}, 0, 0, {-100, 0, 0}, 1100, -1100);
        row("half a coin of surcharge", "Rp", 5, {"-10%", "", ""}, 0, 0, {0, 0, 0}, 5, -5);
        row("more off than it costs", "Rp", 1000, {"150%", "", ""}, 0, 0, {1500, 0, 0}, -500, 500);
        row("cents are not stored", "$", 9.99, {"7.5%", "", ""}, 10.5, 0, {0, 0, 0}, 9, 1);
        row("a tenth of 36 dollars", "$", 36, {"10%", "", ""}, 33, 0, {3, 0, 0}, 33, 0);
        row("cents that binary fractions miss", "$", 10, {"", "4.35", "0.29"}, 14, 0, {0, 4, 0}, 14, 0);
        row("no number for what was paid", "Rp", 1000, {"", "", ""}, nothing, 0, {0, 0, 0}, 1000, -1000);
    }
    void theFiguresFollowWhatIsTyped()
    {
        QFETCH(QString, currency);
        FETCH(double, subtotal, paid, credit, grandTotal, change);
        QFETCH(QStringList, entries);
        QFETCH(QList<double>, amounts);

        InvoiceTotals totals = totalsOf(currency, subtotal);
        for (const auto part : {InvoiceTotals::Discount, InvoiceTotals::Tax, InvoiceTotals::Service})
            enter(totals, part, entries.at(part));
        totals.setPaid(paid);
        totals.setCredit(credit);

        for (const auto part : {InvoiceTotals::Discount, InvoiceTotals::Tax, InvoiceTotals::Service})
            QVERIFY2(same(totals.amount(part), amounts.at(part)), qPrintable(QString::number(totals.amount(part))));
        QVERIFY2(same(totals.grandTotal(), grandTotal), qPrintable(QString::number(totals.grandTotal())));
        QVERIFY2(same(totals.change(), change), qPrintable(QString::number(totals.change())));
        // Exact comparison: the guest must not be asked for a millionth of a cent.
        QCOMPARE(totals.isShort(), change < 0);
    }

    void anAmountTellsItsPercentToThreeDecimals_data()
    {
        const auto row = addColumns<double, double, double>("amount", "subtotal", "percent");
        row("as it comes", 333.0, 1000.0, 33.3);
        row("a third", 1.0, 3.0, 33.333);
        row("two thirds", 2.0, 3.0, 66.667);
        row("below the rounding point", 1.0, 250000.0, 0.0);
        row("above it, though below the half", 99.0, 20000000.0, 0.001);
        row("a surcharge", -333.0, 1000.0, -33.3);
        row("something of nothing", 100.0, 0.0, std::numeric_limits<double>::infinity());
    }
    void anAmountTellsItsPercentToThreeDecimals()
    {
        FETCH(double, amount, subtotal, percent);
        InvoiceTotals totals = totalsOf("Rp", subtotal);
        totals.setAmount(InvoiceTotals::Tax, amount);
        QCOMPARE(totals.percent(InvoiceTotals::Tax), percent);
    }

    void aPercentOfNothingIsShownButNotStored()
    {
        InvoiceTotals totals = totalsOf("Rp", 0);
        totals.setAmount(InvoiceTotals::Discount, 0);
        totals.setAmount(InvoiceTotals::Tax, 100);
        QVERIFY(std::isnan(totals.percent(InvoiceTotals::Discount)));
        // Leaving the percent box must not give a wrong amount.
        totals.setPercent(InvoiceTotals::Discount, totals.percent(InvoiceTotals::Discount));
        QCOMPARE(totals.amount(InvoiceTotals::Discount), 0.0);
        Invoice invoice;
        totals.writeTo(&invoice);
        QCOMPARE(invoice.getDiscountPerc(), 0.0);
        QCOMPARE(invoice.getTaxPerc(), 0.0);
        QCOMPARE(invoice.getTax()->getAmount(), 100.0);
    }

    void aProposedDiscountMovesNoMoney()
    {
        InvoiceTotals totals = totalsOf("Rp", 1000);
        totals.proposePercent(InvoiceTotals::Discount, 15);
        QCOMPARE(totals.grandTotal(), 1000.0);
        totals.setPercent(InvoiceTotals::Discount, totals.percent(InvoiceTotals::Discount));
        QCOMPARE(totals.grandTotal(), 850.0);
        // The lines have changed: the amount stays, although its percentage differs.
        totals.setSubtotal(2000);
        QCOMPARE(totals.amount(InvoiceTotals::Discount), 150.0);
        QCOMPARE(totals.grandTotal(), 1850.0);
    }

    void onlyWhatMoneyHoldsCanBeSaved_data()
    {
        const auto row = addColumns<QString, double, double, double, double, bool>("currency", "subtotal", "tax",
                                                                                   "paid", "credit", "fits");
        row("the largest amount", "Rp", 2147483647.0, 0.0, 0.0, 0.0, true);
        row("one more", "Rp", 2147483648.0, 0.0, 0.0, 0.0, false);
        row("with cents it holds less", "$", 2147483647.0, 0.0, 0.0, 0.0, false);
        row("twenty million dollars", "$", 20000000.0, 0.0, 0.0, 0.0, true);
        row("a total of amounts that fit", "Rp", 2e9, 1e9, 0.0, 0.0, false);
        row("cash and credit together", "Rp", 1000.0, 0.0, 2e9, 1e9, false);
        row("a change too large", "Rp", -2e9, 0.0, 1e9, 0.0, false);
    }
    void onlyWhatMoneyHoldsCanBeSaved()
    {
        QFETCH(QString, currency);
        FETCH(double, subtotal, tax, paid, credit);
        QFETCH(bool, fits);
        InvoiceTotals totals = totalsOf(currency, subtotal);
        totals.setAmount(InvoiceTotals::Tax, tax);
        totals.setPaid(paid);
        totals.setCredit(credit);
        QCOMPARE(totals.fits(), fits);
    }

    void aLineBeyondWhatMoneyHoldsIsNoticed_data()
    {
        const auto row = addColumns<double, int, bool>("price", "quantity", "fits");
        row("a dinner", 25000.0, 4, true);
        row("nothing ordered", 25000.0, 0, true);
        row("just within", 1000000.0, 2147, true);
        row("just beyond", 1000000.0, 2148, false);
        // 65536 times 65536 is zero in 32 bits.
        row("wrapped to nothing", 65536.0, 65536, false);
    }
    void aLineBeyondWhatMoneyHoldsIsNoticed()
    {
        QFETCH(double, price);
        QFETCH(int, quantity);
        EntityInvoiceDetail line;
        line.setPriceEach(new Money(&line, price, "Rp"));
        line.setQty(quantity);
        QTEST(line.totalFits(), "fits");
        line.recomputeTotal();
        if (line.totalFits())
            QCOMPARE(line.getTotal()->getAmount(), price * quantity);
    }

    void anInvoiceKeepsTheFiguresAndTurnsTheSignOfWhatIsDue()
    {
        InvoiceTotals totals = totalsOf("Rp", 1000);
        totals.setPercent(InvoiceTotals::Discount, 10);
        totals.setPercent(InvoiceTotals::Tax, 11);
        totals.setPercent(InvoiceTotals::Service, 5);
        totals.setPaid(1000);
        totals.setCredit(200);
        Invoice invoice;
        totals.writeTo(&invoice);
        QCOMPARE(invoice.getGrandTotal()->getAmount(), 1060.0);
        QCOMPARE(totals.change(), 140.0);
        QCOMPARE(invoice.getNetDue()->getAmount(), -140.0);

        InvoiceTotals again;
        again.readFrom(invoice);
        QCOMPARE(again.percent(InvoiceTotals::Service), 5.0);
        QCOMPARE(again.amount(InvoiceTotals::Service), 50.0);
        QCOMPARE(again.grandTotal(), 1060.0);
        QCOMPARE(again.change(), 140.0);
    }

    void theStatusFollowsTheMoney_data()
    {
        const auto row = addColumns<double, double, double, int, int>("paid", "credit", "grandTotal", "invoiceStatus",
                                                                      "orderStatus");
        row("nothing paid", 0.0, 0.0, 900.0, Invoice::UNPAID, EntityOrder::UNPAID);
        row("a deposit", 100.0, 0.0, 900.0, Invoice::PARTIALLY_PAID, EntityOrder::PARTIALY_PAID);
        row("exact", 900.0, 0.0, 900.0, Invoice::FULL_PAID, EntityOrder::PAID);
        row("with change", 1000.0, 0.0, 900.0, Invoice::FULL_PAID, EntityOrder::PAID);
        row("all on credit", 0.0, 900.0, 900.0, Invoice::FULL_PAID, EntityOrder::PAID);
        row("cash and credit", 400.0, 500.0, 900.0, Invoice::FULL_PAID, EntityOrder::PAID);
        row("one coin short", 899.0, 0.0, 900.0, Invoice::PARTIALLY_PAID, EntityOrder::PARTIALY_PAID);
        row("on the house", 0.0, 0.0, 0.0, Invoice::UNPAID, EntityOrder::UNPAID);
        row("beyond 32 bits together", 2e9, 2e9, 2e9, Invoice::FULL_PAID, EntityOrder::PAID);
    }
    void theStatusFollowsTheMoney()
    {
        FETCH(double, paid, credit, grandTotal);
        Invoice invoice;
        invoice.setAmountPaid(new Money(&invoice, paid, "Rp"));
        invoice.setOtherPayment(new Money(&invoice, credit, "Rp"));
        invoice.setGrandTotal(new Money(&invoice, grandTotal, "Rp"));
        setInvoiceStatus(&invoice);
        QTEST(invoice.getStatus(), "invoiceStatus");
        QTEST(orderStatusOfInvoice(invoice), "orderStatus");
    }
};

QTEST_MAIN(TestInvoiceTotals)
#include "tst_invoice_totals.moc"
