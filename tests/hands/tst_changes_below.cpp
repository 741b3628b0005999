#include "hands/Keys.h"
#include "hands/TradeChecks.h"
#include "hands/Workplace.h"
#include "kor/widgets/KorTab.h"
#include "shell/window/HouseStyle.h"
#include "support/DatabaseTest.h"

namespace
{
/** A change behind an open page or form. */
enum Change { EmptyMemory, OtherDatabase, OtherLanguage, LostConnection, PagesClose, WindowCloses };
} // namespace
Q_DECLARE_METATYPE(Change)

/**
 * Every page, alone and with a form open, during such a change: the program does not crash, the form keeps its input,
 * and the page works again afterwards.
 */
class TestChangesBelow : public DatabaseTest
{
    Q_OBJECT

protected:
    void prepare() override
    {
        // The test itself handles the forms.
        m_people.reset();
        m_folder = std::make_unique<QTemporaryDir>();
        m_other = std::make_unique<TestDatabase>();
        openShopForHands(*m_other);
        openShopForHands(*m_database);
        m_place = std::make_unique<Workplace>(m_folder->filePath("settings.ini"));
        QVERIFY(m_place->isReady());
    }
    void tidy() override
    {
        m_place.reset();
        m_other.reset();
        m_folder.reset();
    }

private slots:
    void initTestCase()
    {
        HouseStyle::apply(*qApp);
        connect(&m_hands, &QTimer::timeout, this, &TestChangesBelow::atAForm);
        m_hands.start(1);
    }

    void thePageAndItsFormOutliveIt_data()
    {
        const auto row = addColumns<Change>("change");
        row("the memory is emptied", EmptyMemory);
        row("another database is chosen", OtherDatabase);
        row("another language is chosen", OtherLanguage);
        row("the connection dies", LostConnection);
        row("all pages are closed", PagesClose);
        row("the window is closed", WindowCloses);
    }
    void thePageAndItsFormOutliveIt()
    {
        QFETCH(Change, change);
        const QStringList names = Workplace::pageNames();
        for (const QString& name : names) {
            for (int key : {Qt::Key_F12, Qt::Key_F2}) {
                const QPointer<KorTab> page = m_place->open(name);
                m_change = change;
                strikeKey(key);
                rest();
                QVERIFY2(!m_isFormGone, qPrintable(name + ": the form went away"));
                m_change.reset();
            }
            // Only the page: it reads again and shows the new data.
            m_place->open(name);
            happen(change);
            m_place->window().grab();
            strikeKey(Qt::Key_F5);
            rest();
            m_place->open(name);
            m_place->window().grab();
            rest();
        }
        const QStringList faults = faultsOfTrade(*m_database);
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join('\n')));
    }

    void memoryIsEmptiedWithAllPagesOpen()
    {
        const QStringList names = Workplace::pageNames();
        for (const QString& name : names)
            m_place->open(name);
        AppContext::instance()->resetEntityPool();
        auto* pages = m_place->window().findChild<QTabWidget*>("tabWidget");
        for (int index = 0; index < pages->count(); ++index) {
            pages->setCurrentIndex(index);
            m_place->window().grab();
        }
        m_place->window().closeAllTab();
        QCOMPARE(pages->count(), 0);
    }

private:
    void happen(Change change)
    {
        switch (change) {
        case EmptyMemory:
            AppContext::instance()->resetEntityPool();
            break;
        case OtherDatabase:
            connectTo(AppContext::instance()->dbName() == m_other->name() ? *m_database : *m_other);
            break;
        case OtherLanguage:
            m_place->changeLanguage();
            break;
        case LostConnection:
            m_database->killConnections();
            break;
        case PagesClose:
            m_place->window().closeAllTab();
            break;
        case WindowCloses:
            m_place->window().close();
            break;
        }
    }

    /** At the open form: applies the change and then continues typing, or cancels the form. */
    void atAForm()
    {
        QWidget* form = openForm();
        if (!form)
            return;
        if (!m_change) {
            // Closes message boxes and forms.
            strikeSoon(Qt::Key_Escape);
            return;
        }
        const QPointer<QWidget> still(form);
        const Change change = *m_change;
        m_change.reset();
        happen(change);
        strikeKey('1', "1");
        strikeKey(Qt::Key_Tab);
        m_isFormGone = !still || !(still->isVisible() || openForm());
        strikeSoon(Qt::Key_Return);
    }

    static void rest()
    {
        do
            QCoreApplication::processEvents();
        while (openForm());
    }

    void connectTo(const TestDatabase& database)
    {
        QVERIFY(database.settings().write(m_folder->filePath("settings.ini")));
        m_place->window().updateDBConfig();
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<TestDatabase> m_other;
    std::unique_ptr<Workplace> m_place;
    QTimer m_hands;
    std::optional<Change> m_change;
    bool m_isFormGone = false;
};

QTEST_MAIN(TestChangesBelow)
#include "tst_changes_below.moc"
