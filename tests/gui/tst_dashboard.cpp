#include "app/context/EntityUser.h"
#include "pos/masterdata/company/DialogDataPerusahaan.h"
#include "pos/printing/configuration/DialogCashierAndKitchenPrinter.h"
#include "shell/dashboard/TabDashboard.h"
#include "shell/window/HouseStyle.h"
#include "shell/window/MainWindow.h"
#include "shell/window/Pages.h"
#include "support/DatabaseTest.h"

#include <QAction>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QWebElement>
#include <QWebFrame>
#include <QWebView>

namespace
{
QDate daysAgo(int days) { return QDate::currentDate().addDays(-days); }
QString english(const QDate& day, const char* format) { return QLocale::c().toString(day, format); }
QJsonObject parsed(const QString& json) { return QJsonDocument::fromJson(json.toUtf8()).object(); }
} // namespace

/** The dashboard in the real window, its page in the real web engine. */
class TestDashboard : public DatabaseTest
{
    Q_OBJECT

protected:
    void prepare() override
    {
        run("TRUNCATE invoice CASCADE");
        AppContext::instance()->setLocale("id_ID");
        AppContext::instance()->setShowDashboard(false);
        AppContext::instance()->setShowSidebar(true);
        m_scriptErrors.clear();
        m_window = std::make_unique<MainWindow>();
        AppContext::instance()->setMainWindow(m_window.get());
        m_window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    }
    void tidy() override
    {
        m_window.reset();
        QCOMPARE(m_scriptErrors, QStringList());
    }

private slots:
    void initTestCase()
    {
        keepDatabase();
        insertShop(*m_database);
    }

    void theFiguresAreThoseOfTheDatabase()
    {
        insertItem(*m_database, 2, "TEA", "<b>Tea</b> & \"milk\"");
        for (int i = 3; i <= 12; ++i)
            insertItem(*m_database, i, QString("S%1").arg(i), QString("Soup %1").arg(i));
        insertSale(*m_database, daysAgo(15), 1, {7000, 7000}, 70);
        insertSale(*m_database, daysAgo(14), 1, {1000000, 1000000}, 4);
        insertSale(*m_database, daysAgo(3), 2, {45000, 50000}, 9);
        insertSale(*m_database, daysAgo(3), 1, {5000, 0}, 1);
        for (int i = 3; i <= 12; ++i)
            insertSale(*m_database, daysAgo(0), i, {100, 100}, i == 3 ? 2 : 1);
        openDashboard();

        // Days without sales are included with zero.
        QStringList days;
        QVariantList totals;
        for (int ago = 14; ago >= 0; --ago) {
            const QString sold = ago == 14  ? "1|Rp1.000.000"
                                 : ago == 3 ? "2|Rp50.000"
                                 : ago == 0 ? "10|Rp1.000"
                                            : "0|Rp0";
            days.append(english(daysAgo(ago), "dddd d MMMM") + '|' + sold);
            totals.append(ago == 14 ? 1000000.0 : ago == 3 ? 50000.0 : ago == 0 ? 1000.0 : 0.0);
        }
        QCOMPARE(cells("#days"), days);
        QCOMPARE(script("Chart.instances[0].data.datasets[1].data").toList(), totals);
        QCOMPARE(script("Chart.instances[0].data.labels[14]").toString(), english(daysAgo(0), "d MMM"));
        QVERIFY(script("Chart.instances[0].width").toInt() > 300);

        const QStringList items = cells("#items");
        QCOMPARE(items.mid(0, 3),
                 QStringList({"<b>Tea</b> & \"milk\"|9|Rp45.000", "Rice|5|Rp1.005.000", "Soup 3|2|Rp100"}));
        QCOMPARE(items.size(), 10);
        QVERIFY(element("#items b").isNull());

        const QStringList figures{"#today-total",  "#today-count", "#period-title", "#period-total",
                                  "#period-count", "#average",     "#best-total",   "#best-day"};
        QStringList shown;
        for (const QString& figure : figures)
            shown.append(text(figure));
        QCOMPARE(shown, QStringList({"Rp1.000", "10 sales", "Last 15 days", "Rp1.051.000", "13 sales", "Rp80.846",
                                     "Rp1.000.000", english(daysAgo(14), "dddd d MMMM")}));
        QVERIFY(!shows("#empty"));
    }

