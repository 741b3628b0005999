#include "support/DatabaseTest.h"
#include "support/InstallerRun.h"

namespace
{
/** Errors of every update of a new database: a table that never existed, and a constraint that exists already. */
const QStringList knownComplaints{"permissions error: ", "acquisition error: "};
} // namespace

/** The update of a restaurant's existing database by a newer program. */
class TestDatabaseUpdate : public DatabaseTest
{
    Q_OBJECT

protected:
    void prepare() override { AppContext::instance()->setCurrentUser(nullptr); }

private slots:
    void anUpdateIsDueForAnOlderDatabaseOnly_data()
    {
        const auto row = addColumns<QString, bool>("change", "due");
        row("just installed", "", false);
        row("older", "UPDATE appconfig SET appvalue = '1.0' WHERE appkey = 'app_version'", true);
        row("newer", "UPDATE appconfig SET appvalue = '99' WHERE appkey = 'app_version'", false);
        row("unreadable", "UPDATE appconfig SET appvalue = 'x' WHERE appkey = 'app_version'", true);
        row("unknown", "DELETE FROM appconfig WHERE appkey = 'app_version'", false);
    }
    void anUpdateIsDueForAnOlderDatabaseOnly()
    {
        QFETCH(QString, change);
        if (!change.isEmpty())
            m_database->run(change);
        ZavelInstaller installer;
        QTEST(installer.isUpdateNeeded(), "due");
    }

    void anUpToDateDatabaseKeepsItsRows()
    {
        const QString rows =
            "select string_agg(md5(query_to_xml('select * from ' || tablename || ' order by id', true, "
            "false, '')::text), ' ' order by tablename) from pg_tables where schemaname = 'public' and "
            "tablename <> 'appconfig'";
        const QString before = value(rows);
        const InstallerRun run(KorInstaller::UpdateInstall);
        QCOMPARE(run.failures, knownComplaints);
        QVERIFY(run.lines.contains("[25%] acquisition error: "));
        QVERIFY(run.lines.contains("[25%] appconfig installed"));
        QCOMPARE(run.lines.last(), QString("[100%] Done. Please restart the app"));
        QCOMPARE(value(rows), before);
        QCOMPARE(version(), DatabaseVersion::ofProgramText());
    }

    void migrationsBelowTheStartingVersionAreLeftOut()
    {
        m_database->run("ALTER TABLE meja ALTER COLUMN kode TYPE varchar(10)");
        const InstallerRun run(KorInstaller::UpdateInstall, [](ZavelInstaller& installer) {
            QCOMPARE(installer.getFromVersion(), 0.0);
            installer.setFromVersion(DatabaseVersion::ofProgram() + 0.1);
        });
        QCOMPARE(run.failures, QStringList());
        QCOMPARE(widthOfTableCodes(), QString("10"));
    }

    void theVersionIsRaisedOnlyWhereThereIsOne()
    {
        m_database->run("DELETE FROM appconfig WHERE appkey = 'app_version'");
        const InstallerRun run(KorInstaller::UpdateInstall);
        QCOMPARE(run.failures, knownComplaints);
        QCOMPARE(count("appconfig where appkey = 'app_version'"), 0);
    }

    void aNewPermissionIsAddedAndOldGrantsStay()
    {
        m_database->run("DELETE FROM access WHERE permission_id = (SELECT id FROM permissions WHERE permission_name = "
                        "'Add table')");
        m_database->run("DELETE FROM permissions WHERE permission_name = 'Add table'");
        m_database->run("UPDATE access SET grant_type = 0 WHERE permission_id = (SELECT id FROM permissions WHERE "
                        "permission_name = 'Delete table')");
        m_database->run("INSERT INTO access (group_id, permission_id, grant_type, version) SELECT 3, id, 1, 1 FROM "
                        "permissions WHERE permission_name = 'Update table'");
        const InstallerRun run(KorInstaller::UpdateInstall);
        QCOMPARE(run.failures, knownComplaints);
        QCOMPARE(grantOf("Add table"), QString("admin 2"));
        QCOMPARE(grantOf("Delete table"), QString("admin 0"));
        QCOMPARE(grantOf("Update table"), QString("admin 2, kasir 1"));
        QCOMPARE(value("select count(*) from permissions join business on business.id = business_id where "
                       "business.name = 'Table'")
                     .toInt(),
                 3);
    }

    void withoutAdministratorsNobodyGetsANewPermission()
    {
        m_database->run("UPDATE user_group SET name = 'owners' WHERE name = 'admin'");
        m_database->run("DELETE FROM access");
        m_database->run("DELETE FROM permissions WHERE permission_name = 'Add table'");
        const InstallerRun run(KorInstaller::UpdateInstall);
        QCOMPARE(run.failures, knownComplaints);
        QCOMPARE(count("permissions where permission_name = 'Add table'"), 1);
        QCOMPARE(count("access"), 0);
    }

    void missingIndexesAreMadeAgain()
    {
        const QString named = "select string_agg(indexdef, E'\\n' order by indexname) from pg_indexes where indexname "
                              "like '%\\_idx'";
        const QString before = value(named);
        m_database->run("DO $$ DECLARE i text; BEGIN FOR i IN SELECT indexname FROM pg_indexes WHERE indexname LIKE "
                        "'%\\_idx' LOOP EXECUTE 'DROP INDEX ' || i; END LOOP; END $$");
        QVERIFY(value(named).isEmpty());
        const InstallerRun run(KorInstaller::UpdateInstall);
        QCOMPARE(run.failures, knownComplaints);
        QCOMPARE(value(named), before);
    }

    void aTableThatIsMissingIsToldAndTheRestGoesOn()
    {
        m_database->run("DROP TABLE meja CASCADE");
        m_database->run("DROP TABLE invoice_detail CASCADE");
        m_database->run("UPDATE appconfig SET appvalue = '1' WHERE appkey = 'app_version'");
        const InstallerRun run(KorInstaller::UpdateInstall);
        QStringList told;
        for (const QString& failure : run.failures)
            told.append(failure.section(' ', 0, 0));
        QCOMPARE(told, (QStringList{"permissions", "acquisition", "invoice_detail", "meja"}));
        QCOMPARE(version(), DatabaseVersion::ofProgramText());
    }

private:
    [[nodiscard]] QString version() const
    {
        return value("select appvalue from appconfig where appkey = 'app_version'");
    }
    [[nodiscard]] QString widthOfTableCodes() const
    {
        return value("select character_maximum_length from information_schema.columns where table_name = 'meja' and "
                     "column_name = 'kode'");
    }
    [[nodiscard]] QString grantOf(const char* permission) const
    {
        return value(
            QString("select string_agg(user_group.name || ' ' || grant_type, ', ' order by user_group.id) from "
                    "access join user_group on user_group.id = group_id join permissions on permissions.id = "
                    "permission_id where permission_name = '%1'")
                .arg(permission));
    }
};

QTEST_MAIN(TestDatabaseUpdate)
#include "tst_database_update.moc"
