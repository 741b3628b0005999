#include "GrownCatalogue.h"
#include "app/registry/AppMapperRegistry.h"
#include "shell/database/check/DatabaseCondition.h"
#include "shell/database/updater/AppDBUpdaterWizard.h"
#include "shell/window/MainWindow.h"
#include "support/DatabaseTest.h"
#include "support/OldDatabase.h"
#include "support/TestTemplate.h"

#include <QAbstractButton>

namespace
{
struct Outcome
{
    int status;
    QString told;
};

/** The version of the program, so many tenths later. */
QString version(int tenths) { return QString::number(DatabaseVersion::ofProgram() + tenths / 10.0, 'g', 3); }
} // namespace

/** A restaurant with a month of trade gets a newer version with one more family, two columns and an index. */
class TestDatabaseGrowth : public DatabaseTest
{
    Q_OBJECT

protected:
    void prepare() override
    {
        insertShop(*m_database);
        insertDineOrder(*m_database, {{2, 15}});
        setVersion(-1);
    }

private slots:
    void initTestCase()
    {
        // Created before the catalogue grows, since other tests clone the template too.
        ensureInstalledTemplate();
        addGrownCatalogue();
    }

    void whatTheUpdateWillBringIsNoDamage()
    {
        const DatabaseCondition older = DatabaseCondition::read(version(-1));
        QVERIFY2(older.isWhole(), qPrintable(older.explanation()));
        const DatabaseCondition current = DatabaseCondition::read(version(0));
        QVERIFY(!current.isUsable());
        QVERIFY2(current.explanation().contains("tables missing (wing, wing_room)"), qPrintable(current.explanation()));
        m_database->run("DROP TABLE agent CASCADE");
        const DatabaseCondition damaged = DatabaseCondition::readWithVersion();
        QVERIFY(!damaged.isUsable());
        QVERIFY2(damaged.explanation().contains("tables missing (agent)"), qPrintable(damaged.explanation()));
    }

    void theUpdateBringsTablesColumnsAndRights_data()
    {
        addRows<bool>("wizard", {{"by the wizard", true}, {"at the console", false}});
    }
    void theUpdateBringsTablesColumnsAndRights()
    {
        auto before = allRows(*m_database);
        QFETCH(bool, wizard);
        if (wizard) {
            updateByWizard();
        } else {
            QVERIFY(
                run(GROWN_SETUP_PROGRAM, {"status"}).told.contains("An update to version " + version(0) + " is due"));
            const Outcome updated = run(GROWN_SETUP_PROGRAM, {"update"});
            QVERIFY2(updated.status == 0, qPrintable(updated.told));
            const Outcome status = run(GROWN_SETUP_PROGRAM, {"status"});
            QCOMPARE(status.status, 0);
            QVERIFY(!status.told.contains("due"));
        }
        QCOMPARE(storedVersion(), version(0));
        const DatabaseCondition found = DatabaseCondition::readWithVersion();
        QVERIFY2(found.isWhole(), qPrintable(found.explanation()));
        QCOMPARE(rights(), 1);
        QCOMPARE(value("SELECT string_agg(indexname, ' ' ORDER BY indexname) FROM pg_indexes WHERE indexname "
                       "IN ('meja_wing_id_idx', 'wing_nama_idx')"),
                 QString("meja_wing_id_idx wing_nama_idx"));

        EntityWing garden;
        garden.setKode("G");
        garden.setNama("Garden");
        QVERIFY(service<BusinessWing>("Wing")->insert(&garden));
        m_database->run("UPDATE meja SET wing_id = (SELECT id FROM wing)");
        QCOMPARE(value("SELECT min(seats) || ' ' || pg_get_constraintdef(c.oid) FROM meja, pg_constraint c "
                       "WHERE conname = 'meja_wing_id_fkey' GROUP BY c.oid"),
                 QString("4 FOREIGN KEY (wing_id) REFERENCES wing(id)"));

        auto after = allRows(*m_database);
        QCOMPARE(after["meja"].size(), before["meja"].size());
        // Each of these has a row more, or other columns.
        for (const char* changed : {"meja", "appconfig", "business", "permissions", "access"})
            before.remove(changed);
        for (auto table = before.begin(); table != before.end(); ++table)
            QCOMPARE(after[table.key()], table.value());
    }

