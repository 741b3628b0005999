#include "support/DatabaseTest.h"
#include "support/SalesRows.h"
#include "zavel/receivable/EntityPiutang.h"
#include "zavel/receivable/ReceivableFilter.h"
#include "zavel/service/BusinessPenjualan.h"

#include <QRandomGenerator>

namespace
{
/** The expected state of an invoice, calculated by the test. */
struct Paper
{
    int total;
    int paid;
    int other;
    int member;
    QDate date;

    [[nodiscard]] int due() const { return total - paid - other; }
    [[nodiscard]] int status() const { return paid + other == 0 ? 2 : due() <= 0 ? 1 : 3; }
};
} // namespace

/** Later payments of members and their effect on the invoices. */
class TestReceivables : public DatabaseTest
{
    Q_OBJECT

protected:
    void prepare() override
    {
        insertShop(*m_database);
        insertSeller(*m_database, 1, "ann");
        insert("member", "id=2, kode='M2', nama='Other'");
        m_sales = service<BusinessPenjualan>("Sales");
        m_paper.clear();
    }

private slots:
    void theBooksAgreeAfterAnyEvening_data() { addSeeds({1U, 2U, 3U}); }
    void theBooksAgreeAfterAnyEvening()
    {
        QFETCH(quint32, seed);
        QRandomGenerator chance(seed);
        const auto below = [&chance](int limit) { return static_cast<int>(chance.bounded(limit)); };
        const QStringList types{"TRD", "TRF", "TRP"};
        // What each payment paid of each invoice.
        QMap<int, QMap<int, int>> paper;
        const auto book = [this, &paper](const QMap<int, int>& lines) {
            for (int invoice : lines.keys()) {
                int other = 0;
                for (const QMap<int, int>& paid : qAsConst(paper))
                    other += paid.value(invoice);
                m_paper[invoice].other = other;
            }
        };

        for (int step = 0; step < 60; ++step) {
            const int member = 1 + below(2);
            const int action = paper.isEmpty() ? below(2) : std::min(below(7) / 2, 3);
            const int known = paper.isEmpty() ? 0 : paper.keys().at(below(paper.size()));
            if (action == 0) {
                const int total = 100 + below(900);
                // Some guests pay a part at once, in cash or with another credit.
                sell(types[below(3)], total, below(3) == 0 ? below(total) : 0, below(3) == 0 ? below(100) : 0, member);
            } else if (action == 1) {
                QList<EntityPiutangDetail*> lines;
                QMap<int, int> paid;
                for (const EntityPiutangDetail* open : m_sales->getUnpaidInvoicesForMember(member)) {
                    const int due = open->getAmountDue()->rawAmount();
                    if (due == 0 || below(2) == 0)
                        continue;
                    const int amount = below(2) == 0 ? due : 1 + below(due);
                    paid.insert(open->getInvoice()->getId(), amount);
                    lines.append(line(open->getInvoice()->getId(), amount));
                }
                if (lines.isEmpty())
                    continue;
                EntityPiutang* fresh = payment(member, lines);
                QVERIFY2(save(fresh), qPrintable(m_sales->takeErrors()));
                paper.insert(fresh->getId(), paid);
                book(paid);
            } else if (action == 2) {
                EntityPiutang* stored = m_sales->findPiutang(known);
                QVERIFY2(stored, qPrintable(m_sales->takeErrors()));
                QMap<int, int>& paid = paper[known];
                const QList<EntityPiutangDetail*> lines = stored->getDetails();
                for (EntityPiutangDetail* one : lines) {
                    const int invoice = one->getInvoice()->getId();
                    QCOMPARE(one->getAmountPaid()->rawAmount(), paid.value(invoice));
                    if (lines.size() > 1 && one == lines.last() && below(2) == 0) {
                        // Removed from the payment: its invoice is not updated.
                        stored->removeDetail(one);
                        paid.remove(invoice);
                        continue;
                    }
                    paid[invoice] = 1 + below(std::max(1, m_paper[invoice].due() + paid.value(invoice)));
                    one->setAmountPaid(rupiah(paid.value(invoice)));
                }
                QVERIFY2(save(stored), qPrintable(m_sales->takeErrors()));
                book(paid);
            } else {
                // The invoices keep the money.
                QVERIFY2(m_sales->remove(m_sales->findPiutang(known)), qPrintable(m_sales->takeErrors()));
                paper.remove(known);
            }
            compareWithPaper(member);
            if (QTest::currentTestFailed())
                QFAIL(qPrintable(QString("at step %1, action %2").arg(step).arg(action)));
        }
        QCOMPARE(count("piutang"), paper.size());
        QVERIFY(paper.size() > 1);
    }

