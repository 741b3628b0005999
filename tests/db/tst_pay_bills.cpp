#include "pos/inventory/stock/BusinessInventory.h"
#include "pos/purchasing/payment/BusinessPayment.h"
#include "pos/purchasing/payment/EntityPayment.h"
#include "pos/purchasing/purchase/BusinessPurchases.h"
#include "support/DatabaseTest.h"

#include <QRandomGenerator>

#include <algorithm>

namespace
{
/** The expected state of a purchase, calculated by the test. */
struct Paper
{
    int total;
    int paidAtPurchase;
    int credits;
    /** What was paid and credited later, as the purchase shows it. */
    int other;

    [[nodiscard]] int due() const { return total - paidAtPurchase - other; }
    [[nodiscard]] int status() const { return due() <= 0 ? 1 : paidAtPurchase + other > 0 ? 3 : 2; }
};
} // namespace

/** Payments to suppliers and the remaining due amounts of purchases. */
class TestPayBills : public DatabaseTest
{
    Q_OBJECT

protected:
    void prepare() override
    {
        insertShop(*m_database);
        m_payments = service<BusinessPayment>("Payment");
        m_purchases = service<BusinessPurchases>("Purchases");
        m_supplier = known<EntitySupplier>(1);
        m_paper.clear();
    }

private slots:
    void thePurchasesAgreeAfterAnyMonth_data() { addSeeds({1U, 2U, 3U}); }
    void thePurchasesAgreeAfterAnyMonth()
    {
        QFETCH(quint32, seed);
        QRandomGenerator chance(seed);
        const auto below = [&chance](int limit) { return static_cast<int>(chance.bounded(limit)); };
        // What each payment paid of each purchase.
        QMap<int, QMap<int, int>> paper;
        const auto reckon = [this, &paper](const QList<int>& purchases) {
            for (int purchase : purchases) {
                int other = m_paper[purchase].credits;
                for (const QMap<int, int>& paid : qAsConst(paper))
                    other += paid.value(purchase);
                m_paper[purchase].other = other;
            }
        };

        for (int step = 0; step < 40; ++step) {
            const int action = paper.isEmpty() ? below(2) : std::min(below(7) / 2, 3);
            const int known = paper.isEmpty() ? 0 : paper.keys().at(below(paper.size()));
            if (action == 0) {
                const int total = 100 + below(900);
                buy(total, below(3) == 0 ? below(total) : 0, below(3) == 0 ? 1 + below(50) : 0);
            } else if (action == 1) {
                EntityPayment* fresh = payment({});
                QMap<int, int> paid;
                for (int purchase : pending()) {
                    const int due = m_paper[purchase].due();
                    if (below(2) == 0)
                        continue;
                    paid[purchase] = below(2) == 0 ? due : 1 + below(2 * due);
                    fresh->invoices().addDetail(line(purchase, paid[purchase]));
                }
                if (below(3) == 0)
                    fresh->expenses().addDetail(expense(1 + below(3), 10));
                QVERIFY2(save(fresh), qPrintable(m_payments->takeErrors()));
                paper.insert(fresh->getId(), paid);
                reckon(paid.keys());
            } else if (action == 2) {
                EntityPayment* changed = stored(known);
                QVERIFY2(changed, qPrintable(m_payments->takeErrors()));
                QMap<int, int>& paid = paper[known];
                const QList<int> touched = paid.keys();
                QCOMPARE(changed->invoices().getDetails().size(), paid.size());
                for (EntityPaymentInvoices* one : QList<EntityPaymentInvoices*>(changed->invoices().getDetails())) {
                    const int purchase = one->getAcquisition()->getId();
                    QCOMPARE(one->getAmountPaid()->rawAmount(), paid.value(purchase));
                    if (below(4) == 0) {
                        changed->invoices().removeDetail(one);
                        paid.remove(purchase);
                        continue;
                    }
                    paid[purchase] = 1 + below(500);
                    one->setAmountPaid(rupiah(paid[purchase]));
                }
                QVERIFY2(save(changed), qPrintable(m_payments->takeErrors()));
                reckon(touched);
            } else {
                // The purchases keep the money.
                QVERIFY2(m_payments->remove(stored(known)), qPrintable(m_payments->takeErrors()));
                paper.remove(known);
            }
            QList<int> open;
            for (auto it = m_paper.cbegin(); it != m_paper.cend(); ++it) {
                QCOMPARE(figures(it.key()), QString("%1 %2 %3").arg(it->other).arg(it->due()).arg(it->status()));
                if (it->status() != EntityAcquisition::FULL_PAID)
                    open.append(it.key());
            }
            QCOMPARE(pending(), open);
        }
        QCOMPARE(count("payment"), paper.size());
        QVERIFY(paper.size() > 1);
    }

    void aDeletedPaymentLeavesItsPurchasesUntilTheyAreReckonedNext()
    {
        const int purchase = buy(500);
        EntityPayment* gone = payment({line(purchase, 500)});
        gone->expenses().addDetail(expense(1, 10));
        QVERIFY(save(gone));
        QVERIFY(!m_purchases->remove(m_purchases->find(purchase)));
        QCOMPARE(
            m_purchases->takeErrors(),
            QString("This purchase is paid, please delete the payment first: Payment No: %1\r\n").arg(gone->getNo()));
        QVERIFY2(m_payments->remove(stored(gone->getId())), qPrintable(m_payments->takeErrors()));
        QCOMPARE(count("payment") + count("payment_invoice") + count("payment_expense"), 0);
        QCOMPARE(figures(purchase), QString("500 0 1"));
        QVERIFY(m_purchases->recalculateDue(purchase));
        QCOMPARE(figures(purchase), QString("0 500 2"));
        QVERIFY2(m_purchases->remove(m_purchases->find(purchase)), qPrintable(m_purchases->takeErrors()));
    }

