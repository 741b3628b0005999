#include "app/access/DialogLogin.h"
#include "kor/persistence/KorQuery.h"
#include "shell/database/wizard/AppInstallerWizard.h"
#include "shell/window/ConfigDialog.h"
#include "shell/window/MainWindow.h"
#include "shell/window/ZavelApplication.h"
#include "support/DatabaseTest.h"

// This executable contains the tests and, with "--play", the program itself with scripted input.

namespace
{
void logIn(ModalDriver& person, const QString& password)
{
    person.expect<DialogLogin>([password](DialogLogin* login) {
        login->findChild<QLineEdit*>("txtUsername")->setText("admin");
        login->findChild<QLineEdit*>("txtPassword")->setText(password);
        login->accept();
    });
}

void nameTheDatabase(ModalDriver& person, const QString& name)
{
    person.expect<ConfigDialog>([name](ConfigDialog* dialog) {
        dialog->findChild<QLineEdit*>("txtDBHost")->setText(TestDatabase::host());
        dialog->findChild<QLineEdit*>("txtDBName")->setText(name);
        dialog->findChild<QLineEdit*>("txtDBUser")->setText(TestDatabase::user());
        dialog->findChild<QLineEdit*>("txtDBPort")->setText(QString::number(TestDatabase::port()));
        dialog->findChild<QPushButton*>("btnSaveDBConf")->click();
        dialog->reject();
    });
}

void setUp(ModalDriver& person, const QString& name)
{
    person.expect<AppInstallerWizard>([name](AppInstallerWizard* wizard) {
        wizard->next();
        wizard->setField("dbserverfresh.hostname", TestDatabase::host());
        wizard->setField("dbserverfresh.username", TestDatabase::user());
        wizard->setField("dbserverfresh.password", "not asked for");
        wizard->setField("dbserverfresh.dbname", name);
        wizard->setField("dbserverfresh.dbport", QString::number(TestDatabase::port()));
        wizard->setField("admin.password", "secret");
        wizard->next();
        const auto* finish = wizard->button(QWizard::FinishButton);
        if (wizard->currentId() == AppInstallerWizard::Conclusion &&
            QTest::qWaitFor([finish] { return finish->isEnabled(); }, 30000))
            wizard->accept();
        else
            wizard->reject();
    });
}

void onceTheWindowIsThere(const std::function<void(MainWindow*)>& work)
{
    QTimer::singleShot(10, qApp, [work] {
        auto* window = qobject_cast<MainWindow*>(AppContext::instance()->mainWindow());
        if (window && window->isActiveWindow())
            work(window);
        else
            onceTheWindowIsThere(work);
    });
}

int play(int& argc, char** argv)
{
    const QString script = argv[2];
    ZavelApplication program(argc, argv);
    ModalDriver person;
    if (script == "set up")
        setUp(person, argv[3]);
    if (script == "cancel the login")
        person.expect<DialogLogin>([](DialogLogin* login) { login->reject(); });
    if (script == "mend the settings") {
        nameTheDatabase(person, argv[3]);
        logIn(person, "a guess");
    }
    if (script == "log in after an update") {
        person.expect<DialogLogin>([](DialogLogin* login) {
            KorQuery().exec("UPDATE appconfig SET appvalue = '99' WHERE appkey = 'app_version'");
            login->findChild<QLineEdit*>("txtUsername")->setText("admin");
            login->findChild<QLineEdit*>("txtPassword")->setText("secret");
            login->accept();
        });
    }
    if (script == "mend the settings" || script == "work" || script == "restart" || script == "set up")
        logIn(person, "secret");
    onceTheWindowIsThere([script](MainWindow* window) {
        if (script == "restart")
            window->slotReboot();
        else
            window->close();
    });
    const int status = program.run();
    for (const SeenBox& box : person.boxes())
        QTextStream(stdout) << box.title << ": " << box.text << "|";
    QTextStream(stdout) << person.surprises().join(',');
    return status;
}

struct Ending
{
    QStringList boxes;
    QString surprises;
};
} // namespace

class TestStartSequence : public DatabaseTest
{
    Q_OBJECT

protected:
    void prepare() override
    {
        m_home = std::make_unique<QTemporaryDir>();
        QVERIFY(QDir().mkpath(QFileInfo(dataFile("x")).path()));
    }

private slots:
    void withoutSettingsTheWizardIsOfferedAndMayBeGivenUp()
    {
        const Ending ending = start("give up");
        QCOMPARE(ending.boxes, QStringList());
        QCOMPARE(ending.surprises, QString("AppInstallerWizard"));
        QVERIFY(!QFile::exists(dataFile("settings.ini")));
    }