    void anUpdateThatFailedIsRepeated_data()
    {
        const auto row = addColumns<QString, int>("statement", "rights");
        row("at the table", "CREATE TABLE IF NOT EXISTS wing(", 0);
        row("at its lines", "CREATE TABLE IF NOT EXISTS wing_room(", 1);
        row("at a column", "ALTER TABLE meja ADD COLUMN IF NOT EXISTS wing_id", 1);
    }
    void anUpdateThatFailedIsRepeated()
    {
        QFETCH(QString, statement);
        m_database->run("CREATE FUNCTION refuse() RETURNS event_trigger LANGUAGE plpgsql AS $$ BEGIN IF "
                        "starts_with(current_query(), '" +
                        statement + "') THEN RAISE 'the disk is full'; END IF; END $$");
        m_database->run("CREATE EVENT TRIGGER full_disk ON ddl_command_start EXECUTE FUNCTION refuse()");
        const Outcome failed = run(GROWN_SETUP_PROGRAM, {"update"});
        QCOMPARE(failed.status, 1);
        QVERIFY2(failed.told.contains("the disk is full"), qPrintable(failed.told));
        QVERIFY(failed.told.contains("The database keeps the version that it had"));
        QCOMPARE(storedVersion(), version(-1));
        QTEST(rights(), "rights");
        // The next start offers the update once more.
        const DatabaseCondition found = DatabaseCondition::readWithVersion();
        QVERIFY2(found.isWhole(), qPrintable(found.explanation()));

        m_database->run("DROP EVENT TRIGGER full_disk");
        const Outcome repeated = run(GROWN_SETUP_PROGRAM, {"update"});
        QVERIFY2(repeated.status == 0, qPrintable(repeated.told));
        QCOMPARE(storedVersion(), version(0));
        QCOMPARE(rights(), 1);
        QVERIFY(DatabaseCondition::readWithVersion().isWhole());
    }

    void anOlderProgramLeavesTheDatabaseAlone_data()
    {
        const auto row = addColumns<QStringList, int>("command", "status");
        row("status", {"status"}, 4);
        row("update", {"update"}, 1);
        row("install anew", {"install", "--replace"}, 1);
    }
    void anOlderProgramLeavesTheDatabaseAlone()
    {
        QFETCH(QStringList, command);
        QCOMPARE(run(GROWN_SETUP_PROGRAM, {"update"}).status, 0);
        setVersion(1);
        const auto rows = allRows(*m_database);
        const auto schema = schemaOf(*m_database);
        const Outcome outcome = run(ZAVEL_SETUP_PROGRAM, command);
        QTEST(outcome.status, "status");
        QVERIFY2(outcome.told.contains("of version " + version(1) + ", and this program is of version " + version(0)),
                 qPrintable(outcome.told));
        QCOMPARE(allRows(*m_database), rows);
        QCOMPARE(schemaOf(*m_database), schema);
    }

    void whatTheLoginReadsIsUpdatedBeforeIt()
    {
        QCOMPARE(DatabaseCondition::read(version(-1)).updateFirst(), QString());
        // At the end, since the mapper stays in the registry.
        AppMapperRegistry::instance()->add(new DataMapperUserWithPin(AppMapperRegistry::instance()));
        QVERIFY(!DatabaseCondition::read(version(-1)).updateFirst().isEmpty());
        QCOMPARE(DatabaseCondition::read(version(0)).updateFirst(), QString());
    }

private:
    Outcome run(const QString& program, const QStringList& command) const
    {
        QProcess process;
        process.setProcessChannelMode(QProcess::MergedChannels);
        process.start(program, command + QStringList{"--host", TestDatabase::host(), "--port",
                                                     QString::number(TestDatabase::port()), "--user",
                                                     TestDatabase::user(), "--database", m_database->name()});
        if (!process.waitForFinished(60000) || process.exitStatus() != QProcess::NormalExit)
            return {-1, process.errorString()};
        return {process.exitCode(), QString::fromUtf8(process.readAll())};
    }

    void updateByWizard()
    {
        loginAsAdmin();
        AppContext::instance()->setShowDashboard(false);
        QVERIFY(m_database->open());
        MainWindow window;
        window.show();
        m_people->expect<AppDBUpdaterWizard>([](QWizard* wizard) {
            const auto* status = wizard->findChild<QPlainTextEdit*>();
            QTest::mouseClick(wizard->button(QWizard::NextButton), Qt::LeftButton);
            QTRY_VERIFY_WITH_TIMEOUT(status->toPlainText().contains("[100%]"), 15000);
            QVERIFY(status->toPlainText().contains("wing installed"));
            QTest::mouseClick(wizard->button(QWizard::FinishButton), Qt::LeftButton);
        });
        window.checkDBUpdate();
        QVERIFY(m_people->finished());
    }

    void setVersion(int tenths)
    {
        m_database->run("UPDATE appconfig SET appvalue = '" + version(tenths) + "' WHERE appkey = 'app_version'");
    }
    [[nodiscard]] QString storedVersion() const
    {
        return value("SELECT appvalue FROM appconfig WHERE appkey = 'app_version'");
    }
    [[nodiscard]] int rights() const
    {
        return value("SELECT count(*) FROM access JOIN permissions p ON p.id = permission_id "
                     "JOIN business b ON b.id = business_id WHERE b.name = 'Wing' AND grant_type = 2")
            .toInt();
    }
};

QTEST_MAIN(TestDatabaseGrowth)
#include "tst_database_growth.moc"
