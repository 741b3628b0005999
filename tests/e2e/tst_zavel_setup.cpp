#include "app/context/DatabaseVersion.h"
#include "support/Rows.h"
#include "support/TestDatabase.h"

#include <QProcess>
#include <QTemporaryDir>

namespace
{
struct Outcome
{
    int status;
    QStringList lines;
    QString complaint;
};
} // namespace

/** The console program as an administrator or a script runs it. */
class TestZavelSetup : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_database.reset();
        m_database = std::make_unique<TestDatabase>(TestDatabase::Empty);
        m_name = m_database->name();
        m_home = std::make_unique<QTemporaryDir>();
    }

    void anEmptyServerIsInstalledInOneGo()
    {
        m_name += ".New \"one\"";
        QCOMPARE(onDatabase("status").status, 3);
        QCOMPARE(onDatabase("install").status, 1);
        const Outcome installed = onDatabase("install", {"--create-database"});
        QCOMPARE(installed.status, 0);
        QCOMPARE(installed.complaint, QString());
        QCOMPARE(installed.lines.first(), QString("[0%] Initializing..."));
        QVERIFY(installed.lines.contains("[26%] meja installed"));
        QCOMPARE(installed.lines.last(), QString("[100%] Done. Please restart the app"));
        const Outcome status = onDatabase("status");
        QCOMPARE(status.status, 0);
        QCOMPARE(status.lines,
                 QStringList{"Installed: " + m_name + ", version " + DatabaseVersion::ofProgramText() + "."});
        m_database->run("DROP DATABASE \"" + QString(m_name).replace('"', "\"\"") + '"');
    }

    void theAdministratorAndTheFormatsAreTheChosenOnes()
    {
        QCOMPARE(onDatabase("install", {"--admin-name", "owner", "--locale", "id_ID", "--date-format", "dd/MM"}).status,
                 0);
        QCOMPARE(m_database->value("SELECT password FROM users WHERE username = 'owner'"),
                 m_database->value("SELECT md5('open sesame')"));
        const QString formats =
            m_database->value("SELECT appvalue FROM appconfig WHERE appkey = 'localization'").toString();
        QVERIFY(formats.contains("id_ID") && formats.contains("dd/MM"));
        QCOMPARE(m_database->value("SELECT harga_jual_lokal_currency FROM item WHERE kode = 'aym'").toString(),
                 QString("Rp"));
        QCOMPARE(onDatabase("install", {"--replace", "--admin-password", "told"}).status, 0);
        QCOMPARE(m_database->value("SELECT password FROM users WHERE username = 'admin'"),
                 m_database->value("SELECT md5('told')"));
    }

    void tablesThatAreThereAreReplacedOnlyWhenTold()
    {
        QCOMPARE(onDatabase("install").status, 0);
        m_database->run("INSERT INTO meja (kode, nama, createdby, version) VALUES ('m9', 'Sold at already', 1, 1)");
        const Outcome refused = onDatabase("install");
        QCOMPARE(refused.status, 1);
        QVERIFY(refused.complaint.contains(m_name + " already holds tables"));
        QCOMPARE(m_database->value("SELECT count(*) FROM meja").toInt(), 3);
        QCOMPARE(onDatabase("install", {"--replace"}).status, 0);
        QCOMPARE(m_database->value("SELECT count(*) FROM meja").toInt(), 2);
    }

    void aFailedStepIsTheProgramsFailure()
    {
        m_database->run("CREATE VIEW meja AS SELECT 1 AS id");
        const Outcome installed = onDatabase("install", {"--write-settings"});
        QCOMPARE(installed.status, 1);
        QVERIFY(!installed.lines.filter(" meja error: ").isEmpty());
        QVERIFY(!QFile::exists(m_home->filePath("zavelpos/settings.ini")));
    }

    void theStatusTellsHowFarADatabaseIs_data()
    {
        const auto row = addColumns<QString, int>("state", "status");
        row("no tables", "empty", 3);
        row("cut short", "cut", 3);
        row("no such user", "user", 1);
        row("no server", "server", 1);
    }
    void theStatusTellsHowFarADatabaseIs()
    {
        QFETCH(QString, state);
        QFETCH(int, status);
        if (state == "cut")
            m_database->run("CREATE TABLE appconfig (id bigserial)");
        const QString host = state == "server" ? "/no/such/socket" : TestDatabase::host();
        const QString user = state == "user" ? "nobody_of_that_name" : TestDatabase::user();
        const Outcome outcome = setup({"status", "--host", host, "--port", QString::number(TestDatabase::port()),
                                       "--user", user, "--database", m_name});
        QCOMPARE(outcome.status, status);
        QVERIFY(outcome.complaint.isEmpty() || state != "empty");
        QVERIFY((outcome.lines.join(' ') + outcome.complaint).contains(m_name));
    }

    void anOlderDatabaseIsBroughtUpToDate()
    {
        QCOMPARE(onDatabase("install").status, 0);
        m_database->run("UPDATE appconfig SET appvalue = '1.0' WHERE appkey = 'app_version'");
        m_database->run("DELETE FROM access; DELETE FROM permissions; DELETE FROM business WHERE name = 'Table'");
        const Outcome updated = onDatabase("update");
        QCOMPARE(updated.lines.last(), QString("[100%] Done. Please restart the app"));
        QCOMPARE(m_database->value("SELECT appvalue FROM appconfig WHERE appkey = 'app_version'").toString(),
                 DatabaseVersion::ofProgramText());
        QCOMPARE(m_database->value("SELECT count(*) FROM access WHERE grant_type = 2"),
                 m_database->value("SELECT count(*) FROM permissions"));
        // Two changes fail on tables of this version, which have them already.
        QCOMPARE(updated.lines.filter(" error:"),
                 QStringList({"[25%] permissions error:", "[25%] acquisition error:"}));
        QCOMPARE(updated.status, 0);
        m_database->run(
            "INSERT INTO supplier (kode, nama, alamat, telp, email, version) VALUES ('T', '', '', '', '', 1)");
        m_database->run(
            "DO $$ DECLARE k text; BEGIN FOR k IN SELECT conname FROM pg_constraint WHERE conrelid = "
            "'supplier'::regclass AND contype = 'u' LOOP EXECUTE 'ALTER TABLE supplier DROP CONSTRAINT ' || k; "
            "END LOOP; END $$");
        m_database->run("UPDATE supplier SET kode = 'T'");
        const Outcome failed = onDatabase("update");
        QCOMPARE(failed.status, 1);
        QVERIFY(failed.lines.join(' ').contains("Key (kode)=(T) is duplicated"));
    }

    void nothingInstalledIsNothingToUpdate()
    {
        const Outcome outcome = onDatabase("update");
        QCOMPARE(outcome.status, 1);
        QVERIFY(outcome.complaint.contains(m_name));
        QCOMPARE(m_database->value("SELECT count(*) FROM pg_tables WHERE schemaname = 'public'").toInt(), 0);
    }

    void theSettingsAreReadByTheProgram()
    {
        QCOMPARE(onDatabase("install", {"--write-settings"}).status, 0);
        const ConnectionSettings settings = ConnectionSettings::read(m_home->filePath("zavelpos/settings.ini"));
        QCOMPARE(settings.host, TestDatabase::host());
        QCOMPARE(settings.database, m_name);
        QCOMPARE(settings.user, TestDatabase::user());
        QCOMPARE(settings.password, QString("from the environment"));
        QCOMPARE(settings.port, TestDatabase::port());
        QVERIFY(settings.showSidebar && settings.showDashboard);
    }

    void settingsThatCannotBeWrittenAreAFailure()
    {
        const Outcome outcome = onDatabase("install", {"--write-settings", "--settings", "/proc/no/settings.ini"});
        QCOMPARE(outcome.status, 1);
        QVERIFY(outcome.complaint.contains("Can't write the settings file: /proc/no/settings.ini"));
    }

    void wrongArgumentsAreRefused_data()
    {
        const auto row = addColumns<QStringList>("arguments");
        row("no command", {});
        row("unknown command", {"destroy"});
        row("two commands", {"install", "update"});
        row("unknown option", {"status", "--colour"});
        row("no number for a port", {"status", "--port", "many"});
        row("a port out of range", {"status", "--port", "66666"});
        row("no locale", {"install", "--locale", "Klingon"});
        row("a restaurant without guests", {"sample-trade", "--per-day", "0"});
    }
    void wrongArgumentsAreRefused()
    {
        QFETCH(QStringList, arguments);
        const Outcome outcome = setup(arguments);
        QCOMPARE(outcome.status, 2);
        QVERIFY(!outcome.complaint.isEmpty());
        QCOMPARE(outcome.lines, QStringList());
    }

