#include "pos/purchasing/creditnote/BusinessCreditNote.h"
#include "pos/purchasing/payment/BusinessPayment.h"
#include "pos/purchasing/payment/EntityPayment.h"
#include "pos/purchasing/purchase/BusinessPurchases.h"
#include "pos/purchasing/purchaseorder/BusinessPurchaseOrder.h"
#include "pos/purchasing/purchaseorder/EntityPurchaseOrder.h"
#include "support/DatabaseTest.h"

#include <QRandomGenerator>

namespace
{
/** The expected state of a purchase, calculated by the test. */
struct Paper
{
    int paid = 0;
    int later = 0;
    /** The received quantity by the line's id; every piece costs 10. */
    QMap<int, int> lines;

    [[nodiscard]] int total() const
    {
        int sum = 0;
        for (int qty : lines)
            sum += 10 * qty;
        return sum;
    }
    [[nodiscard]] int due() const { return total() - paid - later; }
    [[nodiscard]] int status() const
    {
        if (due() <= 0)
            return EntityAcquisition::FULL_PAID;
        return paid + later > 0 ? EntityAcquisition::PARTIALLY_PAID : EntityAcquisition::UNPAID;
    }
};
} // namespace

/** Due amounts of purchases, their rows on the stock card, and the search for purchases and orders. */
class TestPurchaseDues : public DatabaseTest
{
    Q_OBJECT

protected:
    void prepare() override
    {
        insertShop(*m_database);
        insertItem(*m_database, 2, "EGG", "Eggs");
        insert("supplier", "id=2, kode='S2', nama='Farm'");
        m_purchases = service<BusinessPurchases>("Purchases");
        m_orders = service<BusinessPurchaseOrder>("Purchase Order");
    }

private slots:
    void duesAndStockCardAgreeAfterAnyWeek_data() { addSeeds({1U, 2U, 3U}); }
    void duesAndStockCardAgreeAfterAnyWeek()
    {
        QFETCH(quint32, seed);
        QRandomGenerator chance(seed);
        const auto below = [&chance](int limit) { return static_cast<int>(chance.bounded(limit)); };
        QMap<int, Paper> paper;
        // The stock card keeps what deleted purchases had brought.
        QMap<int, int> card;
        const auto note = [&paper, &card](const EntityAcquisition* saved) {
            Paper& page = paper[saved->getId()];
            page.paid = saved->getAmountPaid()->rawAmount();
            page.lines.clear();
            for (const EntityAcquisitionDetail* line : saved->getDetails()) {
                page.lines.insert(line->getId(), line->getQty());
                card.insert(line->getId(), line->getQty());
            }
            for (const EntityAcquisitionDetail* line : saved->getRemovedDetails())
                card.remove(line->getId());
        };

        for (int step = 0; step < 50; ++step) {
            const int known = paper.isEmpty() ? 0 : paper.keys().at(below(paper.size()));
            const int action = paper.isEmpty() ? 0 : below(7);
            if (action <= 1) {
                EntityAcquisition* bought =
                    purchase({line(1 + below(9)), line(below(5), 2)}, below(3) == 0 ? below(150) : 0);
                QVERIFY2(save(bought), qPrintable(m_purchases->takeErrors()));
                note(bought);
            } else if (action <= 3) {
                EntityAcquisition* changed = stored(known);
                changed->setAmountPaid(rupiah(below(120)));
                if (below(2) == 0 && changed->getDetails().size() > 1)
                    changed->removeDetail(changed->getDetails().last());
                changed->getDetails().first()->setQty(1 + below(9));
                if (below(2) == 0)
                    changed->addDetail(line(below(9)));
                QVERIFY2(save(changed), qPrintable(m_purchases->takeErrors()));
                note(changed);
            } else if (action <= 5) {
                const int amount = below(60);
                paySomething(known, amount, action == 4);
                paper[known].later += amount;
            } else if (paper[known].later == 0) {
                QVERIFY2(m_purchases->remove(stored(known)), qPrintable(m_purchases->takeErrors()));
                paper.remove(known);
            }
            QStringList dues;
            for (auto it = paper.cbegin(); it != paper.cend(); ++it)
                dues.append(QString("%1 %2 %3 %4").arg(it.key()).arg(it->later).arg(it->due()).arg(it->status()));
            QCOMPARE(
                value("select string_agg(concat_ws(' ', id, other_payment_amount, net_due_amount, status), ', ' order "
                      "by id) from acquisition"),
                dues.join(", "));
            QStringList rows;
            for (auto it = card.cbegin(); it != card.cend(); ++it)
                rows.append(QString("%1 %2").arg(it.key()).arg(it.value()));
            QCOMPARE(journal(), rows.join(", "));
            QCOMPARE(value("select count(*) from acquisition_detail left join acquisition on acquisition.id = "
                           "acquisition_id where acquisition.id is null"),
                     QString("0"));
        }
    }