    void moneyIsWrittenAsTheRestaurantWritesIt_data()
    {
        const auto row = addColumns<QString, qint64, QString>("locale", "amount", "total");
        row("Indonesia", "id_ID", Q_INT64_C(1234567), "Rp1.234.567");
        row("too much for its place", "id_ID", Q_INT64_C(1234567890123), "Rp1.234.567.890.123");
        row("United States", "en_US", Q_INT64_C(1234567), "$1,234,567");
        row("Germany", "de_DE", Q_INT64_C(1234567), QString::fromUtf8("1.234.567 €"));
        row("none yet", "C", Q_INT64_C(1234567), "1234567");
    }
    void moneyIsWrittenAsTheRestaurantWritesIt()
    {
        QFETCH(QString, locale);
        QFETCH(qint64, amount);
        AppContext::instance()->setLocale(locale);
        insertSale(*m_database, daysAgo(0), 1, {amount, 0});
        openDashboard();
        // The blank before a currency sign does not break the line.
        const QString shown = text("#today-total").replace(QChar::Nbsp, ' ');
        QTEST(shown, "total");
        QVERIFY(!script("document.getElementById('today-total').scrollWidth > "
                        "document.getElementById('today-total').clientWidth")
                     .toBool());
    }

    void withoutSalesThePageLeadsToTheSetUp()
    {
        insertSale(*m_database, daysAgo(15), 1, {900, 900});
        openDashboard();
        auto* tab = m_window->findChild<TabDashboard*>();
        const QJsonObject sales = parsed(tab->getSalesChartData());
        const QJsonObject items = parsed(tab->getSoldItemsData());
        for (const QJsonObject& document : {sales, items}) {
            QVERIFY(document["nsales"].isArray() && document["nsales"].toArray().isEmpty());
            QVERIFY(document["totalsales"].isArray() && document["totalsales"].toArray().isEmpty());
            QCOMPARE(document["fromdate"].toString(), english(daysAgo(14), "dd MMM yyyy"));
            QCOMPARE(document["todate"].toString(), english(daysAgo(0), "dd MMM yyyy"));
        }
        QVERIFY(sales["dates"].isArray() && items["items"].isArray());

        QVERIFY(shows("#empty") && !shows("#figures") && !shows("#charts"));
        const QRect firstTile = element("#setup button").geometry();
        QVERIFY(!firstTile.isEmpty());
        QVERIFY(firstTile.bottom() < view()->height());
    }

    void figuresAreReadAnewWhenSomebodyComesBack_data()
    {
        addNames("way", {"from another page", "by a reload", "by the button", "with F5"});
    }
    void figuresAreReadAnewWhenSomebodyComesBack()
    {
        QFETCH(QString, way);
        const auto leaveAndComeBack = [this] {
            m_window->openTab("TabMeja");
            m_window->openTab("TabDashboard");
        };
        openDashboard();
        QVERIFY(shows("#empty"));
        insertSale(*m_database, daysAgo(0), 1, {900, 1000});
        if (way == "by a reload")
            view()->reload();
        else if (way == "by the button")
            script("document.getElementById('refresh').click()");
        else if (way == "with F5")
            QTest::keyClick(view(), Qt::Key_F5);
        else
            leaveAndComeBack();
        QTRY_COMPARE(text("#today-total"), QString("Rp900"));
        QVERIFY(!shows("#empty"));

        // Also from a page that was loaded again.
        insertSale(*m_database, daysAgo(0), 1, {100, 100});
        leaveAndComeBack();
        QTRY_COMPARE(text("#today-total"), QString("Rp1.000"));
    }