private:
    Outcome setup(const QStringList& arguments) const
    {
        QProcess program;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("XDG_DATA_HOME", m_home->path());
        environment.insert("ZAVEL_DB_PASSWORD", "from the environment");
        environment.insert("ZAVEL_ADMIN_PASSWORD", "open sesame");
        program.setProcessEnvironment(environment);
        program.start(ZAVEL_SETUP_PROGRAM, arguments);
        if (!program.waitForFinished(60000) || program.exitStatus() != QProcess::NormalExit)
            return {-1, {}, program.errorString()};
        return {program.exitCode(), QString::fromUtf8(program.readAllStandardOutput()).split('\n', Qt::SkipEmptyParts),
                QString::fromUtf8(program.readAllStandardError())};
    }

    /** With the options that name this test's database. */
    Outcome onDatabase(const QString& command, const QStringList& options = {}) const
    {
        return setup(QStringList{command, "--host", TestDatabase::host(), "--port",
                                 QString::number(TestDatabase::port()), "--user", TestDatabase::user(), "--database",
                                 m_name} +
                     options);
    }

    std::unique_ptr<TestDatabase> m_database;
    std::unique_ptr<QTemporaryDir> m_home;
    QString m_name;
};

QTEST_GUILESS_MAIN(TestZavelSetup)
#include "tst_zavel_setup.moc"
