#include "app/context/EntityUser.h"
#include "kor/widgets/KorTab.h"
#include "shell/database/backup/DialogBackupDB.h"
#include "shell/database/clearing/DialogClearTransactions.h"
#include "shell/database/converter/DialogConverter.h"
#include "shell/window/ConfigDialog.h"
#include "shell/window/DialogAbout.h"
#include "shell/window/HouseStyle.h"
#include "shell/window/InterfaceLanguage.h"
#include "shell/window/MainWindow.h"
#include "shell/window/QtCategoryButton.h"
#include "support/DatabaseTest.h"

#include <QAction>
#include <QListView>
#include <QMenuBar>
#include <QStatusBar>
#include <QTabBar>
#include <QTreeWidget>
#include <QWebFrame>
#include <QWebView>

namespace
{
struct Entry
{
    const char* action;
    const char* text;
    const char* shortcut;
    const char* page = "";
};

const Entry entries[] = {
    {"actionMeja", "Tables", "Alt+M", "TabMeja"},
    {"actionUser", "Users", "Alt+U", "TabUser"},
    {"actionConfig", "General", "Alt+C"},
    {"actionUser_group", "User Groups", "Alt+G", "TabUserGroup"},
    {"actionUser_access", "User Access", "Alt+A", "TabUserAccess"},
    {"actionPerusahaan", "Company Profile", "Alt+P"},
    {"actionJenis_Item", "Item Types", "Alt+J", "TabJenisItem"},
    {"actionSatuan", "Units", "Alt+S", "TabSatuan"},
    {"actionSupplier", "Suppliers", "Alt+L", "TabSupplier"},
    {"actionMember", "Members", "Alt+E", "TabMember"},
    {"actionAgent", "Agents", "Alt+N", "TabAgent"},
    {"actionBank", "Accounts", "Alt+B", "TabBank"},
    {"actionItem", "Items", "Alt+I", "TabItem"},
    {"actionStok_Awal", "Beginning Balances", "Alt+K", "TabStokAwal"},
    {"actionInventory_Adjustment", "Inventory Adjustments", "Alt+D", "TabInventoryAdj"},
    {"actionPesanan_Pembelian", "Purchase Orders", "Alt+O", "TabPurchaseOrder"},
    {"actionPurchases_Receive_Inventory", "Purchases / Receive Inventory", "Alt+V", "TabPurchases"},
    {"actionCredit_Note", "Credit Notes", "Alt+T", "TabCreditNote"},
    {"actionHutang_Payments", "Pay Bills", "Alt+Y", "TabPayment"},
    {"actionKaryawan", "Employees", "Alt+W", "TabEmployee"},
    {"actionKartu_Stok", "Item History", "Alt+X", "TabKartuStok"},
    {"actionRunning_Numbers", "Running Numbers", "Alt+Q", "TabKeyTable"},
    {"actionMakan_Ditempat", "Dine", "Ctrl+M", "TabMakanDitempat"},
    {"actionFastfood", "Fast Foods", "Ctrl+O", "TabFastFood"},
    {"actionBawa_Pulang", "Take Away Foods", "Ctrl+P", "TabBawaPulang"},
    {"actionPesanan_Masuk", "Incoming Orders ", "Ctrl+K", "TabPesananMasuk"},
    {"actionDaftar_Penjualan", "Customer Payments", "Ctrl+L", "TabDaftarPenjualan"},
    {"actionPiutang", "Member Payments", "Ctrl+I", "TabPiutang"},
    {"actionPrinted_Slips", "Printed Slips", "Ctrl+R", "TabPrintedSlips"},
    {"actionManual", "Manual", "F1"},
    {"actionAbout", "About", ""},
    {"actionDaftar_Pembayaran_Komisi", "Agent Commission Payments", "Ctrl+D", "TabKomisiAgen"},
    {"actionDaftar_Komisi_Agen", "Agent Commissions", "Ctrl+G", "TabAllKomisiAgen"},
    {"actionArus_Kas", "General Journal Entries", "Alt+F", "TabCashFlow"},
    {"actionTransfer", "Transferring Funds", "Alt+H", "TabTransfer"},
    {"actionPrinter_Kasir", "Cashier Printer", "Alt+Z"},
    {"actionDapur", "Kitchen Printers", "", "TabKitchenPrinter"},
    {"actionMaster_Data", "Master Data", ""},
    {"actionPersediaan", "Inventory", ""},
    {"actionPembelian", "Purchases", ""},
    {"actionPenjualan", "Sales", ""},
    {"actionKas", "Cash Flow", ""},
    {"actionDashboard", "Dashboard", ""},
    {"actionShow_Sidebar", "Show Sidebar", ""},
    {"actionShow_Dashboard", "Show Dashboard", ""},
    {"actionBackup_Database", "Database Management", ""},
    {"actionOptimize_Database", "Optimize Database", ""},
    {"actionConverter", "Converter", ""},
    {"actionClear_Transactions", "Clear Transactions", ""},
    {"actionEnglish", "English", ""},
};

QStringList textsOf(const QMenu* menu)
{
    QStringList texts;
    const QList<QAction*> actions = menu->actions();
    for (const QAction* action : actions)
        texts += action->menu() ? action->menu()->title() + " >" : action->text();
    return texts;
}

void writeFile(const QString& path, const QByteArray& content)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(content);
}
} // namespace

