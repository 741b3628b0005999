#include "app/access/BusinessUser.h"
#include "app/context/AppContext.h"
#include "app/context/DatabaseManager.h"
#include "app/registry/AppBusinessRegistry.h"
#include "app/registry/AppMapperRegistry.h"
#include "kor/business/KorServiceDirectory.h"
#include "kor/install/KorInstallerThread.h"
#include "pos/masterdata/company/BusinessDataPerusahaan.h"
#include "pos/masterdata/company/EntityDataPerusahaan.h"
#include "pos/printing/configuration/BusinessPrinterConfig.h"
#include "pos/registry/PosBusinessRegistry.h"
#include "pos/registry/PosMapperRegistry.h"
#include "support/InstallerRun.h"
#include "support/Rows.h"
#include "support/TestDatabase.h"
#include "zavel/registry/ZavelBusinessRegistry.h"
#include "zavel/registry/ZavelMapperRegistry.h"

#include <QEventLoop>
#include <QImage>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QThread>
#include <QTimer>

namespace
{
QString text(TestDatabase& database, const QString& statement) { return database.value(statement).toString(); }

QList<KorBusinessLogic*> services()
{
    return AppBusinessRegistry::instance()->all() + PosBusinessRegistry::instance()->all() +
           ZavelBusinessRegistry::instance()->all();
}

int allPermissions()
{
    int count = 0;
    for (const KorBusinessLogic* service : services())
        count += service->getPermissions().size();
    return count;
}

/** The number of tables that the installation creates. */
int allTables()
{
    return AppMapperRegistry::instance()->all().size() + PosMapperRegistry::instance()->all().size() +
           ZavelMapperRegistry::instance()->all().size();
}

/** The whole content of the database except time stamps: rows, indexes, constraints. */
QString contentOf(TestDatabase& database)
{
    const QStringList tables =
        text(database,
             "select string_agg(tablename, ' ' order by tablename) from pg_tables where schemaname = 'public'")
            .split(' ');
    QStringList content;
    for (const QString& table : tables) {
        // The row for the reports exists only if there is a folder beside the program; it also changes the ids of the
        // others.
        const bool settings = table == "appconfig";
        const QString rows = QString("select string_agg((to_jsonb(t) - 'createdtime' - 'updatedtime'%1)::text, E'\\n' "
                                     "order by t.id) from %2 t %3")
                                 .arg(settings ? " - 'id'" : "", table, settings ? "where appkey <> 'reports'" : "");
        content.append(table + ":\n" + text(database, rows));
    }
    content.append(text(database, "select string_agg(indexdef, E'\\n' order by indexdef) from pg_indexes where "
                                  "schemaname = 'public'"));
    content.append(text(database, "select string_agg(conrelid::regclass || ' ' || conname || ' ' || "
                                  "pg_get_constraintdef(oid), E'\\n' order by conrelid::regclass::text, conname) "
                                  "from pg_constraint where connamespace = 'public'::regnamespace"));
    return content.join('\n');
}

/** The first line that differs. */
QString difference(const QString& actual, const QString& expected)
{
    const QStringList left = actual.split('\n');
    const QStringList right = expected.split('\n');
    for (int i = 0; i < qMax(left.size(), right.size()); ++i) {
        if (left.value(i) != right.value(i))
            return left.value(i) + "\nin place of\n" + right.value(i);
    }
    return {};
}
} // namespace

