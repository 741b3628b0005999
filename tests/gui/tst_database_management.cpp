#include "shell/database/backup/DialogBackupDB.h"
#include "support/DatabaseTest.h"
#include "support/TestTemplate.h"
#include "support/WholeDatabase.h"

#include <QFileDialog>
#include <QSqlQuery>
#include <QTcpServer>

#include <csignal>

/** The database form with PostgreSQL's real client programs. */
class TestDatabaseManagement : public DatabaseTest
{
    Q_OBJECT

protected:
    void prepare() override
    {
        ConnectionSettings settings = m_database->settings();
        settings.showSidebar = false;
        QDir().mkpath(QFileInfo(ConnectionSettings::defaultPath()).path());
        QVERIFY(settings.write(ConnectionSettings::defaultPath()));
        open();
    }
    void tidy() override
    {
        m_dialog.reset();
        AppContext::instance()->databaseManager()->close();
        for (QString name : qAsConst(m_made))
            TestCluster::instance().run("DROP DATABASE IF EXISTS \"" + name.replace('"', "\"\"") + "\" WITH (FORCE)");
        m_made.clear();
        qunsetenv("ZAVEL_PG_BIN");
    }

private slots:
    void initTestCase() { qputenv("XDG_DATA_HOME", m_home.path().toLocal8Bit()); }

    void whatWasBackedUpComesBackAndCanBeWorkedWith_data()
    {
        addRows<bool>("isNew", {{"into a new database", true}, {"into an empty one", false}});
    }
    void whatWasBackedUpComesBackAndCanBeWorkedWith()
    {
        QFETCH(bool, isNew);
        fillEveryTable(*m_database);
        const QMap<QString, QStringList> rows = allRows(m_database->name());
        for (const QStringList& table : rows)
            QVERIFY(!table.isEmpty());
        const QString schema = schemaOf(m_database->name());

        const QString path = backup();
        QCOMPARE(m_people->texts(), QStringList{"DB Backup Selesai"});
        QCOMPARE(m_people->lastTitle(), QString("Info"));
        const QString told = status("txtBackupStatus");
        QVERIFY2(told.startsWith("dumping your db...\npg_dump started...\n"), qPrintable(told));
        QVERIFY(told.contains("dumping contents of table \"public.images\""));
        QVERIFY(told.contains("\nprocess exited with code: 0, status:0\nThe backup is complete: " + path));
        m_database->run("TRUNCATE item, meja, users CASCADE");

        const QString name = newDatabase(QString::fromUtf8(" Café \"Ö\" = 'x' \\"));
        if (!isNew)
            TestCluster::instance().run("CREATE DATABASE \"" + QString(name).replace('"', "\"\"") + '"');
        tab(1);
        set("txtDBNameImport", name);
        set("txtInputFileImport", path);
        m_dialog->findChild<QCheckBox*>("cbCreateNewDB")->setChecked(isNew);
        run("btnRestore");
        QCOMPARE(m_people->texts(), QStringList{"Your database has been successfully restored"});
        QCOMPARE(status("txtRestoreStatus").contains("creating your db...\ncreatedb started...\n"), isNew);
        QVERIFY(status("txtRestoreStatus").contains("restoring your db...\npg_restore started...\n"));
        QVERIFY(status("txtRestoreStatus").contains("\nprocess exited with code: 0, status: 0\n"));
        QCOMPARE(allRows(name), rows);
        QCOMPARE(schemaOf(name), schema);

        const QSignalSpy changed(m_dialog.get(), &DialogBackupDB::onUpdateDBConf);
        m_people->clear();
        click(m_dialog.get(), "btnSetActiveDB");
        QCOMPARE(changed.count(), 0);
        m_people->answer(QMessageBox::Yes);
        click(m_dialog.get(), "btnSetActiveDB");
        QCOMPARE(changed.count(), 1);
        QCOMPARE(m_people->boxes().at(1).title, QString("Update DB Config"));
        QCOMPARE(m_people->boxes().at(1).text,
                 "Are you sure, you want to use this database: " + name + " for this application?");
        QCOMPARE(m_people->lastText(), QString("Please restart the app first!"));
        const ConnectionSettings settings = ConnectionSettings::read(ConnectionSettings::defaultPath());
        QCOMPARE(settings.database, name);
        QVERIFY(!settings.showSidebar && settings.showDashboard);
        QVERIFY(AppContext::instance()->databaseManager()->open(settings.host, settings.database, settings.user,
                                                                settings.password, settings.port));

        open();
        tab(2);
        for (const char* work : {"btnVacuum", "btnReindex"}) {
            run(work);
            QCOMPARE(m_people->texts(), QStringList{"Done"});
        }
        QVERIFY(status("txtVacuumStatus").startsWith("vacuuming your db...\nstarted...\n"));
        QVERIFY(status("txtVacuumStatus").contains("\nreindexing your db...\nstarted...\n"));
        QCOMPARE(status("txtVacuumStatus").count("process exited with code: 0, status: 0\nThe database was tidied."),
                 2);
        QCOMPARE(allRows(name), rows);
    }

