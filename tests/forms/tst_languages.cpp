#include "forms/AllForms.h"
#include "forms/FormTexts.h"
#include "kor/widgets/KorTab.h"
#include "shell/window/InterfaceLanguage.h"
#include "shell/window/MainWindow.h"
#include "shell/window/Pages.h"
#include "support/DatabaseTest.h"
#include "support/InstallerRun.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QSet>
#include <QWebElement>
#include <QWebFrame>
#include <QWebView>

#include <algorithm>

namespace
{
/** True for numbers and words that are the same in both languages. */
bool isAlike(QString text)
{
    static const QSet<QString> alike{"English", "Indonesian", "ZavelPOS", "CSV",      "E-mail", "ENTER", "Email",
                                     "Format",  "Host",       "ID",       "Id",       "Login",  "Logo",  "Margin",
                                     "Menu",    "No",         "OK",       "Operator", "PDF",    "Port",  "Printer",
                                     "Saldo",   "Status",     "SubTotal", "Subtotal", "Total"};
    static const QRegularExpression marks("\\[F\\d+\\]|[\\s:.%&*]");
    static const QRegularExpression figures("^(Rp)?[^A-Za-z]*$|^[A-Z]$|^(Alt|Ctrl)\\+");
    return figures.match(text).hasMatch() || alike.contains(text.remove(marks)) || text.startsWith("Qt5");
}
/** Empty when both hold the same texts. */
QString difference(QStringList actual, QStringList expected)
{
    const QStringList all = actual;
    for (const QString& text : qAsConst(expected))
        actual.removeOne(text);
    for (const QString& text : all)
        expected.removeOne(text);
    return actual.isEmpty() && expected.isEmpty() ? QString()
                                                  : actual.join(" | ") + " instead of " + expected.join(" | ");
}

/** The choices of the reports, which they read from the database on a separate thread. */
const QStringList expectedChoices{"Market", "Food", "admin", "1-100 Cash"};
constexpr int nextLook = 250;
constexpr int mostLooks = 40;

QStringList reportChoices(const MainWindow& window)
{
    QStringList choices;
    const QList<KorTab*> pages = window.findChildren<KorTab*>();
    for (KorTab* page : pages) {
        if (page->inherits("TabReport"))
            choices += listTexts(page);
    }
    return choices;
}
} // namespace

/// Checks every page and dialog in both languages: created in them, and switched to them while open.
class TestLanguages : public DatabaseTest
{
    Q_OBJECT

protected:
    void prepare() override { m_language->load("en"); }

private slots:
    void initTestCase()
    {
        keepDatabase();
        openShopForForms(*m_database);
        AppContext::instance()->setShowDashboard(true);
        m_database->settings().putIntoContext();
        m_language =
            std::make_unique<InterfaceLanguage>(QCoreApplication::applicationDirPath() + "/languages", nullptr);
    }
    void cleanupTestCase() { m_language.reset(); }

    void nothingStaysEnglishInIndonesian_data()
    {
        const auto row = addColumns<int>("form");
        for (int i = 0; i < allForms().size(); ++i)
            row(allForms().at(i).name.constData(), i);
    }
    void nothingStaysEnglishInIndonesian()
    {
        QFETCH(int, form);
        const QStringList english = formTexts(allForms().at(form).make().get());
        m_language->load("id");
        const QStringList indonesian = formTexts(allForms().at(form).make().get());
        QCOMPARE(indonesian.size(), english.size());
        QStringList same;
        for (const QString& text : indonesian) {
            if (english.contains(text) && !isAlike(text) && !same.contains(text))
                same += text;
        }
        QVERIFY2(same.isEmpty(), qPrintable(same.join(" | ")));
    }