/** The database after the installation, and the messages during it. */
class TestInstaller : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { m_installed = std::make_unique<TestDatabase>(); }
    void cleanupTestCase() { m_installed.reset(); }
    void init() { AppContext::instance()->setCurrentUser(nullptr); }
    void aNewRestaurantFindsItsFirstRows_data()
    {
        const auto row = addColumns<QString, QStringList>("columns", "expected");
        row("user_group", "name", {"admin", "operator", "kasir"});
        row("users", "first_name, last_name, username, user_group_id, currency",
            {"admin|pos|admin|1|$", "operator|dewi|dewi|2|$"});
        row("appconfig where appkey <> 'reports'", "appkey, is_json",
            {"localization|true", "cashier_printer|true", "app_version|false", "kitchen_printer_1|true"});
        row("data_perusahaan", "nama_perusahaan", {"Brintel"});
        row("images", "image_name", {"company_logo"});
        row("bank", "kode, nama, account_type, active",
            {"1010|Cash on Hand|1|true", "1020|Checking Account|1|true", "5000|Cost of Sales|9|true",
             "1200|Inventory|8|true", "2000|Accounts Payable|2|true", "1100|Account Receivable|3|true",
             "6650|Commisions and Fees Expense|5|true", "4050|Sales of Materials|4|true"});
        row("jenis_item", "kode, nama", {"mkn|Foods", "mnm|Drinks"});
        row("satuan", "kode, nama", {"kg|Kilogram", "pcs|Packs"});
        row("supplier", "kode, nama, alamat <> '', telp <> '', email <> ''",
            {"SUP1|PT Supplier 1|true|true|true", "SUP2|PT Supplier 2|true|true|true"});
        const QString rest = "|1|1|$|%1|$|%2|4050|1200|5000";
        row("item",
            "kode, nama, item_type, is_group, jenis, satuan, harga_beli_currency, harga_beli_amount, "
            "harga_jual_lokal_currency, harga_jual_lokal_amount, sales_acct_code, inventory_acct_code, "
            "cost_of_sales_acct_code",
            {"aym|Fried Chicken|1|false" + rest.arg(1).arg(2), "ns|Rice|1|false" + rest.arg(1).arg(2),
             "fr|Fried Rice|2|true" + rest.arg(3).arg(5),
             "llp|Rice with fresh vegetables|2|true" + rest.arg(4).arg(6)});
        row("stok_awal", "item_id, jumlah", {"1|0", "2|0", "3|0", "4|0"});
        row("grouped_item", "parent_id, original_item_id, jumlah", {"3|2|2", "3|1|1"});
        row("keytable", "key_name, format, description, next_id, increment_by, no_zero",
            {"PO|POMMyy|Purchase Order Key|1|1|4", "NB|NBMMyy|Purchases Key|1|1|4", "NR|NRMMyy|Credit Note Key|1|1|4",
             "TPH|TPHMMyy|Payment Key|1|1|4", "KK|KKMMyy|Cash Flow Key|1|1|4",
             "TR|TRMMyy|Accounting Transaction Key|1|1|4", "TRD|TRDMMyy|Dine Invoice Key|1|1|4",
             "TRF|TRFMMyy|Fast Food Invoice Key|1|1|4", "TRP|TRPMMyy|Take Away Food Invoice Key|1|1|4",
             "PIU|PIUMMyy|Credit Key|1|1|4", "KAG|KAGMMyy|Agent Commission Key|1|1|4"});
        row("member", "kode, nama, alamat <> '', telp <> '', email <> ''", {"m123|member 1|true|true|true"});
        row("employee", "kode, nama, alamat <> '', telp <> '', email <> ''", {"emp1|Waitress 1|true|true|true"});
        row("agent", "kode, nama <> '', alamat <> '', telp <> '', email <> ''", {"agent1|true|true|true|true"});
        row("meja", "kode, nama", {"m1|Table 1", "m2|Table 2"});
        // The cut sequences of the other types must not contain a zero byte, which would end them.
        row("printer_type where id <= 3", "printer_type, cash_drawer_cmd, cut_papper_cmd",
            {"EPSON-TM-T88III|27#112#0#25#250|27#109", "EPSON-TM-U220|27#112#0#25#250|27#112#0#75#25",
             "GENERIC-ESC-POS|27#112#0#60#120|29#V#66#0"});
        row("printer_type where id > 3 and cut_papper_cmd ~ '(^|#)0*(#|$)'", "printer_type", {""});
    }
    void aNewRestaurantFindsItsFirstRows()
    {
        QFETCH(QString, columns);
        QFETCH(QStringList, expected);
        const QString found =
            text(*m_installed, QString("select string_agg(concat_ws('|', %1), E'\\n' order by id) from %2")
                                   .arg(columns, QTest::currentDataTag()));
        const auto plain = [](QString text) {
            // The server writes booleans as one letter.
            return text.replace(QRegExp("\\|t(?=\\||\\n|$)"), "|true").replace(QRegExp("\\|f(?=\\||\\n|$)"), "|false");
        };
        QCOMPARE(plain(found).split('\n'), expected);
    }

    /** The services' tests check the names and numbers; this test checks that they reach the database. */
    void everyServiceHasItsPermissions()
    {
        for (const KorBusinessLogic* service : services()) {
            QStringList told;
            for (const KorPermission& right : service->getPermissions())
                told.append(QString("%1 %2").arg(right.first).arg(right.second));
            told.sort();
            QStringList found =
                text(*m_installed,
                     QString("select string_agg(permission_key || ' ' || permission_name, '|') from permissions "
                             "join business on business.id = business_id where business.name = '%1'")
                         .arg(service->name()))
                    .split('|', Qt::SkipEmptyParts);
            found.sort();
            QCOMPARE(found, told);
        }
        QCOMPARE(text(*m_installed, "select count(*) from business").toInt(), services().size());
    }

    void administratorsMayDoEverythingAndNobodyElseAnything()
    {
        QCOMPARE(text(*m_installed,
                      "select count(distinct permission_id) from access join user_group on user_group.id = "
                      "group_id where user_group.name = 'admin' and grant_type = 2")
                     .toInt(),
                 allPermissions());
        QCOMPARE(text(*m_installed, "select count(*) from access").toInt(), allPermissions());
    }

    void theFirstUsersCanLogIn_data() { addRows<int>("rights", {{"admin", allPermissions()}, {"dewi", 0}}); }
    void theFirstUsersCanLogIn()
    {
        QFETCH(int, rights);
        TestDatabase database;
        auto* users = service<BusinessUser>("User");
        QVERIFY(!users->login(QTest::currentDataTag(), "qx7!rm2z"));
        QVERIFY(users->login(QTest::currentDataTag(), "Qx7!Rm2z"));
        QCOMPARE(AppContext::instance()->userRights()->size(), rights);
    }

    void theFirstBillsHaveALogoAndAPrinter()
    {
        TestDatabase database;
        const EntityDataPerusahaan* company = service<BusinessDataPerusahaan>("Company Profile")->getData();
        QVERIFY(company && company->getLogo());
        QCOMPARE(QImage::fromData(company->getLogo()->getImageData(), "PNG").width(), 200);

        auto* printers = service<BusinessPrinterConfig>("Printer Config");
        const EntityConfigCashierPrinter* cashier = printers->getCashierPrinterConfig();
        QVERIFY(cashier);
        const QHash<QString, QString> common{{"auto_cutter", "No"},
                                             {"no_of_copy", "1"},
                                             {"column_paper", "40"},
                                             {"no_of_blank_lines", "4"},
                                             {"printer_name", "GenericDotMatrix"},
                                             {"printer_type", "GENERIC-ESC-POS"}};
        QHash<QString, QString> expected = common;
        expected.insert("notes", "Thank You");
        QHash<QString, QString> members = cashier->members();
        const QString format = members.take("format");
        QCOMPARE(members, expected);
        QVERIFY(
            format.startsWith("{company_name}\r\n{company_address}\r\n\r\nNo. : {trans_no} Cashier : {operator}\r\n"));
        QVERIFY(format.endsWith("Change : {change}\r\n" + QString(40, '-') + "\r\n{print_time}\r\n{note}\r\n"));
        QCOMPARE(format.count("\r\n"), 25);

        const EntityConfigKitchenPrinter* kitchen = printers->getConfig("kitchen_printer_1");
        QVERIFY(kitchen);
        expected = common;
        expected.insert("notes", "Thanks");
        expected.insert("kitchen_name", "Kitchen 1");
        expected.insert("auto_print", "Yes");
        QCOMPARE(kitchen->members(), expected);
    }

    void theOwnerChoosesNamePasswordLocaleAndDateFormat()
    {
        TestDatabase database(TestDatabase::Empty);
        const InstallerRun run(KorInstaller::FreshInstall, [](ZavelInstaller& installer) {
            installer.setAdminUserName("o'hara");
            installer.setAdminPassword("s3cret");
            installer.setLocale("id_ID");
            installer.setDateFormat("dd/MM/yyyy");
        });
        QCOMPARE(run.failures, QStringList());
        QVERIFY(service<BusinessUser>("User")->login("o'hara", "s3cret"));
        // With the owner's own password, the default one does not work.
        QVERIFY(!service<BusinessUser>("User")->login("dewi", "Qx7!Rm2z"));
        QCOMPARE(text(database, "select count(*) from users").toInt(), 2);
        const auto localization = QJsonDocument::fromJson(
            text(database, "select appvalue from appconfig where appkey = 'localization'").toUtf8());
        QCOMPARE(localization.object(), (QJsonObject{{"date_time_format", "dd/MM/yyyy"}, {"locale", "id_ID"}}));
        // The first prices are in the currency of the chosen locale.
        QCOMPARE(text(database, "select string_agg(distinct harga_jual_lokal_currency, ',') from item"), QString("Rp"));
    }

    void theInstallationTellsHowFarItIs()
    {
        TestDatabase database(TestDatabase::Empty);
        const InstallerRun run(KorInstaller::FreshInstall);
        QCOMPARE(run.failures, QStringList());
        QCOMPARE(run.ends, 1);
        QCOMPARE(run.lines.mid(0, 3), (QStringList{"[0%] Initializing...", "[25%] Creating/Updating tables...",
                                                   "[25%] appconfig installed"}));
        // The progress increases by one percent after 25 tables.
        QCOMPARE(run.lines.filter("[25%]").size(), 1 + 25);
        QCOMPARE(run.lines.filter(" installed").size(), allTables());
        QVERIFY(run.lines.at(2 + 25).startsWith("[26%] "));
        QCOMPARE(
            run.lines.mid(2 + allTables()),
            (QStringList{"[50%] Inserting initial datas...", "[50%] App Data", "[50%] POS Data", "[50%] Zavel Data",
                         "[75%] Registering permissions...", "[100%] Done. Please restart the app"}));
    }

    void aWorkerThreadLaysDownTheSameWhileTheWindowLives()
    {
        const QString expected = contentOf(*m_installed);
        TestDatabase database(TestDatabase::Empty);
        QTemporaryDir folder;
        const QString logFile = folder.filePath("install.log");
        KorLogger logger(nullptr, logFile);

        auto* installer = new ZavelInstaller;
        installer->setLogger(&logger);
        QStringList lines;
        connect(installer, &KorInstaller::onProgress, this, [&lines](int, const QString& status) {
            QCOMPARE(QThread::currentThread(), qApp->thread());
            lines.append(status);
        });
        QEventLoop window;
        connect(installer, &KorInstaller::finished, &window, &QEventLoop::quit);
        QTimer repaint;
        int repaints = 0;
        connect(&repaint, &QTimer::timeout, [&repaints] { ++repaints; });
        repaint.start(1);
        startInstaller(installer);
        QTimer::singleShot(60000, &window, &QEventLoop::quit);
        window.exec();

        QCOMPARE(lines.last(), QString("Done. Please restart the app"));
        QCOMPARE(lines.size(), 2 + allTables() + 6);
        QVERIFY(repaints > 10);
        QCOMPARE(difference(contentOf(database), expected), QString());
        // No records of the worker stay in memory, and its connection is closed.
        QCOMPARE(AppContext::instance()->liveEntities().size(), 0);
        QTRY_COMPARE(QSqlDatabase::connectionNames().filter("worker-"), QStringList());
        QFile log(logFile);
        QVERIFY(log.open(QIODevice::ReadOnly));
        const QByteArray text = log.readAll();
        QVERIFY(text.contains("installing: meja\n"));
        QVERIFY(text.contains("installing: Table\n"));
    }

    void aSecondFreshInstallationReplacesEverything()
    {
        TestDatabase database;
        const QString expected = contentOf(database);
        database.run("INSERT INTO meja (kode, nama, version) VALUES ('m3', 'Table 3', 1)");
        database.run("INSERT INTO makan_ditempat (tgl, meja_id, status, version) VALUES (now(), 1, 0, 1)");
        database.run("UPDATE users SET password = 'lost'");
        database.run("DELETE FROM access");
        database.run("ALTER TABLE member DROP COLUMN discount_percentage");
        const InstallerRun run(KorInstaller::FreshInstall);
        QCOMPARE(run.failures, QStringList());
        QCOMPARE(difference(contentOf(database), expected), QString());
    }

    void aTableThatFailsIsToldAndTheRestGoesOn()
    {
        TestDatabase database(TestDatabase::Empty);
        database.run("CREATE VIEW cash_flow AS SELECT 1");
        QTemporaryDir folder;
        const QString logFile = folder.filePath("install.log");
        KorLogger logger(nullptr, logFile);
        const InstallerRun run(KorInstaller::FreshInstall,
                               [&logger](ZavelInstaller& installer) { installer.setLogger(&logger); });
        QCOMPARE(run.failures.size(), 1);
        QVERIFY2(run.failures.first().startsWith("cash_flow error: ERROR:  \"cash_flow\" is not a table"),
                 qPrintable(run.failures.first()));
        QVERIFY(run.lines.contains("[26%] " + run.failures.first()));
        QCOMPARE(run.lines.filter(" installed").size(), allTables() - 1);
        QCOMPARE(run.lines.last(), QString("[100%] Done. Please restart the app"));
        QCOMPARE(text(database, "select count(*) from meja").toInt(), 2);
        QCOMPARE(text(database, "select count(*) from access").toInt(), allPermissions());
        QFile log(logFile);
        QVERIFY(log.open(QIODevice::ReadOnly));
        QVERIFY(log.readAll().contains("cash_flow error: "));
    }

    void withoutAServerTheInstallationSaysSoAndEnds()
    {
        TestDatabase database(TestDatabase::Empty);
        AppContext::instance()->databaseManager()->close();
        const InstallerRun run(KorInstaller::FreshInstall);
        QCOMPARE(run.errors.size(), 1);
        QCOMPARE(run.failures, run.errors);
        QVERIFY(!run.errors.first().isEmpty());
        QCOMPARE(run.lines, QStringList());
        QCOMPARE(run.ends, 1);
    }

private:
    // For tests that only read.
    std::unique_ptr<TestDatabase> m_installed;
};

QTEST_MAIN(TestInstaller)
#include "tst_installer.moc"