    void aPasswordOfAnyLettersOpensTheDatabase()
    {
        const QString password = QString::fromUtf8("two words 'é\" = \\$HOME");
        const QTemporaryDir folder("/tmp/zavel-cluster-XXXXXX");
        QVERIFY(QFile::setPermissions(folder.path(), QFile::Permissions(0x7755)));
        QTcpServer probe;
        QVERIFY(probe.listen(QHostAddress::LocalHost));
        const QString port = QString::number(probe.serverPort());
        probe.close();
        QProcess server;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("ZAVEL_DB_PASSWORD", password);
        server.setProcessEnvironment(environment);
        server.start(QString(ZAVEL_SOURCE_DIR) + "/scripts/private-postgres",
                     {"keep", folder.filePath("cluster"), port, "--", "sh", "-c", "echo up; cat"});
        QVERIFY2(server.waitForReadyRead(60000), server.readAllStandardError().constData());

        set("txtDBHost", "127.0.0.1");
        set("txtDBPort", port);
        set("txtDBName", "postgres");
        set("txtDBPassword", password);
        const QString path = backup();
        QVERIFY2(status("txtBackupStatus").contains("process exited with code: 0"),
                 qPrintable(status("txtBackupStatus")));
        const QByteArray good = content(path);
        set("txtDBPassword", "wrong");
        backup();
        QVERIFY(status("txtBackupStatus").contains("password authentication failed"));
        QVERIFY(status("txtBackupStatus").endsWith("as it was.\n"));
        QCOMPARE(content(path), good);
        server.closeWriteChannel();
        QVERIFY(server.waitForFinished());
    }

    void aBackupThatFailsIsToldAndTheEarlierOneStays_data()
    {
        const auto row = addColumns<QString, QString, QString, QString>("field", "value", "said", "shown");
        row("no such host", "txtDBHost", "/nowhere", "process exited with code: 1, status:0", "DB Backup Selesai");
        row("no such database", "txtDBName", "gone", "process exited with code: 1, status:0", "DB Backup Selesai");
        row("no such program", "", "", "Error 0\n", "Error: ");
        row("no such folder", "txtOutputFile", "/nowhere/x.bak", "", "There is no folder /nowhere.");
        row("a folder", "txtOutputFile", "/tmp", "", "/tmp is no file.");
        row("a folder that takes no files", "txtOutputFile", "/proc/x.bak", "", "can not be written");
    }
    void aBackupThatFailsIsToldAndTheEarlierOneStays()
    {
        FETCH(QString, field, value, said, shown);
        const QString path = backup();
        const QByteArray good = content(path);
        QVERIFY(!good.isEmpty());
        open();
        set("txtOutputFile", path);
        const QTemporaryDir programs;
        if (field.isEmpty())
            TestCluster::replaceTool(programs.path(), "pg_dump", "#!/nowhere\n");
        else
            set(field.toLatin1(), value);
        if (value == "gone") {
            // As after a crash of the program: a partial file in place of the backup.
            QVERIFY(QFile::rename(path, path + ".previous"));
            QFile piece(path);
            QVERIFY(piece.open(QIODevice::WriteOnly) && piece.write("PGDMP") > 0);
            set("txtInputFileImport", path);
            run("btnRestore");
            QVERIFY(m_people->lastText().contains("The one before it is " + path + ".previous"));
        }
        run("btnBackup");
        QVERIFY2(m_people->texts().value(0).contains(shown), qPrintable(m_people->texts().join('|')));
        QVERIFY2(status("txtBackupStatus").contains(said), qPrintable(status("txtBackupStatus")));
        QCOMPARE(status("txtBackupStatus").contains("No new backup was written. The earlier one"), !said.isEmpty());
        QCOMPARE(content(path), good);
        QVERIFY(!QFile::exists(path + ".previous"));
        QVERIFY(QFile::remove(path));
    }