    void aPaymentOfADeletedSaleCanStillBeDeleted()
    {
        const int gone = sell("TRD", 500, 0, 0, 1);
        const int kept = sell("TRF", 300, 0, 0, 1);
        EntityPiutang* paid = payment(1, {line(gone, 100), line(kept, 50)});
        QVERIFY(save(paid));
        Invoice sale;
        sale.setId(gone);
        sale.setInvoiceType("TRD");
        sale.setVersion(2);
        QVERIFY2(m_sales->deleteSales(&sale), qPrintable(m_sales->takeErrors()));
        QCOMPARE(m_sales->findPiutang(paid->getId())->getDetails().size(), 1);

        run("UPDATE piutang SET version = 2, updatedby = 1");
        QVERIFY(!m_sales->remove(paid));
        QVERIFY(m_sales->takeErrors().contains("piutang has been updated"));
        QCOMPARE(count("piutang_detail"), 2);
        QVERIFY2(m_sales->remove(m_sales->findPiutang(paid->getId())), qPrintable(m_sales->takeErrors()));
        QCOMPARE(count("piutang_detail"), 0);
        QCOMPARE(figures(kept), QString("50 250 3"));
    }

private:
    int sell(const QString& type, int total, int paid, int other, int member)
    {
        // Some of today, and some of tomorrow, which are not due yet.
        const Paper paper{total, paid, other, member, QDate::currentDate().addDays(m_paper.size() % 5 - 3)};
        const QString no = QString("%1-%2").arg(type).arg(m_paper.size() + 1);
        const int id =
            insertSale(*m_database, {no, type, total, paid, other, paper.status(), paper.date, "", 1, member});
        m_paper.insert(id, paper);
        return id;
    }

    EntityPiutangDetail* line(int invoice, int amount)
    {
        auto* line = new EntityPiutangDetail(m_records.get());
        line->setInvoice(known<Invoice>(invoice));
        line->setAmountPaid(rupiah(amount));
        line->setAmountDue(rupiah(m_paper.value(invoice).due() - amount));
        return line;
    }

    EntityPiutang* payment(int member, const QList<EntityPiutangDetail*>& lines)
    {
        auto* payment = new EntityPiutang(m_records.get());
        payment->setMember(known<EntityMember>(member));
        payment->setDate(QDate(2026, 3, 2));
        payment->setDetails(lines);
        return payment;
    }

    bool save(EntityPiutang* payment)
    {
        int total = 0;
        for (const EntityPiutangDetail* line : payment->getDetails())
            total += line->getAmountPaid()->rawAmount();
        payment->setGrandTotal(rupiah(total));
        return payment->isSaved() ? m_sales->updatePiutang(payment) : m_sales->insert(payment);
    }

    void compareWithPaper(int member)
    {
        QMap<int, int> open;
        for (auto it = m_paper.cbegin(); it != m_paper.cend(); ++it) {
            QCOMPARE(figures(it.key()), QString("%1 %2 %3").arg(it->other).arg(it->due()).arg(it->status()));
            if (it->member == member && it->status() != Invoice::FULL_PAID && it->date <= QDate::currentDate())
                open.insert(it.key(), it->due());
        }
        QMap<int, int> offered;
        for (const EntityPiutangDetail* line : m_sales->getUnpaidInvoicesForMember(member)) {
            QCOMPARE(line->getAmountPaid()->rawAmount(), 0);
            offered.insert(line->getInvoice()->getId(), line->getAmountDue()->rawAmount());
        }
        QCOMPARE(offered, open);
    }

    QString figures(int invoice)
    {
        return value(
            QString("SELECT concat_ws(' ', other_payment_amount, net_due_amount, status) FROM invoice WHERE id = %1")
                .arg(invoice));
    }

    BusinessPenjualan* m_sales = nullptr;
    QMap<int, Paper> m_paper;
};

QTEST_MAIN(TestReceivables)
#include "tst_receivables.moc"
