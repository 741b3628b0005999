#include "pos/inventory/stock/BusinessInventory.h"
#include "pos/purchasing/creditnote/BusinessCreditNote.h"
#include "pos/purchasing/purchase/EntityAcquisition.h"
#include "support/DatabaseTest.h"
#include "support/PurchasingRows.h"

#include <random>

namespace
{
const QDate today(2026, 3, 10);
constexpr int purchaseTotal = 1000;
constexpr int paidAtOnce = 200;

/** The expected state of one purchase, calculated by the test. */
QString bookOf(int credits)
{
    const int due = purchaseTotal - paidAtOnce - credits;
    return QString("%1 %2 %3").arg(credits).arg(due).arg(due <= 0 ? 1 : 3);
}
} // namespace

/** What a credit note does to the purchase it is for, to the stock and to the journal. */
class TestCreditNotes : public DatabaseTest
{
    Q_OBJECT

protected:
    void prepare() override
    {
        insertShop(*m_database);
        m_notes = service<BusinessCreditNote>("Credit Note");
        m_inventory = service<BusinessInventory>("Inventory");
    }

private slots:
    void theStateFollowsWhatCameBack_data()
    {
        const auto row = addColumns<int, int, int>("paid", "before", "after");
        using Note = EntityCreditNote;
        row("nothing yet", 0, Note::UNPAID, Note::PARTIALLY_PAID);
        row("a part", 499, Note::FULL_PAID, Note::PARTIALLY_PAID);
        row("all", 500, Note::UNPAID, Note::FULL_PAID);
        row("more", 501, Note::PARTIALLY_PAID, Note::FULL_PAID);
        row("cancelled", 500, Note::CANCELLED, Note::CANCELLED);
    }
    void theStateFollowsWhatCameBack()
    {
        FETCH(int, paid, before);
        EntityCreditNote* saved = note(KorNoValue, paid);
        saved->setStatus(before);
        save(saved);
        QTEST(value("SELECT status FROM credit_note").toInt(), "after");
        QCOMPARE(value("SELECT no FROM credit_note"), QString("NR-0007"));
    }

    void everyPurchaseIsDueWhatTheBookSays_data() { addSeeds({1u, 20u, 300u}); }
    void everyPurchaseIsDueWhatTheBookSays()
    {
        QFETCH(quint32, seed);
        std::mt19937 dice(seed);
        const auto roll = [&dice](int sides) { return int(dice() % uint(sides)); };
        const QList<int> purchases{purchase(), purchase(), KorNoValue};
        QMap<int, QPair<int, int>> notes; // what each note gave, and for which purchase
        QMap<int, int> credits;
        const auto reckon = [&](int purchase) {
            credits[purchase] = 0;
            for (const auto& given : qAsConst(notes))
                credits[purchase] += given.second == purchase ? given.first : 0;
        };
        for (int step = 0; step < 40; ++step) {
            const int target = purchases.at(roll(purchases.size()));
            const int paid = roll(500);
            if (notes.isEmpty() || roll(3) == 0) {
                EntityCreditNote* added = note(target, paid);
                save(added);
                notes.insert(added->getId(), {paid, target});
                reckon(target);
                continue;
            }
            const int id = notes.keys().at(roll(notes.size()));
            EntityCreditNote* changed = stored(id);
            QVERIFY(changed);
            if (roll(4) == 0) {
                // Deleting a note does not change the due amount until the next save of a note.
                QVERIFY2(m_notes->remove(changed), qPrintable(m_notes->takeErrors()));
                notes.remove(id);
            } else {
                const int former = notes.value(id).second;
                changed->setAmountPaid(rupiah(paid));
                changed->setAcquisitionId(target);
                // A cancelled note counts like any other.
                if (roll(3) == 0)
                    changed->setStatus(EntityCreditNote::CANCELLED);
                save(changed);
                notes[id] = {paid, target};
                reckon(former);
                reckon(target);
            }
            for (int i = 0; i < 2; ++i) {
                const QString due =
                    value(QString("SELECT concat_ws(' ', other_payment_amount, net_due_amount, status) FROM "
                                  "acquisition WHERE id = %1")
                              .arg(purchases.at(i)));
                QCOMPARE(due, bookOf(credits.value(purchases.at(i))));
            }
        }
    }

    void whatGoesBackLeavesTheShelfAndTheJournalTells()
    {
        EntityCreditNote* saved = note(purchase(), 500);
        EntityCreditNoteDetail* ofPurchase = line(3, 1);
        EntityCreditNoteDetail* free = line(4);
        saved->setDetails({ofPurchase, free, line(0, 1)});
        save(saved);
        QCOMPARE(onHand(), 20 - 7);
        QCOMPARE(journal(),
                 QString("1 0 3 10 2026-03-10 NR-0007, 2 0 4 10 2026-03-10 NR-0007, 3 0 0 10 2026-03-10 NR-0007"));

        // Saved again after a change: what stays, what is new, what was taken off.
        EntityCreditNote* changed = stored(saved->getId());
        QCOMPARE(changed->getDetails().first()->getAcquisitionDetailId(), 1);
        QCOMPARE(changed->getDetails().at(1)->getAcquisitionDetailId(), KorNoValue);
        changed->getDetails().first()->setQtyReturned(5);
        changed->removeDetail(changed->getDetails().at(1));
        changed->addDetail(line(6));
        run("DELETE FROM item_history WHERE tran_id = 3");
        save(changed);
        QCOMPARE(onHand(), 20 - 11);
        QCOMPARE(journal(),
                 QString("1 0 5 10 2026-03-10 NR-0007, 3 0 0 10 2026-03-10 NR-0007, 4 0 6 10 2026-03-10 NR-0007"));

        changed = stored(saved->getId());
        changed->setStatus(EntityCreditNote::CANCELLED);
        save(changed);
        QCOMPARE(onHand(), 20);

        QVERIFY2(m_notes->remove(stored(saved->getId())), qPrintable(m_notes->takeErrors()));
        QCOMPARE(value("SELECT count(*) FROM credit_note_detail"), QString("0"));
        // The stock card still shows the returned quantities.
        QCOMPARE(journal().count("NR-0007"), 3);
        QCOMPARE(value("SELECT other_payment_amount FROM acquisition"), QString("500"));
    }