    void aShortcutIsReachedWithTheKeysAndOpensItsScreen_data()
    {
        const auto row = addColumns<QString, QString>("screen", "page");
        row("company profile", "companyprofile", "DialogDataPerusahaan");
        row("cashier printer", "cashierprinter", "DialogCashierAndKitchenPrinter");
        row("kitchen printer", "kitchenprinter", "TabKitchenPrinter");
        row("item type", "itemtype", "TabJenisItem");
        row("unit", "unit", "TabSatuan");
        row("table", "table", "TabMeja");
        row("item", "item", "TabItem");
        row("beginning balance", "beginingbalance", "TabStokAwal");
        row("cash", "cash", "TabCashFlow");
        row("sales order", "salesorder", "TabMakanDitempat");
        row("fast food", "fastfood", "TabFastFood");
    }
    void aShortcutIsReachedWithTheKeysAndOpensItsScreen()
    {
        FETCH(QString, screen, page);
        openDashboard();
        const auto close = [](QDialog* dialog) { dialog->reject(); };
        if (page == "DialogDataPerusahaan")
            m_people->expect<DialogDataPerusahaan>(close);
        else if (page == "DialogCashierAndKitchenPrinter")
            m_people->expect<DialogCashierAndKitchenPrinter>(close);

        const QString focused = "document.activeElement.getAttribute('data-screen')";
        for (int keys = 0; keys < 20 && script(focused).toString() != screen; ++keys)
            QTest::keyClick(view(), Qt::Key_Tab);
        QCOMPARE(script(focused).toString(), screen);
        QTest::keyClick(view(), Qt::Key_Space);
        if (page.startsWith("Dialog"))
            QTRY_VERIFY(m_people->finished());
        else
            QTRY_COMPARE(QString(pages()->currentWidget()->metaObject()->className()), page);
    }

    void theWindowsOwnShortcutsWorkOnThePage()
    {
        openDashboard();
        QVERIFY(view()->hasFocus());
        QTest::keyClick(view(), Qt::Key_M, Qt::AltModifier);
        QTRY_COMPARE(pages()->currentWidget()->metaObject()->className(), "TabMeja");
    }

    void theUserIsGreetedByName_data()
    {
        const auto row = addColumns<QStringList, QString, QString>("names", "answer", "greeting");
        row("both names", {"Mary <i>Ann</i>", "Smith"}, "Mary <i>Ann</i> Smith", ", Mary <i>Ann</i> Smith");
        row("empty names", {"", ""}, " ", "");
        row("nobody", {}, "", "");
    }
    void theUserIsGreetedByName()
    {
        QFETCH(QStringList, names);
        QFETCH(QString, greeting);
        EntityUser user;
        user.setUserName("mary");
        user.setFirstName(names.value(0));
        user.setLastName(names.value(1));
        AppContext::instance()->setCurrentUser(names.isEmpty() ? nullptr : &user);
        openDashboard();
        QTEST(m_window->findChild<TabDashboard*>()->getUsername(), "answer");
        const QRegularExpression shown("^Good (morning|afternoon|evening)" + QRegularExpression::escape(greeting) +
                                       '$');
        QVERIFY2(shown.match(text("#greeting")).hasMatch(), qPrintable(text("#greeting")));
    }

    void figuresThatCannotBeReadAreTold()
    {
        openDashboard();
        run("ALTER TABLE invoice RENAME TO sold");
        auto* tab = m_window->findChild<TabDashboard*>();
        QVERIFY(parsed(tab->getSalesChartData())["dates"].toArray().isEmpty());
        QCOMPARE(m_people->lastTitle(), QString("Error"));
        QVERIFY2(m_people->lastText().contains("\"invoice\""), qPrintable(m_people->lastText()));
        QVERIFY(parsed(tab->getSoldItemsData())["items"].toArray().isEmpty());
        QCOMPARE(m_people->boxes().size(), 2);
        run("ALTER TABLE sold RENAME TO invoice");
    }