    void aBackupThatIsCutOffLeavesTheEarlierOne_data() { addNames("who", {"the program", "the server", "the owner"}); }
    void aBackupThatIsCutOffLeavesTheEarlierOne()
    {
        QFETCH(QString, who);
        const QString path = backup();
        const QByteArray good = content(path);
        m_database->run("BEGIN");
        m_database->run("LOCK TABLE meja IN ACCESS EXCLUSIVE MODE");
        m_people->clear();
        button("btnBackup")->click();
        QTRY_VERIFY(waiting(m_database->name()) != 0);
        QVERIFY(!button("btnBackup")->isEnabled() && !button("btnBrowse")->isEnabled());
        QVERIFY(button("btnVacuum")->isEnabled());
        // Nobody else can read the password hashes in it, not even during the backup.
        QCOMPARE(QFile::permissions(path), QFile::Permissions(0x6600));
        if (who == "the owner") {
            giveUp(m_dialog.get());
            QVERIFY(m_dialog->isVisible());
            m_people->answer(QMessageBox::Yes);
            giveUp(m_dialog.get());
            QVERIFY(!m_dialog->isVisible());
            m_dialog.reset();
            QTRY_COMPARE(waiting(m_database->name()), 0);
        } else {
            if (who == "the server")
                m_database->run("SELECT pg_terminate_backend(" + QString::number(waiting(m_database->name())) + ')');
            else
                killTool("pg_dump");
            QTRY_VERIFY(button("btnBackup")->isEnabled() && !QApplication::activeModalWidget());
            QVERIFY(m_people->texts().contains("DB Backup Selesai"));
            QVERIFY(m_people->lastText().contains("No new backup was written."));
            QVERIFY(
                status("txtBackupStatus").contains(who == "the server" ? "code: 1, status:0" : "code: 9, status:1"));
        }
        m_database->run("ROLLBACK");
        QCOMPARE(content(path), good);
        QVERIFY(!QFile::exists(path + ".previous"));
    }

    void filesAreChosenInAWindow()
    {
        const QList<QStringList> windows{{"btnBrowse", "txtOutputFile", "Save File", "new", "new.bak"},
                                         {"btnBrowseImport", "txtInputFileImport", "Open File", "old.bak", "old.bak"}};
        QVERIFY(QFile(m_home.filePath("old.bak")).open(QIODevice::WriteOnly));
        m_database->run("UPDATE data_perusahaan SET nama_perusahaan = 'Café \"O''Hara/Sons\"'");
        for (const QStringList& window : windows) {
            m_people->expect<QFileDialog>([&](QFileDialog* dialog) {
                QCOMPARE(dialog->windowTitle(), window[2]);
                QCOMPARE(dialog->nameFilters(), QStringList{"Backup File (*.bak)"});
                auto* name = dialog->findChild<QLineEdit*>("fileNameEdit");
                if (dialog->acceptMode() == QFileDialog::AcceptSave)
                    QCOMPARE(name->text(), "Café_O_Hara_Sons" + QDate::currentDate().toString("-yyyy-MM-dd") + ".bak");
                name->setText(m_home.filePath(window[3]));
                static_cast<QDialog*>(dialog)->accept();
            });
            button(window[0].toLatin1())->click();
            QCOMPARE(box(m_dialog.get(), window[1].toLatin1())->text(), m_home.filePath(window[4]));
        }
        // What is typed without the window gets the ending too.
        set("txtOutputFile", m_home.filePath("evening"));
        run("btnBackup");
        QVERIFY(QFile::exists(m_home.filePath("evening.bak")));
        QCOMPARE(QFile::permissions(m_home.filePath("evening.bak")), QFile::Permissions(0x6600));
    }

