#include "app/context/AppContext.h"
#include "forms/AllForms.h"
#include "hands/Keys.h"
#include "kor/widgets/KorTab.h"
#include "shell/window/HouseStyle.h"
#include "shell/window/MainWindow.h"
#include "shell/window/TabFactories.h"
#include "support/TestDatabase.h"

#include <QApplication>
#include <QDialog>
#include <QTabWidget>
#include <QTableView>
#include <QTest>
#include <QTimer>

namespace
{
// Together, quicker than a button's light, and just behind it.
const QList<int> delays{0, 40, 120};

/** What can be overtaken later than at once is a form that opens, and by these keys the page below it is hit worst. */
bool isWorthAPause(const Stroke& first, const Stroke& second)
{
    const bool hits = second.key == 0 || second.key == Qt::Key_Escape || second.key == Qt::Key_Return ||
                      second.key == Qt::Key_F5 || second.key == Qt::Key_F12;
    return first.opens() && hits && first.key != second.key;
}
} // namespace

/**
 * Two keys of a page or of a form in a burst, whichever they are: the program lives, no two forms stand side by side,
 * and the page is there as long as its form is.
 */
class TestKeyBursts : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { HouseStyle::apply(*qApp); }
    void init();
    void cleanup();
    void twoKeysOfAPage_data() { addPages(); }
    void twoKeysOfAPage();
    void twoKeysOfAForm_data() { addPages(); }
    void twoKeysOfAForm();

private:
    void addPages();
    KorTab* open(const QString& page);
    /** Plays the bursts of the form that has just opened, one a visit; false when there is none left. */
    void inForm(QWidget* form);

    std::unique_ptr<TestDatabase> m_database;
    std::unique_ptr<MainWindow> m_window;
    QStringList m_faults;
    int m_pair = 0;
    int m_pairs = 0;
};

void TestKeyBursts::init()
{
    m_database = std::make_unique<TestDatabase>();
    openShopForForms(*m_database);
    AppContext::instance()->setShowDashboard(false);
    m_window = std::make_unique<MainWindow>();
    AppContext::instance()->setMainWindow(m_window.get());
    m_window->show();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    m_faults.clear();
}

void TestKeyBursts::cleanup()
{
    AppContext::instance()->setMainWindow(nullptr);
    m_window.reset();
    m_database.reset();
}

void TestKeyBursts::addPages()
{
    QTest::addColumn<QString>("page");
    const TabFactories factories = allTabFactories();
    for (auto factory = factories.cbegin(); factory != factories.cend(); ++factory) {
        // The dashboard is a web page without keys of its own.
        if (factory.key() != "TabDashboard")
            QTest::newRow(qPrintable(factory.key())) << factory.key();
    }
}

KorTab* TestKeyBursts::open(const QString& page)
{
    m_window->openTab(page);
    m_window->activateWindow();
    auto* tab = qobject_cast<KorTab*>(m_window->findChild<QTabWidget*>("tabWidget")->currentWidget());
    if (QTableView* grid = gridInFront(*tab)) {
        grid->setFocus();
        if (grid->model() && grid->model()->rowCount() > 0)
            grid->selectRow(0);
    }
    return tab;
}

void TestKeyBursts::twoKeysOfAPage()
{
    QFETCH(QString, page);
    const QList<Stroke> strokes = strokesOf(*open(page));
    for (const Stroke& first : strokes) {
        for (const Stroke& second : strokes) {
            for (int delay : delays) {
                if (delay > 0 && !isWorthAPause(first, second))
                    continue;
                Burst burst;
                burst.play(open(page), first, second, delay);
                QVERIFY2(burst.faults().isEmpty(), qPrintable(QString("%1, %2 after %3 ms: %4")
                                                                  .arg(first.name, second.name)
                                                                  .arg(delay)
                                                                  .arg(burst.faults().join(", "))));
            }
        }
    }
}

void TestKeyBursts::inForm(QWidget* form)
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

void TestKeyBursts::twoKeysOfAForm()
{
    QFETCH(QString, page);
    const QList<Stroke> openers{{"F12", Qt::Key_F12}, {"F2", Qt::Key_F2}};
    for (const Stroke& opener : openers) {
        m_pair = 0;
        m_pairs = 1;
        while (m_pair < m_pairs) {
            KorTab* tab = open(page);
            m_pairs = 0;
            // In the form's own loop, as soon as it is there; what the page says when it is closed is heard out.
            QTimer waiting;
            connect(&waiting, &QTimer::timeout, this, [this] {
                QWidget* form = openForm();
                if (m_pairs > 0 && form)
                    strikeSoon(Qt::Key_Escape);
                else if (qobject_cast<QDialog*>(form) && form->isVisible())
                    inForm(form);
            });
            waiting.start(1);
            strike(tab, opener);
            ++m_pair;
        }
    }
    QVERIFY2(m_faults.isEmpty(), qPrintable(m_faults.join('\n')));
}

QTEST_MAIN(TestKeyBursts)
#include "tst_key_bursts.moc"
