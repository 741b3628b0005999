#include "shell/database/check/DatabaseCondition.h"
#include "shell/database/tools/ClientPrograms.h"
#include "support/DatabaseTest.h"
#include "support/InstallerRun.h"

/** The check at program start after an interrupted installation, update or restore. */
class TestDatabaseCondition : public DatabaseTest
{
    Q_OBJECT

private slots:
    void whatIsInOrderIsNotComplainedOf_data()
    {
        const auto row = addColumns<QString, bool>("change", "update");
        row("just installed", "", false);
        row("up to date, updated once more", "", true);
        const QString older =
            "UPDATE appconfig SET appvalue = '1.0' WHERE appkey = 'app_version';"
            "DELETE FROM permissions WHERE permission_name = 'Add table'; DELETE FROM business WHERE id NOT IN "
            "(SELECT business_id FROM permissions); ALTER TABLE acquisition DROP CONSTRAINT acquisition_po_id_fkey;"
            "ALTER TABLE acquisition_detail DROP CONSTRAINT acquisition_detail_po_detail_id_fkey;"
            "ALTER TABLE purchase_order_detail DROP CONSTRAINT purchase_order_detail_purchase_order_id_fkey;"
            "ALTER TABLE business DROP CONSTRAINT business_name_key; DROP INDEX invoice_invoice_date_idx";
        row("of version 1.0", older, false);
        row("of version 1.0, updated", older, true);
        row("a right that was taken away", "DELETE FROM access; DELETE FROM user_group WHERE id = 1", false);
    }
    void whatIsInOrderIsNotComplainedOf()
    {
        QFETCH(QString, change);
        QFETCH(bool, update);
        m_database->run("DELETE FROM users; DELETE FROM access");
        if (!change.isEmpty())
            m_database->run(change);
        if (update)
            const InstallerRun run(KorInstaller::UpdateInstall);
        const DatabaseCondition found = condition();
        QVERIFY2(found.isWhole(), qPrintable(found.explanation()));
        QCOMPARE(found.explanation(), QString());
        QVERIFY(found.hasTables());
        const StatementCount count;
        QVERIFY(DatabaseCondition::read(DatabaseVersion::ofProgramText()).hasTables());
        QVERIFY(count.count() <= 2);
    }

    void whatIsMissingIsExplained_data()
    {
        const auto row = addColumns<QString, bool, QString>("damage", "usable", "told");
        row("table", "DROP TABLE meja CASCADE", false, "tables missing (meja)");
        row("table of lines", "DROP TABLE payment_invoice CASCADE", false, "tables missing (payment_invoice)");
        row("many tables", "DROP TABLE meja, agent, member, item, satuan, bank, users CASCADE", false, " and 2 more)");
        row("key", "ALTER TABLE komisi_agen DROP CONSTRAINT komisi_agen_pkey CASCADE", false,
            "without a primary key (komisi_agen)");
        row("reference", "ALTER TABLE stock_take DROP CONSTRAINT stock_take_item_id_fkey", true,
            "references between tables are missing (stock_take.item_id)");
        row("service",
            "DELETE FROM access; DELETE FROM permissions WHERE business_id = "
            "(SELECT id FROM business WHERE name = 'Table'); DELETE FROM business WHERE name = "
            "'Table'",
            true, "rights of some services are not complete (Table)");
        row("permission", "DELETE FROM access; DELETE FROM permissions WHERE permission_name = 'Add table'", true,
            "rights of some services are not complete (Table)");
        row("all rights", "DELETE FROM access; DELETE FROM permissions; DELETE FROM business", false,
            "nobody has any right yet");
        row("everything", "DROP SCHEMA public CASCADE; CREATE SCHEMA public", false, "");
    }
    void whatIsMissingIsExplained()
    {
        FETCH(QString, damage, told);
        m_database->run(damage);
        const DatabaseCondition found = condition();
        QVERIFY(!found.isWhole());
        QTEST(found.isUsable(), "usable");
        QVERIFY2(found.explanation().contains(told), qPrintable(found.explanation()));
        QCOMPARE(found.explanation().isEmpty(), told.isEmpty());
    }