    void aNoteThatFailsLeavesNothingBehind()
    {
        EntityCreditNote* failing = note(purchase(), 500);
        failing->setDetails({line(1), line(1, KorNoValue, 99)});
        QVERIFY(!m_notes->insert(failing));
        QVERIFY(!m_notes->documentStands());
        QVERIFY(m_notes->takeErrors().startsWith("error: insert credit note detail failed.\r\n"));
        QVERIFY(!failing->isSaved());
        QCOMPARE(value("SELECT concat((SELECT count(*) FROM credit_note), (SELECT count(*) FROM item_history), (SELECT "
                       "next_id FROM keytable WHERE key_name = 'NR'), (SELECT other_payment_amount FROM acquisition))"),
                 QString("0070"));
        failing->setDetails({line(1)});
        save(failing);
        QCOMPARE(failing->getNo(), QString("NR-0007"));
    }

    void aNoteStandsWhenItsPurchaseHasGone()
    {
        QVERIFY(!m_notes->insert(note(77, 100)));
        QVERIFY(m_notes->documentStands());
        QCOMPARE(m_notes->errors().keys(), QStringList("updatePurchaseNetDue"));
        QCOMPARE(m_notes->takeErrors(), QString("Can not find entity with id: 77\r\n"));
        // The journal is still written.
        QCOMPARE(journal(), QString("1 0 1 10 2026-03-10 NR-0007"));
    }

    void twoWorkstationsReturnGoodsOfOnePurchase_data()
    {
        const auto row = addColumns<int, QString>("timesLate", "due");
        row("the other one was faster twice", 2, "300 500");
        row("the other one never stops", 99, "0 800");
    }
    void twoWorkstationsReturnGoodsOfOnePurchase()
    {
        QFETCH(int, timesLate);
        const int returned = purchase();
        // If another workstation saves the purchase first, nothing is written.
        run(QString("CREATE SEQUENCE late; CREATE FUNCTION late() RETURNS trigger AS $$ BEGIN IF "
                    "nextval('late') <= %1 THEN RETURN NULL; END IF; RETURN NEW; END $$ LANGUAGE plpgsql; "
                    "CREATE TRIGGER late BEFORE UPDATE ON acquisition FOR EACH ROW EXECUTE FUNCTION late()")
                .arg(timesLate));
        QCOMPARE(m_notes->insert(note(returned, 300)), timesLate == 2);
        QVERIFY(m_notes->documentStands());
        QCOMPARE(m_notes->errors().keys(), timesLate == 2 ? QStringList() : QStringList("updatePurchaseNetDue"));
        QTEST(value("SELECT concat_ws(' ', other_payment_amount, net_due_amount) FROM acquisition"), "due");
    }

private:
    EntityCreditNoteDetail* line(int quantity, int purchaseLine = KorNoValue, int item = 1)
    {
        auto* line = new EntityCreditNoteDetail(m_records.get());
        line->setItem(known<EntityItem>(item));
        line->setQtyReturned(quantity);
        line->setAcquisitionDetailId(purchaseLine);
        line->setPriceEach(rupiah(10));
        line->setDiscount(rupiah(0));
        line->recomputeTotal();
        return line;
    }

    EntityCreditNote* note(int purchaseId, int paid, int total = 500)
    {
        auto* note = new EntityCreditNote(m_records.get());
        note->setDate(today);
        note->setSupplier(known<EntitySupplier>(1));
        note->setBank(known<EntityBank>(1));
        note->setAcquisitionId(purchaseId);
        note->setSubtotal(rupiah(total));
        note->setDiscount(rupiah(0));
        note->setGrandTotal(rupiah(total));
        note->setAmountPaid(rupiah(paid));
        note->setChange(rupiah(paid - total));
        note->setDetails({line(1)});
        return note;
    }

    EntityCreditNote* stored(int id) { return static_cast<EntityCreditNote*>(m_notes->find(id)); }
    void save(EntityCreditNote* note)
    {
        const bool saved = note->isSaved() ? m_notes->update(note) : m_notes->insert(note);
        QVERIFY2(saved, qPrintable(m_notes->takeErrors()));
    }

    int purchase() { return insertPurchase(*m_database, {"NB-1", "", paidAtOnce, 20, purchaseTotal / 20}); }
    int onHand() { return m_inventory->getQuantityOnHand(known<EntityItem>(1), today); }
    QString journal()
    {
        return value("SELECT string_agg(concat_ws(' ', tran_id, qty_in, qty_out, unit_price_amount, trans_date, no), "
                     "', ' ORDER BY tran_id) FROM item_history WHERE tran_type = 4");
    }

    BusinessCreditNote* m_notes = nullptr;
    BusinessInventory* m_inventory = nullptr;
};

QTEST_MAIN(TestCreditNotes)
#include "tst_credit_notes.moc"