class TestMainWindow : public DatabaseTest
{
    Q_OBJECT

protected:
    void prepare() override
    {
        QVERIFY(m_database->open());
        m_folder = std::make_unique<QTemporaryDir>();
        AppContext::instance()->setShowSidebar(true);
        AppContext::instance()->setShowDashboard(false);
        m_database->settings().putIntoContext();
        makeWindow();
    }
    void tidy() override
    {
        m_window.reset();
        QDir(QCoreApplication::applicationDirPath() + "/languages").removeRecursively();
        QFile::remove(QCoreApplication::applicationDirPath() + "/plugins/broken.so");
    }

private slots:
    void initTestCase() { keepDatabase(); }

    void theMenusStandInTheirOrder()
    {
        const QList<QPair<QString, QStringList>> expected{
            {"Master &Data",
             {"Users", "User Groups", "User Access", "Company Profile", "Item Types", "Units", "Tables", "Accounts",
              "Suppliers", "Members", "Agents", "Employees", "Items"}},
            {"Invento&ry", {"Beginning Balances", "Inventory Adjustments", "Item History"}},
            {"Purchases", {"Purchase Orders", "Purchases / Receive Inventory", "Credit Notes", "Pay Bills"}},
            {"Sales",
             {"Dine", "Fast Foods", "Take Away Foods", "Incoming Orders ", "Customer Payments", "Member Payments",
              "Agent Commissions >"}},
            {"Cash Flow", {"General Journal Entries", "Transferring Funds"}},
            {"Reports", {"Master Data", "Inventory", "Purchases", "Sales", "Cash Flow"}},
            {"C&onfiguration",
             {"General", "Running Numbers", "Printer >", "Show Sidebar", "Show Dashboard", "Database Management",
              "Clear Transactions", "Language >"}},
            {"Help", {"Manual", "About"}},
        };
        QStringList titles;
        for (const auto& told : expected) {
            titles.append(told.first);
            for (const QAction* title : m_window->menuBar()->actions()) {
                // Further entries come after these.
                if (title->text() == told.first)
                    QCOMPARE(textsOf(title->menu()).mid(0, told.second.size()), told.second);
            }
        }
        QStringList bar;
        for (const QAction* title : m_window->menuBar()->actions())
            bar += titles.filter(title->text());
        QCOMPARE(bar, titles);
        QVERIFY(textsOf(menu("menuPenjualan")).contains("Printed Slips"));
        QCOMPARE(textsOf(menu("menuKomisi_Agen")).mid(0, 2),
                 QStringList({"Agent Commissions", "Agent Commission Payments"}));
        QCOMPARE(textsOf(menu("menuPrinter")).mid(0, 2), QStringList({"Cashier Printer", "Kitchen Printers"}));
    }

    void everyActionHasItsTextAndShortcut()
    {
        for (const Entry& entry : entries) {
            const QAction* found = action(entry.action);
            QVERIFY2(found, entry.action);
            QCOMPARE(found->text(), QString(entry.text));
            QCOMPARE(found->shortcut(), QKeySequence(entry.shortcut));
        }
    }