    void aToolThatIsKilledIsNoticed_data()
    {
        const auto row = addColumns<bool, QString, QString>("restore", "at", "told");
        row("installing the tables", false, "create table  meja", "tables missing");
        row("registering the rights", false, "", "rights of some services");
        row("restoring the tables", true, "CREATE TABLE public.item ", "tables missing");
        row("restoring the keys", true, "ADD CONSTRAINT meja_pkey", "primary key");
        row("restoring the references", true, "ADD CONSTRAINT meja.*_fkey|ADD CONSTRAINT item.*_fkey",
            "references between tables");
    }
    void aToolThatIsKilledIsNoticed()
    {
        QFETCH(bool, restore);
        QFETCH(QString, at);
        const QTemporaryDir folder;
        const QString backup = folder.filePath("whole.bak");
        QCOMPARE(QProcess::execute(ClientPrograms::path("pg_dump"),
                                   server() + QStringList{"-F", "c", "-f", backup, m_database->name()}),
                 0);
        m_database.reset();
        m_database = std::make_unique<TestDatabase>(TestDatabase::Empty);
        // The server blocks the tool at the chosen statement or right.
        m_database->run("CREATE FUNCTION wait_in_row() RETURNS trigger LANGUAGE plpgsql AS $$ BEGIN "
                        "PERFORM pg_sleep(60); RETURN NEW; END $$");
        m_database->run(
            QString("CREATE FUNCTION wait_here() RETURNS event_trigger LANGUAGE plpgsql AS $$ BEGIN "
                    "IF '%1' <> '' AND current_query() ~ '%1' THEN PERFORM pg_sleep(60); END IF; "
                    "IF '%1' = '' AND tg_tag = 'CREATE TABLE' AND current_query() ~ 'table  permissions' THEN "
                    "CREATE TRIGGER wait BEFORE INSERT ON permissions FOR EACH ROW "
                    "WHEN (NEW.permission_name = 'Add table') EXECUTE FUNCTION wait_in_row(); END IF; END $$")
                .arg(at));
        m_database->run("CREATE EVENT TRIGGER halt ON ddl_command_end EXECUTE FUNCTION wait_here()");
        QProcess tool;
        if (restore)
            tool.start(ClientPrograms::path("pg_restore"),
                       server() + QStringList{"-F", "c", "-d", m_database->name(), backup});
        else
            tool.start(ZAVEL_SETUP_PROGRAM,
                       {"install", "--host", TestDatabase::host(), "--port", QString::number(TestDatabase::port()),
                        "--user", TestDatabase::user(), "--database", m_database->name(), "--replace"});
        QTRY_VERIFY_WITH_TIMEOUT(m_database
                                         ->value("SELECT count(*) FROM pg_stat_activity WHERE wait_event = 'PgSleep' "
                                                 "AND datname = current_database()")
                                         .toInt() == 1,
                                 30000);
        tool.kill();
        QVERIFY(tool.waitForFinished(30000));
        m_database->killConnections();
        QVERIFY(m_database->open());

        const DatabaseCondition found = condition();
        QVERIFY(!found.isWhole());
        QFETCH(QString, told);
        QVERIFY2(found.explanation().contains(told), qPrintable(found.explanation()));
    }

    void onlyOneInstallationRunsAtATime()
    {
        m_database->run("SELECT pg_advisory_lock(1095781)");
        const InstallerRun refused(KorInstaller::FreshInstall);
        QCOMPARE(refused.errors.size(), 1);
        QCOMPARE(refused.failures, refused.errors);
        QCOMPARE(refused.lines, QStringList());
        QVERIFY(condition().isWhole());
        m_database->run("SELECT pg_advisory_unlock(1095781)");
        // A finished run has released its lock.
        for (int i = 0; i < 2; ++i)
            QCOMPARE(InstallerRun(KorInstaller::FreshInstall).failures, QStringList());
    }

private:
    [[nodiscard]] QStringList server() const
    {
        return {"-h", TestDatabase::host(), "-p", QString::number(TestDatabase::port()), "-U", TestDatabase::user()};
    }
    [[nodiscard]] DatabaseCondition condition() const
    {
        const bool bears = m_database->value("SELECT to_regclass('appconfig')").isValid() &&
                           !value("SELECT to_regclass('appconfig')").isEmpty();
        return DatabaseCondition::read(bears ? value("SELECT appvalue FROM appconfig WHERE appkey = 'app_version'")
                                             : QString());
    }
};

QTEST_MAIN(TestDatabaseCondition)
#include "tst_database_condition.moc"