    void noTwoThingsInAFormAnswerToOneKey_data()
    {
        const auto row = addColumns<int, QString>("form", "code");
        for (int i = 0; i < allForms().size(); ++i) {
            for (const char* code : {"en", "id"})
                row(allForms().at(i).name + " in " + code, i, code);
        }
    }
    void noTwoThingsInAFormAnswerToOneKey()
    {
        QFETCH(int, form);
        QFETCH(QString, code);
        m_language->load(code);
        const std::unique_ptr<QWidget> made = allForms().at(form).make();
        QStringList keys = formKeys(made.get());
        // A page is in the main window, whose keys work there too.
        if (!made->isWindow() || made->inherits("KorTab"))
            keys += formKeys(allForms().last().make().get());
        QMap<QString, QStringList> users;
        for (const QString& key : qAsConst(keys))
            users[key.section(": ", 0, 0)] += key.section(": ", 1);
        QStringList clashes;
        for (auto user = users.cbegin(); user != users.cend(); ++user) {
            if (user->size() > 1)
                clashes += user.key() + ": " + user->join(" and ");
        }
        QVERIFY2(clashes.isEmpty(), qPrintable(clashes.join(" | ")));
    }

    void noTwoEntriesOfAMenuMarkOneLetter()
    {
        for (const char* code : {"en", "id"}) {
            m_language->load(code);
            const MainWindow window;
            QList<QWidget*> menus{window.menuBar()};
            for (QMenu* menu : window.findChildren<QMenu*>())
                menus += menu;
            for (const QWidget* menu : qAsConst(menus)) {
                QSet<QString> marked;
                const QList<QAction*> entries = menu->actions();
                for (const QAction* entry : entries) {
                    const QString letter = QKeySequence::mnemonic(entry->text()).toString();
                    QVERIFY2(letter.isEmpty() || !marked.contains(letter), qPrintable(entry->text()));
                    marked.insert(letter);
                }
            }
        }
    }

    void whatIsOpenFollowsTheLanguage()
    {
        QStringList switched;
        {
            const auto window = makeWindowWithEverything();
            const QStringList english = textsOf(*window);
            choose(*window, "id");
            switched = textsOf(*window);
            QVERIFY(switched != english);
            choose(*window, "en");
            QCOMPARE(difference(textsOf(*window), english), QString());
        }
        m_language->load("id");
        const auto window = makeWindowWithEverything();
        QCOMPARE(difference(switched, textsOf(*window)), QString());
    }

    void aDatabaseInstalledInIndonesianIsComplete()
    {
        // Names of rights are stored in the installation's language and must be unique.
        TestDatabase database(TestDatabase::Empty);
        m_language->load("id");
        const InstallerRun run(KorInstaller::FreshInstall);
        QCOMPARE(run.failures + run.errors, QStringList());
        for (const char* table : {"permissions", "access", "keytable"}) {
            const QString count = QString("select count(*) from %1").arg(table);
            QCOMPARE(database.value(count), m_database->value(count));
        }
    }

private:
    std::unique_ptr<MainWindow> makeWindowWithEverything()
    {
        auto window = std::make_unique<MainWindow>();
        AppContext::instance()->setMainWindow(window.get());
        for (const Page& page : allPages())
            window->openTab(page.className);
        for (const char* report :
             {"actionMaster_Data", "actionPersediaan", "actionPembelian", "actionPenjualan", "actionKas"})
            window->findChild<QAction*>(report)->trigger();
        window->openTab("TabMeja");
        return window;
    }

    static void choose(const MainWindow& window, const QString& code)
    {
        for (QAction* entry : window.findChild<QMenu*>("menuLanguage_2")->actions()) {
            if (entry->data() == code)
                entry->trigger();
        }
    }

    static QStringList textsOf(MainWindow& window)
    {
        // Language changes and layout of pages are done by events.
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        const auto* dashboard = window.findChild<QWebView*>("webView")->page()->mainFrame();
        // Each report reads its choices on a separate thread, a whole list at a time.
        QStringList texts;
        const auto isComplete = [&window, &texts, dashboard] {
            const QStringList former = texts;
            texts = formTexts(&window) + listTexts(&window);
            const QStringList choices = reportChoices(window);
            const bool anyMissing =
                dashboard->findFirstElement("#today").toPlainText().isEmpty() ||
                std::any_of(expectedChoices.cbegin(), expectedChoices.cend(),
                            [&choices](const QString& choice) { return !choices.contains(choice); });
            return !anyMissing && texts == former;
        };
        for (int look = 0; look < mostLooks; ++look) {
            if (isComplete())
                return texts;
            QTest::qWait(nextLook);
        }
        qWarning("The window does not become complete");
        return texts;
    }

    std::unique_ptr<InterfaceLanguage> m_language;
};

QTEST_MAIN(TestLanguages)
#include "tst_languages.moc"