    void anEntryOpensItsPage_data()
    {
        const auto row = addColumns<QString, QString>("name", "page");
        for (const Entry& entry : entries) {
            if (*entry.page)
                row(entry.action, entry.action, entry.page);
        }
    }
    void anEntryOpensItsPage()
    {
        FETCH(QString, name, page);
        action(name)->trigger();
        QCOMPARE(openPages(), QStringList{page});
        QCOMPARE(pages()->tabText(0), pages()->widget(0)->windowTitle());
        QVERIFY(!pages()->tabText(0).isEmpty());
        QCOMPARE(m_people->texts(), QStringList());
    }

    void aShortcutReachesItsPageEvenWhereAMenuMarksTheSameLetter()
    {
        // As in Master Data and in Configuration.
        for (const auto& shortcut : {std::pair(Qt::Key_D, "Inventory_Adjustment"), {Qt::Key_O, "Pesanan_Pembelian"}}) {
            QAction* entry = action(QString("action") + shortcut.second);
            const QSignalSpy triggered(entry, &QAction::triggered);
            entry->disconnect(m_window.get());
            for (int press = 1; press <= 3; ++press) {
                QTest::keyClick(m_window->windowHandle(), shortcut.first, Qt::AltModifier);
                QTRY_COMPARE(triggered.size(), press);
                QVERIFY(!QApplication::activePopupWidget());
            }
        }
    }

    void anOpenPageIsOnlyShownAgainAndNotReadAnew()
    {
        QVERIFY(m_window->openTab("TabMeja"));
        QVERIFY(m_window->openTab("TabSatuan"));
        const StatementCount statements;
        action("actionMeja")->trigger();
        QCOMPARE(openPages(), QStringList({"TabMeja", "TabSatuan"}));
        QCOMPARE(pages()->currentIndex(), 0);
        QCOMPARE(statements.count(), 0);
        QVERIFY(!m_window->openTab("tabmeja"));
        QCOMPARE(m_people->lastText(), QString("can not load tab: tabmeja"));
        QCOMPARE(m_people->lastTitle(), QString("Error"));
        QCOMPARE(m_people->boxes().first().icon, QMessageBox::Critical);
    }

    void theKeysGoFromPageToPageAndIntoTheMenus()
    {
        const auto withKeys = [] {
            const QWidget* widget = QApplication::focusWidget();
            return widget ? widget->objectName() : QString();
        };
        for (const QString page : {"TabMeja", "TabSatuan", "TabMeja", "TabBank"}) {
            m_window->openTab(page);
            QCOMPARE(withKeys(), "tbl" + page.mid(3));
        }
        const QList<QPair<int, QString>> turns{{Qt::CTRL + Qt::Key_Tab, "tblMeja"},
                                               {Qt::CTRL + Qt::Key_PageUp, "tblBank"},
                                               {Qt::CTRL + Qt::SHIFT + Qt::Key_Tab, "tblSatuan"},
                                               {Qt::CTRL + Qt::Key_PageDown, "tblBank"},
                                               {Qt::CTRL + Qt::Key_W, "tblSatuan"}};
        for (const auto& turn : turns) {
            QTest::keyClick(m_window.get(), Qt::Key(turn.first & ~int(Qt::KeyboardModifierMask)),
                            Qt::KeyboardModifiers(turn.first & int(Qt::KeyboardModifierMask)));
            QTRY_COMPARE(withKeys(), turn.second);
        }
        QCOMPARE(openPages(), QStringList({"TabMeja", "TabSatuan"}));
        QTest::keyClick(pages()->currentWidget(), Qt::Key_Escape);
        QTRY_COMPARE(withKeys(), QString("tblMeja"));
        QTest::keyClick(m_window.get(), Qt::Key_F10);
        QTRY_VERIFY(QApplication::activePopupWidget());
        QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
        QTRY_VERIFY(!QApplication::activePopupWidget());
    }