    void aPurchaseWithABadLineIsNotSavedAtAll()
    {
        EntityAcquisition* bought = purchase({line(3), line(1, 99)}, 0);
        QVERIFY(!save(bought));
        QVERIFY(!m_purchases->documentStands());
        QVERIFY(m_purchases->takeErrors().startsWith("error: insert Purchase detail failed.\r\n"));
        QCOMPARE(value("select count(*) from acquisition") + journal(), QString("0"));
        // The form keeps its input and can be saved when the line is corrected.
        bought->getDetails().last()->getItem()->setId(2);
        QVERIFY2(save(bought), qPrintable(m_purchases->takeErrors()));
    }

    void theListFindsPurchases_data()
    {
        const auto row =
            addColumns<int, QString, int, QString, QString>("status", "supplier", "field", "text", "found");
        using Filter = PurchasingFilter;
        row("all of the days, the latest first", 0, "", Filter::DocumentNo, "", "4 3 2");
        row("unpaid", 2, "", Filter::DocumentNo, "", "4 2");
        row("of one supplier", 0, "s2", Filter::DocumentNo, "", "4");
        row("of nobody", 0, "s", Filter::DocumentNo, "", "");
        row("by the digits of the number", 0, "", Filter::DocumentNo, "-03", "3");
        row("not by its letters", 0, "", Filter::DocumentNo, "NB-03", "");
        row("by a part of the supplier's code", 0, "", Filter::SupplierCode, "S", "4 3 2");
        row("by the supplier's number", 0, "", Filter::OtherNo, "fak", "2");
        row("a quote is a letter", 0, "", Filter::OtherNo, "' or '1'='1", "");
    }
    void theListFindsPurchases()
    {
        for (int id = 1; id <= 4; ++id)
            insertRows(*m_database, "acquisition",
                       QString("id=%1, no='NB-0%1', invoice_no=%2, purchase_date='2026-3-%1', due_date='2026-4-%3', "
                               "status=%4, supplier_id=%5")
                           .arg(id)
                           .arg(id == 2 ? "'FAK-9'" : "NULL")
                           .arg(9 - id)
                           .arg(id == 3 ? "1" : "2", id == 4 ? "2" : "1"));
        FETCH(int, status, field);
        FETCH(QString, supplier, text);
        const StatementCount statements;
        QStringList found;
        for (const EntityAcquisition* one : m_purchases->findAll(
                 {QDate(2026, 3, 2), QDate(2026, 3, 4), status, supplier, PurchasingFilter::Field(field), text}))
            found.append(one->getNo().right(1));
        QCOMPARE(statements.count(), 1);
        QTEST(found.join(' '), "found");

        QStringList pending;
        for (const EntityAcquisition* one : m_purchases->getPendingInvoiceBySupplier(known<EntitySupplier>(1)))
            pending.append(one->getNo());
        QCOMPARE(pending, (QStringList{"NB-02", "NB-01"}));
        QCOMPARE(m_purchases->findByNo("NB-03")->getId(), 3);
        QVERIFY(!m_purchases->findByNo("NB-05") && !m_purchases->hasError());
    }