    void aFaultOfThePageIsLogged()
    {
        QTemporaryDir folder;
        KorLogger logger(nullptr, folder.filePath("zavel.log"));
        AppContext::instance()->setLogger(&logger);
        openDashboard();
        script("setTimeout(function () { nobodyKnowsThis(); }, 0)");
        QTRY_COMPARE(m_scriptErrors.size(), 1);
        AppContext::instance()->setLogger(nullptr);
        m_scriptErrors.clear();
        QFile log(logger.filePath());
        QVERIFY(log.open(QIODevice::ReadOnly));
        const QString written = log.readAll();
        QVERIFY2(written.contains("nobodyKnowsThis"), qPrintable(written));
    }

    void thePageStaysWithItsOwnFiles()
    {
        openDashboard();
        const QUrl own = view()->url();
        script("document.location = 'http://127.0.0.1:9/'");
        script(
            "var picture = new Image(); picture.src = 'http://127.0.0.1:9/p.png'; document.body.appendChild(picture)");
        QTRY_COMPARE(m_scriptErrors.size(), 1);
        QVERIFY2(m_scriptErrors.first().contains("Content Security Policy"), qPrintable(m_scriptErrors.first()));
        m_scriptErrors.clear();
        QCOMPARE(view()->url(), own);
        QVERIFY(!text("#greeting").isEmpty());
    }

    void theTickInTheMenuFollowsThePage()
    {
        auto* action = m_window->findChild<QAction*>("actionShow_Dashboard");
        QVERIFY(!action->isChecked());
        action->trigger();
        QVERIFY(action->isChecked() && AppContext::instance()->showDashboard());
        QCOMPARE(pages()->currentWidget()->windowTitle(), QString("Dashboard"));
        action->trigger();
        QCOMPARE(pages()->count(), 0);
        action->trigger();
        m_window->closeTabX(0);
        QVERIFY(!action->isChecked());
        // One click opens it again.
        action->trigger();
        QCOMPARE(pages()->count(), 1);
    }

private:
    void openDashboard()
    {
        QVERIFY(m_window->openTab("TabDashboard"));
        connect(view()->page(), &QWebPage::consoleMessageReceived, this,
                [this](QWebPage::MessageSource, QWebPage::MessageLevel level, const QString& message, int line) {
                    if (level == QWebPage::ErrorMessageLevel)
                        m_scriptErrors.append(QString("%1 (%2)").arg(message).arg(line));
                });
        QTRY_VERIFY(!m_scriptErrors.isEmpty() || text("#today") == english(QDate::currentDate(), "dddd d MMMM"));
    }

    QTabWidget* pages() const { return m_window->findChild<QTabWidget*>("tabWidget"); }
    QWebView* view() const { return m_window->findChild<QWebView*>("webView"); }
    QWebElement element(const QString& selector) const
    {
        return view()->page()->mainFrame()->findFirstElement(selector);
    }
    QString text(const QString& selector) const { return element(selector).toPlainText(); }
    QVariant script(const QString& code) const { return view()->page()->mainFrame()->evaluateJavaScript(code); }
    bool shows(const QString& selector) const { return !element(selector).geometry().isEmpty(); }
    QStringList cells(const QString& table) const
    {
        QStringList rows;
        for (const QWebElement& row : view()->page()->mainFrame()->findAllElements(table + " tbody tr").toList()) {
            QStringList texts;
            for (const QWebElement& cell : row.findAll("td").toList())
                texts.append(cell.toPlainText().trimmed());
            rows.append(texts.join('|'));
        }
        return rows;
    }

    std::unique_ptr<MainWindow> m_window;
    QStringList m_scriptErrors;
};

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    HouseStyle::apply(application);
    TestDashboard test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_dashboard.moc"