    void whatIsMissingIsAskedFor()
    {
        const QList<QPair<const char*, QString>> missing{{"btnBackup", "Enter the ouput file"},
                                                         {"btnRestore", "Please enter the input file"},
                                                         {"btnVacuum", "Please enter the database name"},
                                                         {"btnReindex", "Please enter the database name"}};
        set("txtDBNameMaintenance", "");
        for (const auto& press : missing) {
            run(press.first);
            QCOMPARE(m_people->texts(), QStringList{press.second});
            QCOMPARE(m_people->lastTitle(), QString("Info"));
        }
        set("txtInputFileImport", "/nowhere.bak");
        run("btnRestore");
        QCOMPARE(m_people->lastText(), QString("There is no backup file /nowhere.bak."));
        set("txtDBNameImport", "");
        run("btnRestore");
        QCOMPARE(m_people->lastText(), QString("Please enter the database name"));
    }

    void aDatabaseInUseIsNotRestoredOverUnasked()
    {
        set("txtInputFileImport", backup());
        m_database->run("INSERT INTO meja (kode, nama, version) VALUES ('m9', 'Garden', 1)");
        const QMap<QString, QStringList> rows = allRows(m_database->name());
        // The name is taken: if the database cannot be created, nothing is restored over it.
        m_dialog->findChild<QCheckBox*>("cbCreateNewDB")->setChecked(true);
        run("btnRestore");
        QVERIFY(m_people->lastText().contains(QRegularExpression("holds [0-9]+ tables already")));
        QCOMPARE(m_people->texts().size(), 1);
        QVERIFY(status("txtRestoreStatus").contains("Nothing was restored."));
        QCOMPARE(allRows(m_database->name()), rows);

        // The program itself uses the database, so it cannot be renamed either.
        restoreOver();
        QVERIFY2(m_people->lastText().contains("was not replaced"), qPrintable(m_people->lastText()));
        QVERIFY(status("txtRestoreStatus").contains("is being accessed by other users"));
        QCOMPARE(allRows(m_database->name()), rows);
    }

    void aDatabaseThatIsReplacedIsKeptUnderAnotherName()
    {
        set("txtInputFileImport", backup());
        const QMap<QString, QStringList> rows = allRows(m_database->name());
        const QString name = newDatabase(QString(30, 'x'));
        TestCluster& cluster = TestCluster::instance();
        cluster.run("CREATE DATABASE " + name + " TEMPLATE " + installedTemplateName());
        set("txtDBNameImport", name);

        // It is renamed back if no new database can be created.
        const QTemporaryDir programs;
        TestCluster::replaceTool(programs.path(), "createdb", "#!/bin/sh\nexit 1\n");
        restoreOver();
        QCOMPARE(m_people->lastText(), "Nothing was restored. The database " + name + " is as it was.");
        QVERIFY(cluster.hasDatabase(name));
        qunsetenv("ZAVEL_PG_BIN");

        restoreOver();
        QCOMPARE(m_people->lastText(), QString("Your database has been successfully restored"));
        const QString told = status("txtRestoreStatus").section("kept under the name ", -1).section('.', 0, 2);
        m_made.append(told);
        QVERIFY2(cluster.hasDatabase(told), qPrintable(told));
        QCOMPARE(allRows(name), rows);
        // The sequences continue after the backup's values.
        AppContext::instance()->databaseManager()->open(TestDatabase::host(), name, TestDatabase::user(), {},
                                                        TestDatabase::port());
        QSqlQuery next;
        QVERIFY(next.exec("INSERT INTO meja (kode, nama, version) VALUES ('m9', 'Garden', 1)"));
    }