    void aPageIsClosedByItsButtonByEscAndByTheTab()
    {
        const QList<std::function<void()>> ways{
            [this] { pages()->currentWidget()->findChild<QPushButton*>("btnClose")->click(); },
            [this] { QTest::keyClick(pages()->currentWidget(), Qt::Key_Escape); },
            [this] { emit pages()->tabBar()->tabCloseRequested(1); },
        };
        m_window->openTab("TabSatuan");
        for (const auto& close : ways) {
            m_window->openTab("TabMeja");
            const QPointer<QWidget> page = pages()->currentWidget();
            close();
            QTRY_COMPARE(openPages(), QStringList{"TabSatuan"});
            QTRY_VERIFY(!page);
        }
    }

    void pagesOfADatabaseThatIsLeftOrClearedAreClosed()
    {
        const TestDatabase other;
        QVERIFY(m_database->open());
        qputenv("XDG_DATA_HOME", m_folder->path().toLocal8Bit());
        const QString path = ConnectionSettings::defaultPath();
        QVERIFY(QDir().mkpath(QFileInfo(path).path()) && m_database->settings().write(path));
        m_window->setSettingsFile(path);
        m_window->openTab("TabMeja");
        for (const QString& name : {m_database->name(), other.name()}) {
            QCOMPARE(openPages(), QStringList{"TabMeja"});
            m_people->answer(QMessageBox::Yes);
            m_people->expect<DialogBackupDB>([name](DialogBackupDB* dialog) {
                dialog->findChild<QLineEdit*>("txtDBNameImport")->setText(name);
                dialog->findChild<QPushButton*>("btnSetActiveDB")->click();
                dialog->reject();
            });
            action("actionBackup_Database")->trigger();
            QCOMPARE(m_people->lastText(), QString("Please restart the app first!"));
            QCOMPARE(AppContext::instance()->dbName(), name);
        }
        QCOMPARE(openPages(), QStringList());

        m_window->openTab("TabMeja");
        m_people->expect<DialogClearTransactions>([](DialogClearTransactions* dialog) {
            emit dialog->onCloseAllTab();
            dialog->reject();
        });
        action("actionClear_Transactions")->trigger();
        QCOMPARE(openPages(), QStringList());
        QVERIFY(m_people->finished());
        qunsetenv("XDG_DATA_HOME");
        // Also deletes the closed pages, which must go before the other database's records.
        m_window.reset();
    }

    void whoMayNotConfigureIsRefused_data()
    {
        const auto row = addColumns<QString, QString>("name", "right");
        row("General", "actionConfig", "Configuration.");
        row("Company Profile", "actionPerusahaan", "Company Profile.");
        row("Cashier Printer", "actionPrinter_Kasir", "Printer Config.");
        row("Database Management", "actionBackup_Database", "Printer Config.");
        row("Clear Transactions", "actionClear_Transactions", "Printer Config.");
        row("Converter", "actionConverter", "Configuration.");
    }
    void whoMayNotConfigureIsRefused()
    {
        FETCH(QString, name, right);
        loginWithRights("Sales", {{0, 2}});
        action(name)->trigger();
        QCOMPARE(m_people->texts(), QStringList{"You don't have access.\r\nRequired permission: " + right});
        QCOMPARE(m_people->surprises(), QStringList());
    }

    void aConversionThatWasBrokenOffIsToldUntilNobodyWantsToHearOfIt()
    {
        m_window->checkConversion();
        QCOMPARE(m_people->texts(), QStringList());
        run("INSERT INTO appconfig (appkey, is_json, appvalue, version) VALUES ('conversion', false, 'x', 1)");
        m_people->answer(QMessageBox::Yes);
        m_people->expect<DialogConverter>([](DialogConverter* dialog) { dialog->reject(); });
        m_window->checkConversion();
        QVERIFY(m_people->finished());
        QVERIFY(m_people->lastText().contains("has not come to its end"));
        m_people->answer(QMessageBox::Ignore);
        m_window->checkConversion();
        QCOMPARE(m_people->boxes().size(), 2);
        m_window->checkConversion();
        QCOMPARE(m_people->boxes().size(), 2);
    }

