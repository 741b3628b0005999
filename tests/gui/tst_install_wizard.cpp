#include "app/context/AppContext.h"
#include "app/context/DatabaseManager.h"
#include "shell/database/tools/ClientProcess.h"
#include "shell/database/tools/ClientPrograms.h"
#include "shell/database/wizard/AppInstallerWizard.h"
#include "shell/database/wizard/LocalServers.h"
#include "support/ModalDriver.h"
#include "support/Rows.h"
#include "support/TestCluster.h"
#include "support/TestDatabase.h"
#include "support/TestTemplate.h"

#include <QAbstractButton>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRegularExpression>
#include <QSqlQuery>
#include <QTcpServer>
#include <QTemporaryDir>
#include <QTimer>

namespace
{
const QString askedRole = "Zo\u00eb's \"role\"";
const QString askedPassword = " pa ss'w\"\u00f6rd$ ";
const QString awkwardName = "Caf\u00e9 \"d'\u00e9t\u00e9\" 1";
const QString noConnection = "Can not connect to the database, please update your database connection details";
const QString restored = "Your database has been successfully restored";

QString identifier(QString name) { return '"' + name.replace('"', "\"\"") + '"'; }
QString literal(QString text) { return '\'' + text.replace('\'', "''") + '\''; }
} // namespace