    void expensesMoveNoStock()
    {
        const auto onHand = [] {
            return service<BusinessInventory>("Inventory")->quantitiesOnHand(QDate::currentDate()).value(1);
        };
        const int before = onHand();
        EntityPayment* paid = payment({});
        paid->expenses().setDetails({expense(3, 100)});
        QVERIFY2(save(paid), qPrintable(m_payments->takeErrors()));
        EntityPayment* changed = stored(paid->getId());
        QCOMPARE(changed->expenses().getDetails().size(), 1);
        EntityPaymentExpenses* kept = changed->expenses().getDetails().first();
        QCOMPARE(kept->getAmount()->rawAmount(), 300);
        kept->setQty(5);
        QVERIFY2(save(changed), qPrintable(m_payments->takeErrors()));
        QCOMPARE(onHand(), before);
        QCOMPARE(count("item_history"), 0);
    }

    void whatFailsIsToldAndNothingIsHalfDone()
    {
        // The purchase was deleted meanwhile.
        EntityPayment* paid = payment({line(99, 100)});
        QVERIFY(!save(paid));
        QVERIFY(!m_payments->documentStands() && !paid->isSaved());
        QVERIFY(m_payments->takeErrors().startsWith("error: insert payment detail:invoice failed.\r\n"));
        QCOMPARE(count("payment"), 0);

        // The purchase cannot be updated; the payment stays saved.
        const int purchase = buy(500);
        run("CREATE FUNCTION refuse() RETURNS trigger AS $$ BEGIN RAISE EXCEPTION 'busy'; END $$ LANGUAGE "
            "plpgsql; CREATE TRIGGER refuse BEFORE UPDATE ON acquisition FOR EACH ROW EXECUTE FUNCTION refuse()");
        paid->invoices().setDetails({line(purchase, 100)});
        QVERIFY(!save(paid));
        QCOMPARE(m_payments->errors().keys(), QStringList("updatePurchase"));
        QVERIFY(m_payments->documentStands() && paid->isSaved());
        m_payments->clearErrors();

        // Another workstation changed the payment: it is neither saved nor partly deleted.
        run("UPDATE payment SET version = 2, updatedby = 1");
        QVERIFY(!m_payments->remove(paid));
        QVERIFY(m_payments->takeErrors().contains("payment has been updated"));
        QCOMPARE(count("payment_invoice"), 1);
    }

private:
    /** Inserts a purchase; returns its id. */
    int buy(int total, int paid = 0, int credits = 0)
    {
        const int id = m_paper.size() + 1;
        const Paper paper{total, paid, credits, 0};
        insert("acquisition", QString("no='NB-%1', supplier_id=1, bank_id=1, grandtotal_amount=%2, "
                                      "amount_paid_amount=%3, net_due_amount=%4, status=%5")
                                  .arg(id)
                                  .arg(total)
                                  .arg(paid)
                                  .arg(total - paid)
                                  .arg(paper.status()));
        if (credits > 0)
            insert("credit_note", QString("acquisition_id=%1, amount_paid_amount=%2, bank_id=1").arg(id).arg(credits));
        m_paper.insert(id, paper);
        return id;
    }

    EntityPaymentInvoices* line(int purchase, int amount)
    {
        auto* line = new EntityPaymentInvoices(m_records.get());
        line->setAcquisition(known<EntityAcquisition>(purchase));
        line->setAmountPaid(rupiah(amount));
        line->setAmountDue(rupiah(0));
        return line;
    }

    EntityPaymentExpenses* expense(int qty, int price)
    {
        auto* line = new EntityPaymentExpenses(m_records.get());
        line->setItem(known<EntityItem>(1));
        line->setQty(qty);
        line->setUnitPrice(rupiah(price));
        line->setDiscount(rupiah(0));
        line->recomputeTotal();
        return line;
    }

    EntityPayment* payment(const QList<EntityPaymentInvoices*>& lines)
    {
        auto* payment = new EntityPayment(m_records.get());
        payment->setSupplier(m_supplier);
        payment->setDate(QDate(2026, 3, 2));
        payment->setGrandTotal(rupiah(0));
        payment->invoices().setDetails(lines);
        return payment;
    }

    bool save(EntityPayment* payment)
    {
        return payment->isSaved() ? m_payments->update(payment) : m_payments->insert(payment);
    }

    EntityPayment* stored(int id) { return static_cast<EntityPayment*>(m_payments->find(id)); }
    QString figures(int purchase)
    {
        return value(QString("SELECT concat_ws(' ', other_payment_amount, net_due_amount, status) FROM acquisition "
                             "WHERE id = %1")
                         .arg(purchase));
    }

    QList<int> pending()
    {
        QList<int> ids;
        for (const EntityAcquisition* purchase : m_purchases->getPendingInvoiceBySupplier(m_supplier))
            ids.append(purchase->getId());
        std::sort(ids.begin(), ids.end());
        return ids;
    }

    BusinessPayment* m_payments = nullptr;
    BusinessPurchases* m_purchases = nullptr;
    QMap<int, Paper> m_paper;
    EntitySupplier* m_supplier = nullptr;
};

QTEST_MAIN(TestPayBills)
#include "tst_pay_bills.moc"