    void aPressedCategoryStaysOpenAndClosesTheOthers()
    {
        const auto open = [this] {
            QStringList expanded;
            for (const char* title : {"Master Data", "Inventory", "Purchases", "Sales", "Cash Flow", "Configuration"}) {
                if (tree()->topLevelItem(placeOf(title))->isExpanded())
                    expanded.append(title);
            }
            return expanded;
        };
        for (const char* title : {"Sales", "Sales", "Master Data"}) {
            QTest::mouseClick(category(title), Qt::LeftButton);
            QCOMPARE(open(), QStringList{title});
        }
    }

    void theSidebarShowsTheMenusRowsAndDoesWhatTheyDo()
    {
        QCOMPARE(textsIn("Purchases").mid(0, 4),
                 QStringList({"  Purchase Orders", "  Purchases ", "  Credit Notes", "  Pay Bills"}));
        const QStringList sales = textsIn("Sales");
        const int commissions = sales.indexOf("  Agent Commissions");
        QCOMPARE(sales.mid(commissions, 2), QStringList({"  Agent Commissions", "  Agent Commission Payments"}));
        QVERIFY(sales.contains("  Printed Slips"));
        QCOMPARE(textsIn("Configuration").mid(0, 8),
                 QStringList({"  General", "  Running Numbers", "  Cashier Printer", "  Kitchen Printers",
                              "  Show Sidebar", "  Show Dashboard", "  Database Management", "  Clear Transactions"}));
        // The height counts a sub-menu as one entry and a separator as none.
        QStringList entries = textsOf(menu("menuPenjualan"));
        entries.removeAll(QString());
        QCOMPARE(rowsOf("Sales")->height(), (entries.size() + 2) * 24 + rowsOf("Sales")->frameWidth());

        QTest::mouseClick(category("Master Data"), Qt::LeftButton);
        QListView* rows = rowsOf("Master Data");
        const int tables = textsIn("Master Data").indexOf("  Tables");
        QTRY_VERIFY(rows->isVisible());
        QTest::mouseClick(rows->viewport(), Qt::LeftButton, Qt::NoModifier,
                          rows->visualRect(rows->model()->index(tables, 0)).center());
        QCOMPARE(openPages(), QStringList{"TabMeja"});
    }

    void theSidebarCanBeHidden()
    {
        QVERIFY(action("actionShow_Sidebar")->isChecked());
        action("actionShow_Sidebar")->trigger();
        QVERIFY(tree()->isHidden());
        QVERIFY(!AppContext::instance()->showSidebar());
        makeWindow();
        QVERIFY(tree()->isHidden());
        QVERIFY(!action("actionShow_Sidebar")->isChecked());
    }

    void aDashboardWithoutItsFileStaysEmptyWithoutAWord()
    {
        auto* show = action("actionShow_Dashboard");
        show->trigger();
        auto* view = m_window->findChild<QWebView*>("webView");
        QVERIFY2(!view->page()->mainFrame()->requestedUrl().isLocalFile(), "the engine would tell of the missing file");
        QCOMPARE(view->page()->mainFrame()->toPlainText(), QString());
        QCOMPARE(m_people->texts(), QStringList());
    }

    void aReportOpensOnceATitleAndKnowsTheConnection()
    {
        action("actionPenjualan")->trigger();
        action("actionPersediaan")->trigger();
        action("actionPenjualan")->trigger();
        QCOMPARE(openPages(), QStringList({"TabReport", "TabReport"}));
        QCOMPARE(pages()->currentIndex(), 0);
        QCOMPARE(pages()->tabText(0), QString("Report Penjualan"));
        QCOMPARE(pages()->tabText(1), QString("Report Persediaan"));
        const QWidget* report = pages()->widget(0);
        QCOMPARE(report->property("db_name").toString(), m_database->name());
        QCOMPARE(report->property("db_host").toString(), TestDatabase::host());
        QCOMPARE(report->property("db_port").toString(), QString::number(TestDatabase::port()));
        QCOMPARE(report->property("db_username").toString(), TestDatabase::user());
        QCOMPARE(report->property("date_format").toString(), QString("d MMM yyyy"));
        QCOMPARE(report->property("app_path").toString(), QCoreApplication::applicationDirPath());
        static_cast<KorTab*>(pages()->widget(0))->close();
        QCOMPARE(pages()->count(), 1);
        QCOMPARE(pages()->tabText(0), QString("Report Persediaan"));
    }