/** The first setup of the program on a workstation. */
class TestInstallWizard : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        qputenv("XDG_DATA_HOME", m_home.path().toLocal8Bit());
        m_backup = m_home.filePath("l'\u00e9t\u00e9 a.bak");
        TestDatabase database;
        database.run("INSERT INTO meja (kode, nama, createdby, version) VALUES ('m9', 'Sold at already', 1, 1)");
        ClientProcess dump;
        dump.run(ClientPrograms::backup(database.settings(), m_backup));
        QVERIFY(dump.waitForFinished(30000) && dump.succeeded());

        // Only one role needs a password.
        TestCluster& cluster = TestCluster::instance();
        cluster.exclusively([&cluster, &database] {
            cluster.run("DROP ROLE IF EXISTS " + identifier(askedRole));
            cluster.run("CREATE ROLE " + identifier(askedRole) + " SUPERUSER LOGIN PASSWORD " + literal(askedPassword));
            const QString file = database.value("SHOW hba_file").toString();
            const QString line = "all " + identifier(askedRole) + " scram-sha-256";
            cluster.run(QString("COPY (SELECT %1) TO PROGRAM %2")
                            .arg(literal("local " + line),
                                 literal(QString("cat > %1.new; cat %1 >> %1.new; mv %1.new %1").arg(file))));
            cluster.run("SELECT pg_reload_conf()");
        });
    }

    void init()
    {
        m_database = std::make_unique<TestDatabase>(TestDatabase::Empty);
        m_people = std::make_unique<ModalDriver>();
        open();
    }

    void cleanup()
    {
        m_wizard.reset();
        m_people.reset();
        qunsetenv("ZAVEL_PG_BIN");
        m_database.reset();
        for (const QString& name : qAsConst(m_made))
            TestCluster::instance().run("DROP DATABASE IF EXISTS " + identifier(name) + " WITH (FORCE)");
        m_made.clear();
        QFile::remove(ConnectionSettings::defaultPath());
    }

    void theFreshInstallationIsOfferedFirst()
    {
        QCOMPARE(m_wizard->windowTitle(), QString("ZavelPOS Installer Wizard"));
        QCOMPARE(m_wizard->pageIds(), QList<int>({0, 2, 3, 4}));
        QCOMPARE(m_wizard->currentPage()->title(), QString("Introduction"));
        next();
        QCOMPARE(m_wizard->currentId(), 2);
        QTRY_VERIFY(qobject_cast<QLineEdit*>(QApplication::focusWidget()));
        const QStringList offered{"localhost", "postgres", "", "ZavelPOS", "6666", "admin", ""};
        const QStringList names{"hostname", "username", "password", "dbname", "dbport"};
        for (int i = 0; i < names.size(); ++i)
            QCOMPARE(m_wizard->field("dbserverfresh." + names.at(i)).toString(), offered.at(i));
        QCOMPARE(m_wizard->field("admin.username").toString(), QString("admin"));

        // Going back loses nothing.
        m_wizard->setField("dbserverfresh.hostname", "till");
        m_wizard->back();
        next();
        QCOMPARE(m_wizard->field("dbserverfresh.hostname").toString(), QString("till"));
        button(QWizard::CancelButton)->click();
        QCOMPARE(m_wizard->result(), int(QDialog::Rejected));
        QVERIFY(!hasSettings());
    }

    void anEmptyLineHoldsNext_data()
    {
        const auto row = addColumns<QString, QStringList>("group", "lines");
        const QString fresh = "dbserverfresh";
        const QString restore = "dbserverrestore";
        row("fresh", fresh,
            {fresh + ".hostname", fresh + ".username", fresh + ".password", fresh + ".dbname", fresh + ".dbport",
             "admin.username", "admin.password"});
        row("restore", restore,
            {restore + ".hostname", restore + ".username", restore + ".password", restore + ".dbport", "restore.file",
             "restore.dbname"});
    }
    void anEmptyLineHoldsNext()
    {
        QFETCH(QString, group);
        QFETCH(QStringList, lines);
        enter(group);
        QVERIFY(button(QWizard::NextButton)->isEnabled());
        for (const QString& line : lines) {
            const QVariant kept = m_wizard->field(line);
            m_wizard->setField(line, "");
            QVERIFY2(!button(QWizard::NextButton)->isEnabled(), qPrintable(line));
            m_wizard->setField(line, kept);
            QVERIFY2(button(QWizard::NextButton)->isEnabled(), qPrintable(line));
        }
    }

    void aServerThatRefusesKeepsThePage_data()
    {
        const auto row = addColumns<QString, QString>("line", "value");
        row("host", "hostname", "/no/such/socket");
        row("port", "dbport", "1");
        row("user", "username", "nobody_of_that_name");
        row("password", "username", askedRole);
        row("database", "dbname", "no such database");
    }
    void aServerThatRefusesKeepsThePage()
    {
        FETCH(QString, line, value);
        enter("dbserverfresh", {{"dbserverfresh." + line, value}});
        next();
        QCOMPARE(m_people->texts(), QStringList{noConnection});
        QCOMPARE(m_people->lastTitle(), QString("Error"));
        QCOMPARE(m_wizard->currentId(), 2);
        QVERIFY(!hasSettings());
    }

    void aFreshDatabaseIsInstalledWhileTheWizardWaits()
    {
        const QString name = make(awkwardName);
        TestCluster::instance().run("CREATE DATABASE " + identifier(name));
        enter("dbserverfresh", {{"dbserverfresh.dbname", name},
                                {"dbserverfresh.username", askedRole},
                                {"dbserverfresh.password", askedPassword},
                                {"admin.username", "Zo\u00eb O'Hara"}});
        int turns = 0;
        QTimer painting;
        connect(&painting, &QTimer::timeout, [&turns] { ++turns; });
        painting.start(10);
        next();
        QCOMPARE(m_wizard->currentId(), 4);
        QVERIFY(hasSettings());
        QVERIFY(!button(QWizard::FinishButton)->isEnabled());
        QVERIFY(!button(QWizard::BackButton)->isVisible());
        m_wizard->reject();
        QVERIFY(m_wizard->isVisible());
        // Initializing the page again starts nothing.
        m_wizard->currentPage()->initializePage();
        waitForTheEnd();
        QVERIFY(turns > 5);
        QCOMPARE(m_people->texts(), QStringList{"Please wait until the installation completed."});
        const QStringList lines = status().trimmed().split('\n');
        QCOMPARE(lines.first(), QString("[0%] Initializing..."));
        QCOMPARE(lines.filter("Initializing").size(), 1);
        QCOMPARE(lines.last(), QString("[100%] Done. Please restart the app"));

        const ConnectionSettings left = ConnectionSettings::read(ConnectionSettings::defaultPath());
        QCOMPARE(left.database, name);
        QCOMPARE(left.user, askedRole);
        QCOMPARE(left.password, askedPassword);
        QVERIFY(left.showSidebar && left.showDashboard);
        QSqlQuery query("SELECT password = md5('s\u00e9same ouvre-toi') FROM users WHERE username = 'Zo\u00eb O''Hara'",
                        AppContext::instance()->databaseManager()->database());
        QVERIFY(query.next() && query.value(0).toBool());
        button(QWizard::FinishButton)->click();
        QCOMPARE(m_wizard->result(), int(QDialog::Accepted));
    }

    void dataIsLostOnlyAfterAQuestion()
    {
        m_database = std::make_unique<TestDatabase>();
        m_database->run("INSERT INTO meja (kode, nama, createdby, version) VALUES ('m9', 'Sold at already', 1, 1)");
        const QString sold = "SELECT count(*) FROM meja WHERE kode = 'm9'";
        enter("dbserverfresh");
        m_people->answer(QMessageBox::No);
        next();
        QVERIFY(m_people->lastText().contains(m_database->name()));
        QCOMPARE(m_wizard->currentId(), 2);
        QVERIFY(!hasSettings());

        // A further workstation uses it as it is.
        m_people->answer(QMessageBox::Open);
        next();
        QVERIFY(!m_wizard->isVisible() && hasSettings());
        QCOMPARE(m_wizard->result(), int(QDialog::Accepted));
        QCOMPARE(m_database->value(sold).toInt(), 1);

        open();
        enter("dbserverfresh");
        m_people->answer(QMessageBox::Yes);
        next();
        waitForTheEnd();
        QCOMPARE(m_database->value(sold).toInt(), 0);
    }

    void anInstallationThatLosesTheServerClaimsNoSuccess()
    {
        enter("dbserverfresh");
        connect(m_wizard->page(4)->findChild<QPlainTextEdit*>(), &QPlainTextEdit::textChanged, this, [this] {
            if (status().endsWith("[25%] Creating/Updating tables...\n"))
                m_database->killConnections();
        });
        next();
        waitForTheEnd();
        QVERIFY(status().contains(" error: "));
        QVERIFY(status().trimmed().split('\n').last().startsWith("The installation is NOT complete"));
    }

    void aBackupIsRestored_data()
    {
        const auto row = addColumns<QString, QString, bool, QString, QString, QString, bool>(
            "name", "before", "create", "file", "told", "box", "settings");
        row("into a new database", awkwardName, "", true, "", "process exited with code: 0, status: 0", restored, true);
        row("into an existing database", "exists -w", "CREATE DATABASE %1", false, "", "code: 0, status: 0", restored,
            true);
        row("the database to create is there", "exists", "CREATE DATABASE %1", true, "", "was NOT created", restored,
            true);
        row("there is no such database", "nowhere", "", false, "", "was NOT restored completely", noConnection, false);
        row("no backup at all", "empty", "", true, "/no/such.bak", "begins the wizard once more", "", false);
    }
    void aBackupIsRestored()
    {
        FETCH(QString, name, before, file, told, box);
        FETCH(bool, create, settings);
        make(name);
        if (!before.isEmpty())
            TestCluster::instance().run(before.arg(identifier(name)));
        enter("dbserverrestore", {{"restore.dbname", name},
                                  {"restore.createdb", create},
                                  {"dbserverrestore.username", askedRole},
                                  {"dbserverrestore.password", askedPassword},
                                  {"restore.file", file.isEmpty() ? m_backup : file}});
        next();
        QVERIFY(!button(QWizard::FinishButton)->isEnabled());
        waitForTheEnd();
        QCOMPARE(status().contains("creating your db...\ncreatedb started...\n"), create);
        QVERIFY(status().contains("restoring your db...\npg_restore started...\n"));
        QVERIFY2(status().contains(told), qPrintable(status().right(900)));
        QCOMPARE(m_people->texts().join('|'), box);
        QCOMPARE(hasSettings(), settings);
        if (!settings)
            return;
        QCOMPARE(ConnectionSettings::read(ConnectionSettings::defaultPath()).database, name);
        QSqlQuery query("SELECT count(*) FROM meja WHERE kode = 'm9'",
                        AppContext::instance()->databaseManager()->database());
        QVERIFY(query.next() && query.value(0).toInt() == 1);
    }

    void aBackupReplacesADatabaseOnlyAfterAQuestion()
    {
        TestCluster& cluster = TestCluster::instance();
        const QString name = make(awkwardName);
        cluster.run("CREATE DATABASE " + identifier(name) + " TEMPLATE " + installedTemplateName());
        // The port is the first thing to ask about.
        enter("dbserverrestore",
              {{"restore.dbname", name}, {"restore.createdb", true}, {"dbserverrestore.dbport", "1"}});
        m_people->answer(QMessageBox::Yes);
        next();
        QCOMPARE(m_wizard->field("dbserverrestore.dbport").toInt(), TestDatabase::port());
        QVERIFY2(m_people->lastText().contains(QRegularExpression("holds [0-9]+ tables already")),
                 qPrintable(m_people->lastText()));
        QCOMPARE(m_wizard->currentId(), 3);
        QVERIFY(!hasSettings());

        m_wizard->setField("restore.createdb", false);
        m_people->answer(QMessageBox::Yes);
        next();
        waitForTheEnd();
        QCOMPARE(m_people->lastText(), restored);
        const QString aside = make(status().section("kept under the name ", 1).section(".\n", 0, 0));
        QVERIFY2(cluster.hasDatabase(aside), qPrintable(aside));
        // The tables are those of the backup, and the sequences continue after its values.
        QSqlQuery query(AppContext::instance()->databaseManager()->database());
        QVERIFY(query.exec("INSERT INTO meja (kode, nama, version) VALUES ('m10', 'Next', 1)"));
        QVERIFY(query.exec("SELECT string_agg(kode, ',' ORDER BY id) FROM meja") && query.next());
        QCOMPARE(query.value(0).toString(), QString("m1,m2,m9,m10"));
    }

    void aDatabaseThatCanNotMakeWayStays_data()
    {
        const auto row = addColumns<QString, QString>("file", "said");
        row("another till works with it", "", "was not replaced");
        row("the file is no backup", "/etc/hostname", "can not be read as a backup");
    }
    void aDatabaseThatCanNotMakeWayStays()
    {
        FETCH(QString, file, said);
        m_database = std::make_unique<TestDatabase>();
        enter("dbserverrestore", {{"restore.file", file.isEmpty() ? m_backup : file}});
        m_people->answer(QMessageBox::Yes);
        next();
        QVERIFY2(m_people->lastText().contains(said), qPrintable(m_people->lastText()));
        QCOMPARE(m_wizard->currentId(), 3);
        // A database that was filled after the question is not changed either.
        m_wizard->page(4)->initializePage();
        QTRY_VERIFY(status().contains("Nothing was restored into them."));
        QVERIFY(!hasSettings());
        QCOMPARE(m_database->value("SELECT count(*) FROM meja").toInt(), 2);
    }

    void withoutTheClientProgramsNothingIsRestored()
    {
        const QTemporaryDir broken;
        for (const char* tool : {"createdb", "pg_restore"})
            TestCluster::replaceTool(broken.path(), tool, "#!/no/such/interpreter\n");
        enter("dbserverrestore", {{"restore.createdb", true}});
        next();
        waitForTheEnd();
        QCOMPARE(m_people->texts(), QStringList({"Error 0", "Error 0"}));
        QVERIFY(status().contains("nothing was restored"));
        QVERIFY(!hasSettings());
    }

    void whatKeepsTheServerAwayIsHelped_data()
    {
        const auto row = addColumns<QString, QString, int>("line", "value", "press");
        row("port", "dbport", "1", QMessageBox::Retry);
        row("database", "dbname", awkwardName, QMessageBox::Yes);
    }
    void whatKeepsTheServerAwayIsHelped()
    {
        FETCH(QString, line, value);
        QFETCH(int, press);
        make(awkwardName);
        enter("dbserverfresh", {{"dbserverfresh." + line, value}});
        m_people->answer(QMessageBox::StandardButton(press));
        next();
        QCOMPARE(m_people->texts(), QStringList{noConnection});
        QCOMPARE(m_wizard->currentId(), 4);
        waitForTheEnd();
        QVERIFY(status().endsWith("[100%] Done. Please restart the app\n"));
        const ConnectionSettings left = ConnectionSettings::read(ConnectionSettings::defaultPath());
        QCOMPARE(left.port, TestDatabase::port());
        QCOMPARE(left.database, line == "dbname" ? awkwardName : m_database->name());
    }

    void theServersOfThisMachineAreFound()
    {
        QTcpServer listening;
        QVERIFY(listening.listen(QHostAddress::LocalHost));
        QTcpServer other;
        QVERIFY(other.listen(QHostAddress::LocalHost));
        const QString folder = m_home.filePath("conf");
        const auto configure = [&folder](const QString& cluster, const QString& text) {
            QDir().mkpath(folder + cluster);
            QFile file(folder + cluster + "/postgresql.conf");
            return file.open(QIODevice::WriteOnly) && file.write(text.toUtf8()) > 0;
        };
        QVERIFY(configure("/13/main", "port = 2\n"));
        QVERIFY(configure("/15/main",
                          QString("#port = 3\nport = %1 # (change requires restart)\n").arg(other.serverPort())));
        const LocalServers servers("/nowhere", folder);
        ConnectionSettings connection;
        connection.port = 1;
        const QList<QPair<QString, int>> hosts{{"localhost", other.serverPort()},
                                               {"127.0.0.1", other.serverPort()},
                                               {"till.example", 0},
                                               {TestDatabase::host(), TestDatabase::port()}};
        for (const auto& host : hosts) {
            connection.host = host.first;
            QCOMPARE(servers.portInPlaceOf(connection), host.second);
        }
        connection.host = "localhost";
        connection.port = listening.serverPort();
        QCOMPARE(servers.portInPlaceOf(connection), 0);
    }

