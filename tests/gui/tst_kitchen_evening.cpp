#include "pos/invoice/EntityInvoiceDetail.h"
#include "support/DatabaseTest.h"
#include "zavel/dinein/DialogBayarMakanDitempat.h"
#include "zavel/dinein/DialogMakanDitempat.h"
#include "zavel/dinein/TabBayarMakanDitempatDetail.h"
#include "zavel/dinein/TabMakanDitempat.h"
#include "zavel/dinein/TableModelMakanDitempat.h"
#include "zavel/order/OrderLinesTab.h"

#include <QRandomGenerator>

namespace
{
using Dishes = QMap<QString, int>;

/** A cook who follows the slips: the dishes that he must prepare, by table. */
struct Cook
{
    QString type;
    // True if the quantity of a line with a star is the whole one, not the added one.
    bool isToldFormer = false;
    QMap<QString, Dishes> knows;
};
} // namespace

/** Evenings with random orders: at any time, the slips tell each kitchen exactly which dishes the tables still want. */
class TestKitchenEvening : public DatabaseTest
{
    Q_OBJECT

protected:
    void prepare() override
    {
        m_make = std::make_unique<Builders>();
        m_items = {m_make->item("RICE", "Rice", 300), m_make->item("FISH", "Fish", 900),
                   m_make->item("TEA", "Tea", 80, EntityItem::SRV, "DRINK"),
                   m_make->item("COLA", "Cola", 90, EntityItem::SRV, "DRINK")};
        for (const char* code : {"t1", "t2", "t3", "t4"})
            m_make->table(code, code);
        m_cooks = {{"Stove", {"FOOD", false, {}}}, {"Bar", {"DRINK", true, {}}}};
        run("DELETE FROM appconfig WHERE appkey LIKE 'kitchen_printer%'");
        for (auto cook = m_cooks.cbegin(); cook != m_cooks.cend(); ++cook)
            run(QString(R"(INSERT INTO appconfig (appkey, is_json, appvalue, version) VALUES
            ('kitchen_printer_%1', true, '{"kitchen_name":"%1","printer_name":"%1","kode_jenis_item":"%2",
            "auto_print":"Yes","say_former":"%3","no_of_copy":"1","column_paper":"40","no_of_blank_lines":"0"}', 1))")
                    .arg(cook.key(), cook->type, cook->isToldFormer ? "Yes" : "No"));
        m_board = std::make_unique<TabMakanDitempat>();
        showForm(m_board.get());
    }
    void tidy() override { m_board.reset(); }

private slots:
    void everyDishReachesItsKitchenOnce_data() { addSeeds({1U, 3U}); }
    void everyDishReachesItsKitchenOnce()
    {
        QFETCH(quint32, seed);
        m_chance.seed(seed);
        m_slips = 0;
        for (int step = 0; step < 80; ++step) {
            const QString table = QString("t%1").arg(1 + below(4));
            const int what =
                m_database->value("SELECT count(*) FROM makan_ditempat o JOIN meja ON meja.id = meja_id WHERE "
                                  "o.status <> 6 AND kode = '" +
                                  table + "'")
                            .toInt() == 0
                    ? 0
                    : below(10);
            const int slips = m_slips;
            m_movedTo.clear();
            if (what < 3)
                order(table);
            else if (what < 7)
                edit(table);
            else if (what < 8)
                pay(table, below(2) == 0);
            else if (what < 9)
                cancel(table);
            else
                m_board->on_btnPrint_clicked();
            readSlips(what >= 3 && what < 7);
            if (QTest::currentTestFailed())
                return;
            QVERIFY(what < 7 || what == 8 || m_slips == slips);
            // Guests who have paid and gone want nothing more.
            for (auto cook = m_cooks.begin(); cook != m_cooks.end(); ++cook) {
                const QMap<QString, Dishes> now = wanted(cook->type);
                const QStringList known = cook->knows.keys();
                for (const QString& each : known) {
                    if (what == 7 && !now.contains(each))
                        cook->knows.remove(each);
                }
                if (cook->knows != now) {
                    QString told;
                    QDebug(&told) << cook.key() << "after step" << step << "of kind" << what << "knows" << cook->knows
                                  << "and is wanted" << now << m_people->lastText();
                    QFAIL(qPrintable(told));
                }
            }
        }
        QVERIFY(m_slips > 40);
    }

private:
    using Lines = EntityOrder::Lines;

    int below(int limit) { return int(m_chance.bounded(limit)); }
    EntityMakanDitempatDetail* someLine() { return m_make->line(m_items.at(below(m_items.size())), 1 + below(3)); }
    void choose(const QString& table)
    {
        auto* grid = m_board->findChild<QTableView*>("tblMeja");
        grid->selectRow(columnOf(grid, TableModelMakanDitempat::TableCode).lastIndexOf(table));
    }

    /** Adds an order, or more lines to the table's open order. */
    void order(const QString& table)
    {
        choose(table);
        m_people->expect<DialogMakanDitempat>([this](DialogMakanDitempat* form) {
            Lines lines{someLine()};
            EntityOrderDetail* more = someLine();
            if (more->itemId() != lines.first()->itemId())
                lines.append(more);
            form->findChild<OrderLinesTab*>()->setOrderLines(lines);
            form->accept();
        });
        m_board->on_btnAdd_clicked();
    }

    /** Changes a quantity or a wish, takes a dish off or moves to a free table, or all of it. */
    void edit(const QString& table)
    {
        choose(table);
        const int what = 1 + below(7);
        const QString other = QString("t%1").arg(1 + below(4));
        m_people->expect<DialogMakanDitempat>([this, what, other](DialogMakanDitempat* form) {
            auto* tab = form->findChild<OrderLinesTab*>();
            Lines lines = tab->orderLines();
            EntityOrderDetail* line = lines.at(below(lines.size()));
            if (what & 1)
                line->setQty(1 + below(5));
            if (what & 2 && lines.size() > 1) {
                tab->findChild<QTableView*>()->selectRow(below(lines.size()));
                m_people->answer(QMessageBox::Yes);
                tab->on_btnDelete_clicked();
            } else if (what & 2) {
                line->setDescription(line->getDescription().isEmpty() ? "no salt" : "");
            }
            const auto knows = [&other](const Cook& cook) { return !cook.knows.value(other).isEmpty(); };
            if (what & 4 && std::none_of(m_cooks.cbegin(), m_cooks.cend(), knows)) {
                m_movedTo = other;
                enter(form, "txtKode", other);
            }
            form->accept();
        });
        m_board->on_btnEdit_clicked();
    }

    void pay(const QString& table, bool apart)
    {
        choose(table);
        m_people->expect<DialogBayarMakanDitempat>([this, apart](DialogBayarMakanDitempat* form) {
            // A bill that is there already, and not of all that was ordered, is brought up to the order.
            EntityInvoiceDetail* line = form->findChild<TabBayarMakanDitempatDetail*>()->details().first();
            if (apart && line->getQty() > 0) {
                line->setQtySplit(1);
                line->setSplitGroup("1");
                m_people->answer(QMessageBox::Yes);
                m_people->answer(QMessageBox::Yes);
                m_people->expect<DialogBayarMakanDitempat>([](DialogBayarMakanDitempat* group) { group->reject(); });
                form->onSplitInvoice();
            } else {
                enter(form, "txtPaid", "99999");
                // The bill is printed, and the guests go.
                for (int question = 0; question < 3; ++question)
                    m_people->answer(QMessageBox::Yes);
                form->accept();
            }
            form->reject();
        });
        m_board->on_btnPay_clicked();
    }

    void cancel(const QString& table)
    {
        choose(table);
        m_people->answer(QMessageBox::Yes);
        m_board->on_btnDelete_clicked();
    }

    void readSlips(bool isEdit)
    {
        const QDir folder(m_spool->path());
        const QStringList jobs = folder.entryList({"*.slip"}, QDir::Files, QDir::Name);
        for (const QString& job : jobs) {
            QFile file(folder.filePath(job));
            QVERIFY(file.open(QIODevice::ReadOnly));
            const QString printer = job.section('-', 1, 1);
            if (m_cooks.contains(printer)) {
                read(m_cooks[printer], QString::fromUtf8(file.readAll()), isEdit);
                ++m_slips;
            }
            file.remove();
        }
    }

    void read(Cook& cook, const QString& slip, bool isEdit)
    {
        const auto found = [&slip](const char* pattern) {
            return QRegularExpression(pattern, QRegularExpression::MultilineOption).match(slip);
        };
        const QStringList trail = found("^Table  : (.*)$").captured(1).split('>');
        const QString table = trail.last();
        // Only the move of the last edit: slips also show earlier moves, and the old table may have new guests.
        if (table == m_movedTo && !cook.knows.contains(table) && cook.knows.contains(trail.at(trail.size() - 2)))
            cook.knows[table] = cook.knows.take(trail.at(trail.size() - 2));
        if (slip.contains("Order Cancelled.")) {
            QVERIFY2(cook.knows.remove(table) > 0, qPrintable("nothing to cancel: " + slip));
            return;
        }
        if (slip.contains("Moved from"))
            return;
        const bool isTakenBack = slip.contains("Taken back:");
        QRegularExpressionMatchIterator lines =
            QRegularExpression("^ +\\d+  (\\w+) +(\\*?)\\w+ +(\\d+)  $\\n(?:no salt *\\n)?(?:was (\\d+))?",
                               QRegularExpression::MultilineOption)
                .globalMatch(slip);
        QVERIFY2(lines.hasNext(), qPrintable("an empty slip: " + slip));
        while (lines.hasNext()) {
            const QRegularExpressionMatch line = lines.next();
            int& quantity = cook.knows[table][line.captured(1)];
            const int printed = line.captured(3).toInt();
            if (isTakenBack) {
                quantity -= printed;
            } else if (line.captured(2).isEmpty() || !(isEdit || cook.isToldFormer)) {
                quantity += printed;
            } else {
                QVERIFY2(!cook.isToldFormer || !line.captured(4).isEmpty(), qPrintable(slip));
                quantity = printed;
            }
            if (quantity == 0)
                cook.knows[table].remove(line.captured(1));
        }
        if (cook.knows.value(table).isEmpty())
            cook.knows.remove(table);
    }

    /** The dishes of the open orders, by item type. */
    QMap<QString, Dishes> wanted(const QString& type)
    {
        QMap<QString, Dishes> dishes;
        const QStringList rows =
            value("SELECT string_agg(concat_ws(' ', meja.kode, item.kode, line.qty), ',') FROM makan_ditempat_detail "
                  "line JOIN makan_ditempat o ON o.id = makan_ditempat_id AND o.status <> 6 JOIN meja ON meja.id = "
                  "meja_id JOIN item ON item.id = item_id JOIN jenis_item ON jenis_item.id = item.jenis WHERE "
                  "jenis_item.kode = '" +
                  type + "'")
                .split(',', Qt::SkipEmptyParts);
        for (const QString& row : rows)
            dishes[row.section(' ', 0, 0)][row.section(' ', 1, 1)] += row.section(' ', 2, 2).toInt();
        return dishes;
    }

    std::unique_ptr<TabMakanDitempat> m_board;
    QList<EntityItem*> m_items;
    QMap<QString, Cook> m_cooks;
    QRandomGenerator m_chance;
    /** Where the last edit has moved an order to. */
    QString m_movedTo;
    int m_slips = 0;
};

QTEST_MAIN(TestKitchenEvening)
#include "tst_kitchen_evening.moc"