    void theOtherListsFindTheirDocumentsTheSameWay_data()
    {
        const auto row = addColumns<QString, QString, QString>("table", "columns", "other");
        row("orders", "purchase_order", "purchase_date='2026-3-%1', ship_date='2026-3-9', status_id=%1", "");
        row("notes", "credit_note", "credit_note_date='2026-3-%1', status=%1, acquisition_id=%1, bank_id=1", "fAk-2");
        row("payments", "payment", "payment_date='2026-3-%1', payment_type=%1, check_no='BCA-%1', bank_id=1", "bCa-2");
    }
    void theOtherListsFindTheirDocumentsTheSameWay()
    {
        FETCH(QString, table, columns, other);
        for (const char* id : {"1", "2"}) {
            insertRows(*m_database, "acquisition", QString("id=%1, no='NB-%1', invoice_no='FAK-%1'").arg(id));
            insertRows(*m_database, table, QString("id=%1, no='X-%1', supplier_id=%1, " + columns).arg(id));
        }
        const auto found = [&table = table](int from, int kind, const char* supplier, PurchasingFilter::Field field,
                                            const QString& text) {
            const auto numbers = [filter = PurchasingFilter{QDate(2026, 3, from), QDate(2026, 3, 2), kind, supplier,
                                                            field, text}](auto* documents) {
                QString all;
                for (const auto* one : documents->findAll(filter))
                    all += one->getNo().right(1);
                return all + documents->takeErrors();
            };
            return table == "payment"       ? numbers(service<BusinessPayment>("Payment"))
                   : table == "credit_note" ? numbers(service<BusinessCreditNote>("Credit Note"))
                                            : numbers(service<BusinessPurchaseOrder>("Purchase Order"));
        };
        using Filter = PurchasingFilter;
        QCOMPARE(found(1, 0, "", Filter::DocumentNo, ""), QString("21"));
        QCOMPARE(found(2, 0, "", Filter::DocumentNo, ""), QString("2"));
        QCOMPARE(found(1, 1, "", Filter::DocumentNo, ""), QString("1"));
        QCOMPARE(found(1, 0, "s2", Filter::DocumentNo, ""), QString("2"));
        QCOMPARE(found(1, 0, "", Filter::DocumentNo, "-1"), QString("1"));
        QCOMPARE(found(1, 0, "", Filter::SupplierCode, "2"), QString("2"));
        if (!other.isEmpty())
            QCOMPARE(found(1, 0, "", Filter::OtherNo, other), QString("2"));
    }

    void openOrdersAreThoseThatCanStillBeReceived()
    {
        for (int status = 1; status <= 6; ++status)
            insertOrder(status, status);
        insertOrder(7, 2, 2);
        QStringList open;
        for (const EntityPurchaseOrder* order : m_orders->getOpenBySupplier(known<EntitySupplier>(1)))
            open.append(order->getNo());
        QCOMPARE(open, (QStringList{"PO-1", "PO-2", "PO-4"}));
        QCOMPARE(m_orders->findAll({QDate(2026, 3, 1), QDate(2026, 3, 1), 2, "s2", {}, {}}).size(), 1);
        QCOMPARE(m_orders->findByNo("PO-7")->getSupplier()->getNama(), QString("Farm"));
    }

    void anOrderWithABadLineGivesItsNumberBack()
    {
        insertOrder(7, 2);
        auto* order = static_cast<EntityPurchaseOrder*>(m_orders->find(7));
        order->setId(KorNoValue);
        auto* line = new EntityPurchaseOrderDetail(order);
        line->setItem(known<EntityItem>(99));
        line->setJumlah(3);
        line->setPrice(rupiah(10));
        line->setDiscount(rupiah(0));
        line->setTotalPrice(rupiah(30));
        order->setDetails({line});
        QVERIFY(!m_orders->insert(order));
        QVERIFY(m_orders->takeErrors().startsWith("error: insert PO detail failed"));
        QVERIFY(!order->isSaved());
        QCOMPARE(value("select count(*) || ' ' || (select next_id from keytable where key_name = 'PO') from "
                       "purchase_order"),
                 QString("1 7"));
        run("DELETE FROM keytable");
        QVERIFY(!m_orders->insert(order));
        const QString told = m_orders->takeErrors();
        QVERIFY2(told.startsWith("error: insert PO failed") && told.contains("Can not draw a new number for PO"),
                 qPrintable(told));
    }

