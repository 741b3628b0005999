#include "forms/AllForms.h"
#include "hands/Keys.h"
#include "hands/Workplace.h"
#include "kor/widgets/KorTab.h"
#include "shell/window/HouseStyle.h"
#include "support/DatabaseTest.h"

namespace
{
// At once, before a button's pressed state ends, and just after it.
const QList<int> delays{0, 40, 120};

/** A delay matters only for keys that open a form; with these keys the page below is affected most. */
bool isWorthAPause(const Stroke& first, const Stroke& second)
{
    const bool hits = second.key == 0 || second.key == Qt::Key_Escape || second.key == Qt::Key_Return ||
                      second.key == Qt::Key_F5 || second.key == Qt::Key_F12;
    return first.opens() && hits && first.key != second.key;
}

bool has(const QList<Stroke>& strokes, const Stroke& wanted)
{
    return std::any_of(strokes.cbegin(), strokes.cend(),
                       [&wanted](const Stroke& stroke) { return stroke.key == wanted.key; });
}
} // namespace

/**
 * Any two keys of a page or form in quick succession: the program does not crash, no two forms are open side by side,
 * and the page exists as long as its form.
 */
class TestKeyBursts : public DatabaseTest
{
    Q_OBJECT

protected:
    void prepare() override
    {
        // The test itself handles the forms.
        m_people.reset();
        openShopForForms(*m_database);
        m_place = std::make_unique<Workplace>();
        QVERIFY(m_place->isReady());
        m_faults.clear();
    }
    void tidy() override { m_place.reset(); }

private slots:
    void initTestCase() { HouseStyle::apply(*qApp); }

    void twoKeysOfAPage_data() { addPages(); }
    void twoKeysOfAPage()
    {
        QFETCH(QString, page);
        const QList<Stroke> strokes = strokesOf(*m_place->open(page));
        for (const Stroke& first : strokes) {
            for (const Stroke& second : strokes) {
                for (int delay : delays) {
                    if (delay > 0 && !isWorthAPause(first, second))
                        continue;
                    Burst burst;
                    burst.play(m_place->open(page), first, second, delay);
                    QVERIFY2(burst.faults().isEmpty(), qPrintable(QString("%1, %2 after %3 ms: %4")
                                                                      .arg(first.name, second.name)
                                                                      .arg(delay)
                                                                      .arg(burst.faults().join(", "))));
                }
            }
        }
    }

    void twoKeysOfAForm_data() { addPages(); }
    void twoKeysOfAForm()
    {
        QFETCH(QString, page);
        const QList<Stroke> openers{{"F12", Qt::Key_F12}, {"F2", Qt::Key_F2}};
        for (const Stroke& opener : openers) {
            m_pair = 0;
            m_pairs = 1;
            while (m_pair < m_pairs) {
                // A pending Escape of the last round must not reach the next form.
                QCoreApplication::processEvents();
                KorTab* tab = m_place->open(page);
                m_pairs = 0;
                // In the form's own event loop, as soon as it is open; message boxes of the page after its end are
                // handled too.
                QTimer waiting;
                connect(&waiting, &QTimer::timeout, this, [this] {
                    QWidget* form = openForm();
                    if (m_pairs > 0 && form)
                        strikeSoon(Qt::Key_Escape);
                    else if (qobject_cast<QDialog*>(form) && form->isVisible())
                        inForm(form);
                });
                waiting.start(1);
                const QTableView* grid = gridInFront(*tab);
                const bool hasRow = grid && grid->model() && grid->model()->rowCount() > 0;
                const bool opens = has(strokesOf(*tab), opener) && (opener.key == Qt::Key_F12 || hasRow);
                strike(tab, opener);
                // Wait for a form that opens late: otherwise nothing would be tested in it.
                if (opens)
                    QTRY_VERIFY2(m_pairs > 0,
                                 qPrintable(QString("%1 opens nothing, at pair %2").arg(opener.name).arg(m_pair)));
                ++m_pair;
            }
        }
        QVERIFY2(m_faults.isEmpty(), qPrintable(m_faults.join('\n')));
    }

private:
    void addPages()
    {
        addColumns<QString>("page");
        const QStringList pages = Workplace::pageNames();
        for (const QString& page : pages)
            addRow(qPrintable(page), page);
    }

    /** Plays the next pair of keys in the form that has just opened; the page opens it once per pair. */
    void inForm(QWidget* form)
    {
        const QList<Stroke> strokes = strokesOf(*form);
        m_pairs = strokes.size() * strokes.size();
        const Stroke first = strokes.at(m_pair / strokes.size());
        const Stroke second = strokes.at(m_pair % strokes.size());
        const QPointer<QWidget> alive(form);
        if (QTableView* grid = gridInFront(*form); grid && grid->model() && grid->model()->rowCount() > 0)
            grid->selectRow(0);
        Burst burst;
        burst.play(form, first, second, 0);
        if (!burst.faults().isEmpty())
            m_faults.append(QString("%1, %2: %3").arg(first.name, second.name, burst.faults().join(", ")));
        if (alive && alive->isVisible())
            static_cast<QDialog*>(form)->QDialog::reject();
    }

    std::unique_ptr<Workplace> m_place;
    QStringList m_faults;
    int m_pair = 0;
    int m_pairs = 0;
};

QTEST_MAIN(TestKeyBursts)
#include "tst_key_bursts.moc"