    void aNewMachineIsSetUpByTheWizard()
    {
        m_database.reset();
        m_database = std::make_unique<TestDatabase>(TestDatabase::Empty);
        for (const char* script : {"set up", "work"}) {
            const Ending ending = start(script);
            QCOMPARE(ending.boxes, QStringList());
            QCOMPARE(ending.surprises, QString());
        }
        QCOMPARE(ConnectionSettings::read(dataFile("settings.ini")).database, m_database->name());
    }

    void aSettingsPathThatIsAFolderIsToldWhenSaving()
    {
        QVERIFY(QDir().mkpath(dataFile("settings.ini")));
        m_database.reset();
        m_database = std::make_unique<TestDatabase>(TestDatabase::Empty);
        QCOMPARE(start("set up").boxes,
                 QStringList{"Error: Can't write the settings file: " + dataFile("settings.ini")});
    }

    void settingsThatDoNotWorkAreToldAndTheConfigurationFollows_data()
    {
        addRows<QString>("kind", {{"damaged file", "damaged"},
                                  {"no port", "port"},
                                  {"unknown user", "user"},
                                  {"no server there", "server"}});
    }
    void settingsThatDoNotWorkAreToldAndTheConfigurationFollows()
    {
        QFETCH(QString, kind);
        ConnectionSettings shown = settings();
        if (kind == "user")
            shown.user = "nobody_of_that_name";
        if (kind == "server")
            shown.host = "/no/such/socket";
        if (kind == "port")
            shown.port = 0;
        if (kind == "damaged") {
            shown = {};
            QFile file(dataFile("settings.ini"));
            QVERIFY(file.open(QIODevice::WriteOnly));
            file.write("[General\ndbhost=AwI\\x1\ndbname=@Variant(\n\xff\xfe;;dbport==x\n");
        } else {
            QVERIFY(shown.write(dataFile("settings.ini")));
        }
        const Ending ending = start("give up");
        QCOMPARE(ending.boxes,
                 QStringList{QString("Error: Failed to open the database using this configuration:\r\nHost: %1, "
                                     "DB Name: %2, DB User: %3, DB Password: %4, Port: %5")
                                 .arg(shown.host, shown.database, shown.user, shown.password)
                                 .arg(shown.port)});
        QCOMPARE(ending.surprises, QString("ConfigDialog"));
    }

    void aDatabaseWithoutAVersionAsksForTheInstallation_data()
    {
        addRows<bool>("empty", {{"no tables at all", true}, {"no version in the table", false}});
    }
    void aDatabaseWithoutAVersionAsksForTheInstallation()
    {
        QFETCH(bool, empty);
        run(empty ? "DROP TABLE appconfig" : "DELETE FROM appconfig WHERE appkey = 'app_version'");
        QVERIFY(settings().write(dataFile("settings.ini")));
        const Ending ending = start("give up");
        QCOMPARE(ending.boxes, QStringList{"Error: Table: Config corrupted.\r\nPlease install the initial data"});
        QCOMPARE(ending.surprises, QString("ConfigDialog"));
    }

    void aDatabaseThatIsNotWholeIsToldBeforeTheLogin_data()
    {
        const auto row = addColumns<QString, QString, QString>("damage", "box", "next");
        row("a table is missing", "DROP TABLE komisi_agen_detail", "Error: ", "ConfigDialog");
        row("a newer program has updated it",
            "UPDATE appconfig SET appvalue = '99' WHERE appkey = "
            "'app_version'",
            "Error: The database is of version 99, and this program is of", "ConfigDialog");
        row("a reference is missing", "ALTER TABLE stock_take DROP CONSTRAINT stock_take_item_id_fkey",
            "Warning: ", "");
    }
    void aDatabaseThatIsNotWholeIsToldBeforeTheLogin()
    {
        QFETCH(QString, damage);
        install();
        run(damage);
        QVERIFY(settings().write(dataFile("settings.ini")));
        const Ending ending = start("work");
        QCOMPARE(ending.boxes.size(), 1);
        QFETCH(QString, box);
        QVERIFY(ending.boxes.first().startsWith(box));
        QTEST(ending.surprises, "next");
    }