    void anOrderThatWasBoughtCannotBeDeleted()
    {
        insertOrder(1, 2);
        insertRows(*m_database, "purchase_order_detail", "purchase_order_id=1", 2);
        insertRows(*m_database, "acquisition", "no='NB-5', po_id=1");
        QVERIFY(!m_orders->remove(m_orders->find(1)));
        QCOMPARE(m_orders->takeErrors(),
                 QString("There is already purchase transaction using this PO, please delete it "
                         "first: Purchase No: NB-5\r\n"));
        run("DELETE FROM acquisition");
        QVERIFY2(m_orders->remove(m_orders->find(1)), qPrintable(m_orders->takeErrors()));
        QCOMPARE(value("select count(*) from purchase_order_detail"), QString("0"));
    }

private:
    EntityAcquisitionDetail* line(int qty, int item = 1)
    {
        auto* line = new EntityAcquisitionDetail(m_records.get());
        line->setItem(known<EntityItem>(item));
        line->setQty(qty);
        line->setPriceEach(rupiah(10));
        line->setDiscount(rupiah(0));
        line->recomputeTotal();
        return line;
    }

    EntityAcquisition* purchase(const QList<EntityAcquisitionDetail*>& lines, int paid)
    {
        auto* purchase = new EntityAcquisition(m_records.get());
        purchase->setSupplier(known<EntitySupplier>(1));
        purchase->setBank(known<EntityBank>(1));
        purchase->setPurchaseDate(QDate(2026, 3, 3));
        purchase->setDueDate(QDate(2026, 4, 3));
        purchase->setDiscount(rupiah(0));
        purchase->setTax(rupiah(0));
        purchase->setOtherPayment(rupiah(0));
        purchase->setAmountPaid(rupiah(paid));
        purchase->setDetails(lines);
        return purchase;
    }

    /** Sums up the lines and saves. */
    bool save(EntityAcquisition* purchase)
    {
        double total = 0;
        for (EntityAcquisitionDetail* line : purchase->getDetails()) {
            line->recomputeTotal();
            total += line->getTotalPrice()->rawAmount();
        }
        purchase->setSubtotal(rupiah(total));
        purchase->setGrandTotal(rupiah(total));
        purchase->setNetDue(
            rupiah(total - purchase->getAmountPaid()->rawAmount() - purchase->getOtherPayment()->rawAmount()));
        return purchase->isSaved() ? m_purchases->update(purchase) : m_purchases->insert(purchase);
    }

    EntityAcquisition* stored(int id) { return static_cast<EntityAcquisition*>(m_purchases->find(id)); }
    void paySomething(int purchase, int amount, bool byNote)
    {
        const QString id = QString::number(purchase);
        const QString paid = QString::number(amount);
        if (byNote) {
            insert("credit_note", QString("acquisition_id=%1, amount_paid_amount=%2, bank_id=1").arg(id, paid));
            // Without an account it counts nowhere.
            insert("credit_note", QString("acquisition_id=%1, amount_paid_amount=9").arg(id));
        } else {
            if (count("payment") == 0)
                insert("payment", "id=1");
            insert("payment_invoice", QString("payment_id=1, acquisition_id=%1, amount_paid_amount=%2").arg(id, paid));
        }
        QVERIFY2(m_purchases->recalculateDue(purchase), qPrintable(m_purchases->takeErrors()));
    }

    QString journal()
    {
        return value("select string_agg(concat_ws(' ', tran_id, qty_in), ', ' order by tran_id) from "
                     "item_history where tran_type = 1 and no like 'NB-%'");
    }
    void insertOrder(int id, int status, int supplier = 1)
    {
        insertRows(
            *m_database, "purchase_order",
            QString("id=%1, no='PO-%1', purchase_date='2026-3-1', ship_date='2026-3-2', supplier_id=%2, status_id=%3")
                .arg(id)
                .arg(supplier)
                .arg(status));
    }

    BusinessPurchases* m_purchases = nullptr;
    BusinessPurchaseOrder* m_orders = nullptr;
};

QTEST_MAIN(TestPurchaseDues)
#include "tst_purchase_dues.moc"