    void aPlugInThatDoesNotLoadIsToldAndTheOthersWork()
    {
        writeFile(QCoreApplication::applicationDirPath() + "/plugins/broken.so", "no library");
        makeWindow();
        QCOMPARE(m_people->boxes().size(), 1);
        QVERIFY(m_people->lastText().contains("broken.so"));
        action("actionKas")->trigger();
        QCOMPARE(pages()->count(), 1);
    }

    void aLanguageOfTheFolderIsChosenInTheMenu()
    {
        const QString folder = QCoreApplication::applicationDirPath() + "/languages/";
        writeFile(folder + "TranslationExample_id.qm", "");
        writeFile(folder + "TranslationExample_" + InterfaceLanguage::systemCode() + ".qm", "");
        makeWindow();
        QAction* indonesian = nullptr;
        const QList<QAction*> languages = menu("menuLanguage_2")->actions();
        for (QAction* language : languages) {
            const QString code = language->data().toString();
            QCOMPARE(language->isChecked(), code == InterfaceLanguage::systemCode());
            if (code == "id")
                indonesian = language;
        }
        QVERIFY(indonesian);
        // The sidebar was filled earlier, so it has no language rows.
        QCOMPARE(textsIn("Configuration").filter("Indonesian"), QStringList());

        QCOMPARE(indonesian->text(), QString("Indonesian"));
        const QLocale before;
        indonesian->trigger();
        QCOMPARE(QLocale().language(), QLocale::Indonesian);
        QCOMPARE(m_window->statusBar()->currentMessage(), QString("Current Language changed to Indonesian"));
        QVERIFY(m_window->windowIcon().cacheKey() == indonesian->icon().cacheKey());
        QLocale::setDefault(before);
    }

    void reloadingWithoutASettingsFileSaysSo()
    {
        for (const bool isFolder : {false, true}) {
            if (isFolder)
                QVERIFY(QDir().mkpath(settingsFile()));
            m_window->updateDBConfig();
            QCOMPARE(m_people->lastText(),
                     "Can't open settings file: " + settingsFile() +
                         ".\r\nPlease fill the db connection fields and install the initial data");
            QVERIFY(AppContext::instance()->databaseManager()->isOpen());
        }
        QCOMPARE(m_people->boxes().size(), 2);
    }

    void aServerThatDoesNotAnswerLeavesTheFormerConnection()
    {
        ConnectionSettings settings = m_database->settings();
        settings.database = "no_such_database";
        settings.password = "secret";
        QVERIFY(settings.write(settingsFile()));
        m_window->updateDBConfig();
        QCOMPARE(m_people->boxes().size(), 1);
        QCOMPARE(m_people->lastTitle(), QString("Error"));
        QVERIFY2(
            m_people->lastText().startsWith(
                QString("Failed open db. Host: %1, dbname: no_such_database, dbuser: %2, dbpass: secret,  port: %3. ")
                    .arg(settings.host, settings.user)
                    .arg(settings.port)),
            qPrintable(m_people->lastText()));
        QVERIFY(AppContext::instance()->databaseManager()->isOpen());
        QCOMPARE(AppContext::instance()->dbName(), m_database->name());
        m_window->openTab("TabMeja");
        QCOMPARE(m_people->boxes().size(), 1);
    }

    void reloadingAnEmptyDatabaseAsksForTheInstallation()
    {
        const QString former = m_database->name();
        TestDatabase empty(TestDatabase::Empty);
        QVERIFY(m_database->open());
        ConnectionSettings settings = m_database->settings();
        settings.database = empty.name();
        QVERIFY(settings.write(settingsFile()));
        m_window->updateDBConfig();
        QCOMPARE(m_people->texts(), QStringList{"Table: Config corrupted.\r\nPlease fill the db connection fields and "
                                                "install the initial data"});
        QCOMPARE(AppContext::instance()->dbName(), former);
    }