    void aRestoreThatIsCutOffIsToldAsIncomplete_data()
    {
        addRows<bool>("byServer", {{"the program", false}, {"the server", true}});
    }
    void aRestoreThatIsCutOffIsToldAsIncomplete()
    {
        QFETCH(bool, byServer);
        set("txtInputFileImport", backup());
        const QMap<QString, QStringList> rows = allRows(m_database->name());
        // The restore is blocked after the tables are filled and before the indexes are created.
        const TestDatabase target(TestDatabase::Empty);
        const_cast<TestDatabase&>(target).run(
            "CREATE FUNCTION wait() RETURNS event_trigger LANGUAGE plpgsql AS 'BEGIN PERFORM pg_advisory_lock(1); "
            "END'; "
            "CREATE EVENT TRIGGER wait ON ddl_command_start WHEN TAG IN ('CREATE INDEX') EXECUTE FUNCTION wait(); "
            "SELECT pg_advisory_lock(1)");
        set("txtDBNameImport", target.name());
        m_people->clear();
        button("btnRestore")->click();
        QTRY_VERIFY_WITH_TIMEOUT(waiting(target.name()) != 0, 20000);
        QVERIFY(!button("btnRestore")->isEnabled() && !button("btnSetActiveDB")->isEnabled());
        if (byServer)
            m_database->run("SELECT pg_terminate_backend(" + QString::number(waiting(target.name())) + ')');
        else
            killTool("pg_restore");
        QTRY_VERIFY(button("btnRestore")->isEnabled() && !QApplication::activeModalWidget());
        QVERIFY(m_people->texts().contains("Your database has been successfully restored"));
        QVERIFY(m_people->lastText().startsWith("The restore failed"));
        QVERIFY(status("txtRestoreStatus").endsWith(m_people->lastText() + '\n'));
        QVERIFY(button("btnSetActiveDB")->isEnabled());
        QCOMPARE(allRows(m_database->name()), rows);
    }

    void aDatabaseThatCannotBeMadeIsTold()
    {
        set("txtInputFileImport", backup());
        set("txtDBNameImport", newDatabase(" new"));
        set("txtDBUserImport", "stranger");
        m_dialog->findChild<QCheckBox*>("cbCreateNewDB")->setChecked(true);
        run("btnRestore");
        const QString told = status("txtRestoreStatus");
        QVERIFY(told.contains("was not created, the reason stands above."));
        QVERIFY(told.contains("pg_restore started..."));
        QCOMPARE(told.count("process exited with code: 1, status: 0"), 2);
        QVERIFY(!TestCluster::instance().hasDatabase(m_made.last()));
    }

private:
    void open()
    {
        m_dialog = std::make_unique<DialogBackupDB>();
        showForm(m_dialog.get());
    }

    void tab(int index) { m_dialog->findChild<QTabWidget*>("tabWidget")->setCurrentIndex(index); }
    void set(const char* name, const QString& text) { box(m_dialog.get(), name)->setText(text); }
    void restoreOver() { run("btnRestore", QMessageBox::Yes); }
    /** Presses the button, gives this answer, and waits until the form can be worked with again. */
    void run(const char* name, QMessageBox::StandardButton answer = QMessageBox::NoButton)
    {
        m_people->clear();
        if (answer != QMessageBox::NoButton)
            m_people->answer(answer);
        button(name)->click();
        QTRY_VERIFY_WITH_TIMEOUT(button(name)->isEnabled() && !QApplication::activeModalWidget(), 30000);
    }

    QPushButton* button(const char* name) const { return m_dialog->findChild<QPushButton*>(name); }
    QString status(const char* name) const { return m_dialog->findChild<QPlainTextEdit*>(name)->toPlainText(); }
    QString backup()
    {
        const QString path = m_home.filePath("a shop.bak");
        set("txtOutputFile", path);
        run("btnBackup");
        return path;
    }

    static QByteArray content(const QString& path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    /** The server's process that waits for a lock, 0 for none. */
    int waiting(const QString& database)
    {
        return value(
                   "SELECT pid FROM pg_locks JOIN pg_database d ON d.oid = database WHERE NOT granted AND datname = '" +
                   database + "'")
            .toInt();
    }

    static void killTool(const QString& name)
    {
        QProcess process;
        process.start("pgrep", {"-P", QString::number(QCoreApplication::applicationPid()), "-x", name});
        QVERIFY(process.waitForFinished());
        const int pid = process.readAllStandardOutput().trimmed().toInt();
        QVERIFY(pid > 0);
        ::kill(pid, SIGKILL);
    }

    QString newDatabase(const QString& suffix)
    {
        m_made.append(m_database->name() + suffix);
        return m_made.last();
    }

    QTemporaryDir m_home;
    std::unique_ptr<DialogBackupDB> m_dialog;
    QStringList m_made;
};

QTEST_MAIN(TestDatabaseManagement)
#include "tst_database_management.moc"