    void anUpdateDuringTheLoginEndsTheOlderProgram()
    {
        install();
        QVERIFY(settings().write(dataFile("settings.ini")));
        const Ending ending = start("log in after an update");
        QCOMPARE(ending.boxes.size(), 1);
        QVERIFY(ending.boxes.first().startsWith("Error: The database is of version 99"));
        QCOMPARE(ending.surprises, QString());
    }

    void whoCancelsTheLoginSeesNothingFurther()
    {
        install();
        QVERIFY(settings().write(dataFile("settings.ini")));
        QCOMPARE(start("cancel the login").boxes, QStringList());
    }

    void settingsAreMendedOnTheWayToTheMainWindow()
    {
        install();
        ConnectionSettings wrong = settings();
        wrong.host = "/no/such/socket";
        wrong.password = "Qx7!Rm2z";
        QVERIFY(wrong.write(dataFile("settings.ini")));
        const Ending ending = start("mend the settings");
        QCOMPARE(ending.boxes.mid(1),
                 QStringList({"Success: Successfully connected to the database.", "Error: Invalid login\r\n"}));
        QCOMPARE(ending.surprises, QString());
        const ConnectionSettings saved = ConnectionSettings::read(dataFile("settings.ini"));
        QCOMPARE(saved.database, m_database->name());
        QCOMPARE(saved.password, QString("Qx7!Rm2z"));
    }

    void aRestartOnlyEndsTheProgram()
    {
        install();
        QVERIFY(settings().write(dataFile("settings.ini")));
        // The operating system keeps only the low byte of -123456789.
        QCOMPARE(start("restart", -123456789 & 0xff).boxes, QStringList());
    }

    void theLogTellsOfEveryStart()
    {
        m_home = std::make_unique<QTemporaryDir>();
        start("give up");
        start("give up");
        QFile log(dataFile("zavel.log"));
        QVERIFY(log.open(QIODevice::ReadOnly));
        const QStringList lines = QString::fromUtf8(log.readAll()).split('\n', Qt::SkipEmptyParts);
        QCOMPARE(lines.size(), 2);
        for (const QString& line : lines)
            QVERIFY(QRegularExpression("^\\d\\d\\.\\d\\d\\.\\d{4} \\d\\d:\\d\\d:\\d\\d Application Started$")
                        .match(line)
                        .hasMatch());
    }

private:
    /** Runs the program in a separate process. */
    Ending start(const QString& script, int expected = 0)
    {
        QProcess program;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("XDG_DATA_HOME", m_home->path());
        // Child processes find this program's test cluster only through the environment.
        environment.insert("ZAVEL_TEST_PGHOST", TestDatabase::host());
        environment.insert("ZAVEL_TEST_PGPORT", QString::number(TestDatabase::port()));
        environment.insert("ZAVEL_TEST_PGUSER", TestDatabase::user());
        program.setProcessEnvironment(environment);
        program.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        program.start(QCoreApplication::applicationFilePath(), {"--play", script, m_database->name()});
        if (!program.waitForFinished(30000))
            return {{"the program did not end"}, {}};
        QStringList parts = QString::fromUtf8(program.readAllStandardOutput()).split('|');
        const QString surprises = parts.takeLast();
        const int status = program.exitStatus() == QProcess::NormalExit ? program.exitCode() : -1;
        if (status != expected)
            parts.append(QString("it ended with %1").arg(status));
        return {parts, surprises};
    }

    QString dataFile(const QString& name) const
    {
        return m_home->filePath(QFileInfo(QCoreApplication::applicationFilePath()).fileName() + '/' + name);
    }
    ConnectionSettings settings() const
    {
        ConnectionSettings settings = m_database->settings();
        settings.password = "not asked for";
        return settings;
    }

    void install()
    {
        for (const char* table : {"appconfig", "users", "user_group"})
            run(QString("TRUNCATE %1 CASCADE").arg(table));
        insert("appconfig", "appkey='app_version', appvalue='" + DatabaseVersion::ofProgramText() + '\'');
        insert("user_group", "id=1, name='admin'");
        insert("users", "username='admin', password=md5('secret')");
    }

    std::unique_ptr<QTemporaryDir> m_home;
};

int main(int argc, char** argv)
{
    if (argc > 3 && qstrcmp(argv[1], "--play") == 0)
        return play(argc, argv);
    QApplication application(argc, argv);
    TestStartSequence tests;
    return QTest::qExec(&tests, argc, argv);
}
#include "tst_start_sequence.moc"