    void reloadingTakesTheNewValuesOver()
    {
        TestDatabase other;
        other.run("DELETE FROM appconfig");
        other.run("INSERT INTO appconfig (appkey, is_json, appvalue, version) VALUES ('app_version', false, '" +
                  DatabaseVersion::ofProgramText() +
                  "', 1), ('localization', true, '{\"locale\":\"id_ID\",\"date_time_format\":\"dd/MM/yy\"}', 1)");
        ConnectionSettings settings = m_database->settings();
        settings.database = other.name();
        settings.showSidebar = true;
        settings.showDashboard = false;
        QVERIFY(settings.write(settingsFile()));
        AppContext* context = AppContext::instance();
        context->setShowDashboard(true);
        m_window->updateDBConfig();
        QCOMPARE(m_people->texts(), QStringList());
        QCOMPARE(context->dateFormat(), QString("dd/MM/yy"));
        QCOMPARE(context->locale(), QString("id_ID"));
        QCOMPARE(context->dbName(), other.name());
        // The dashboard's switch ends up with the sidebar, the dashboard keeps its own.
        QVERIFY(!context->showSidebar());
        QVERIFY(context->showDashboard());

        m_people->expect<ConfigDialog>([this](ConfigDialog* dialog) {
            m_window->updateDBConfig();
            dialog->reject();
        });
        QVERIFY(!m_window->setupDatabase());
        QCOMPARE(m_people->texts(), QStringList{"Connected!"});
    }

    void theWindowNamesTheUserAndTheProgramItsVersion()
    {
        const auto labels = m_window->statusBar()->findChildren<QLabel*>();
        QCOMPARE(labels.size(), 1);
        QCOMPARE(labels.first()->text(), QString("Username: admin"));
        QCOMPARE(m_window->windowTitle(), QString("Zavel POS"));
        QVERIFY(m_window->isMaximized());
        QString version;
        m_people->expect<DialogAbout>([&version](DialogAbout* dialog) {
            version = labelled(dialog, "lblVersion");
            dialog->reject();
        });
        action("actionAbout")->trigger();
        QCOMPARE(version, "Version " + DatabaseVersion::ofProgramText());
    }

    void aMessageShowsANameAsItIsWritten()
    {
        HouseStyle style;
        QMessageBox box;
        box.setText("Are you sure you want to delete this table: <b>Window</b> ?");
        box.setStyle(&style);
        box.ensurePolished();
        QCOMPARE(box.textFormat(), Qt::PlainText);
    }

private:
    QAction* action(const QString& name) const { return m_window->findChild<QAction*>(name); }
    QMenu* menu(const QString& name) const { return m_window->findChild<QMenu*>(name); }
    QTabWidget* pages() const { return m_window->findChild<QTabWidget*>("tabWidget"); }
    QTreeWidget* tree() const { return m_window->findChild<QTreeWidget*>("treeWidget"); }
    QtCategoryButton* category(const QString& title) const
    {
        const auto buttons = m_window->findChildren<QtCategoryButton*>();
        for (QtCategoryButton* button : buttons) {
            if (button->text().remove('&') == title)
                return button;
        }
        return nullptr;
    }

    int placeOf(const QString& title) const
    {
        for (int i = 0; i < tree()->topLevelItemCount(); ++i) {
            if (tree()->itemWidget(tree()->topLevelItem(i), 0) == category(title))
                return i;
        }
        return -1;
    }

    QListView* rowsOf(const QString& title) const
    {
        QTreeWidgetItem* item = tree()->topLevelItem(placeOf(title))->child(0);
        return qobject_cast<QListView*>(tree()->itemWidget(item, 0));
    }

    QStringList textsIn(const QString& title) const
    {
        QStringList texts;
        const QAbstractItemModel* model = rowsOf(title)->model();
        for (int i = 0; i < model->rowCount(); ++i)
            texts += model->index(i, 0).data().toString();
        return texts;
    }

    QStringList openPages() const
    {
        QStringList names;
        for (int i = 0; i < pages()->count(); ++i)
            names += pages()->widget(i)->metaObject()->className();
        return names;
    }

    void makeWindow()
    {
        m_window = std::make_unique<MainWindow>();
        m_window->setSettingsFile(settingsFile());
        showForm(m_window.get());
    }

    QString settingsFile() const { return m_folder->filePath("settings.ini"); }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<MainWindow> m_window;
};

QTEST_MAIN(TestMainWindow)
#include "tst_main_window.moc"