private:
    void open()
    {
        m_wizard = std::make_unique<AppInstallerWizard>();
        m_wizard->show();
    }

    /** Goes to the details of this kind and fills them in. */
    void enter(const QString& group, const QVariantMap& others = {})
    {
        const bool fresh = group == "dbserverfresh";
        m_wizard->setField(fresh ? "installtype.freshinstall" : "installtype.restoreinstall", true);
        next();
        m_wizard->setField(group + ".hostname", TestDatabase::host());
        m_wizard->setField(group + ".username", TestDatabase::user());
        m_wizard->setField(group + ".password", "not asked for");
        m_wizard->setField(group + ".dbport", QString::number(TestDatabase::port()));
        m_wizard->setField(fresh ? "dbserverfresh.dbname" : "restore.dbname", m_database->name());
        if (fresh)
            m_wizard->setField("admin.password", "s\u00e9same ouvre-toi");
        else
            m_wizard->setField("restore.file", m_backup);
        for (auto other = others.begin(); other != others.end(); ++other)
            m_wizard->setField(other.key(), other.value());
    }

    QAbstractButton* button(QWizard::WizardButton which) const { return m_wizard->button(which); }
    QString status() const { return m_wizard->page(4)->findChild<QPlainTextEdit*>()->toPlainText(); }
    void next() { button(QWizard::NextButton)->click(); }
    void waitForTheEnd() { QTRY_VERIFY_WITH_TIMEOUT(button(QWizard::FinishButton)->isEnabled(), 60000); }
    bool hasSettings() const { return ConnectionSettings::exists(ConnectionSettings::defaultPath()); }
    QString make(const QString& name)
    {
        m_made.append(name);
        return name;
    }

    QTemporaryDir m_home;
    QString m_backup;
    QStringList m_made;
    std::unique_ptr<TestDatabase> m_database;
    std::unique_ptr<ModalDriver> m_people;
    std::unique_ptr<AppInstallerWizard> m_wizard;
};

QTEST_MAIN(TestInstallWizard)
#include "tst_install_wizard.moc"
