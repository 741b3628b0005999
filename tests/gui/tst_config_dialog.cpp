#include "shell/window/ConfigDialog.h"
#include "support/DatabaseTest.h"
#include "zavel/tables/BusinessMeja.h"

class TestConfigDialog : public DatabaseTest
{
    Q_OBJECT

protected:
    void prepare() override
    {
        run("DELETE FROM appconfig");
        run("INSERT INTO appconfig (appkey, is_json, appvalue, version) VALUES "
            "('localization', true, '{\"locale\":\"id_ID\",\"date_time_format\":\"dd/MM/yy\"}', 1)");
    }
    void tidy() override
    {
        m_dialog.reset();
        QFile::remove(ConnectionSettings::defaultPath());
    }

private slots:
    void initTestCase() { qputenv("XDG_DATA_HOME", m_home.path().toLocal8Bit()); }

    void withoutSettingsTheUsualValuesAreOffered()
    {
        open();
        QCOMPARE(m_dialog->windowTitle(), QString("Configuration"));
        QCOMPARE(m_dialog->findChild<QTabWidget*>("tabWidget")->currentIndex(), 0);
        QCOMPARE(field("txtDBHost")->text(), QString("localhost"));
        QCOMPARE(field("txtDBName")->text(), QString("ZavelPOS"));
        QCOMPARE(field("txtDBUser")->text(), QString("postgres"));
        QCOMPARE(field("txtDBPassword")->text(), QString("Qx7!Rm2z"));
        QCOMPARE(field("txtDBPort")->text(), QString("6666"));
        QVERIFY(m_dialog->findChild<QCheckBox*>("cbShowSidebar")->isChecked());
        QVERIFY(m_dialog->findChild<QCheckBox*>("cbShowDashboard")->isChecked());
        const auto* locales = m_dialog->findChild<QComboBox*>("txtLocale");
        QCOMPARE(locales->itemText(0), QString("en_US"));
        QCOMPARE(locales->itemText(1), QString("id_ID"));
        QCOMPARE(locales->count(), 2);
    }

    void cancellingWritesNothing()
    {
        open();
        field("txtDBHost")->setText("elsewhere");
        field("txtDateTimeFormat")->setText("yyyy");
        press(m_dialog.get(), QDialogButtonBox::Cancel);
        QVERIFY(!QFile::exists(ConnectionSettings::defaultPath()));
        QVERIFY(value("SELECT appvalue FROM appconfig").contains("dd/MM/yy"));
    }

    void whatIsSavedReadsBackAndCannotBeReadInTheFile()
    {
        open();
        field("txtDBHost")->setText("db.restaurant.example");
        field("txtDBName")->setText(QString::fromUtf8("Dépôt; \"1\""));
        field("txtDBUser")->setText("waiter");
        field("txtDBPassword")->setText("hunter=2,;");
        field("txtDBPort")->setText("5433");
        m_dialog->findChild<QCheckBox*>("cbShowDashboard")->setChecked(false);
        press(m_dialog.get(), QDialogButtonBox::Ok);
        QCOMPARE(m_dialog->result(), int(QDialog::Accepted));

        const QString path = ConnectionSettings::defaultPath();
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray content = file.readAll();
        for (const char* secret : {"restaurant", "waiter", "hunter"})
            QVERIFY(!content.contains(secret));
        QVERIFY(content.contains("dbport=5433\n"));
        QVERIFY(content.contains("showdashboard=false\n"));
        QVERIFY(!(file.permissions() & (QFile::ReadGroup | QFile::ReadOther)));

        // A copy, so that no cached content of the file is used.
        const QString copy = m_home.filePath("copy.ini");
        QFile::remove(copy);
        QVERIFY(file.copy(copy));
        const ConnectionSettings read = ConnectionSettings::read(copy);
        QCOMPARE(read.host, QString("db.restaurant.example"));
        QCOMPARE(read.database, QString::fromUtf8("Dépôt; \"1\""));
        QCOMPARE(read.user, QString("waiter"));
        QCOMPARE(read.password, QString("hunter=2,;"));
        QCOMPARE(read.port, 5433);
        QVERIFY(read.showSidebar);
        QVERIFY(!read.showDashboard);
    }

    void theFormatsAreSharedWithAllWorkstations()
    {
        open();
        QCOMPARE(field("txtDateTimeFormat")->text(), QString("dd/MM/yy"));
        QCOMPARE(m_dialog->findChild<QComboBox*>("txtLocale")->currentText(), QString("id_ID"));
        field("txtDateTimeFormat")->setText("whatever I like");
        m_dialog->findChild<QComboBox*>("txtLocale")->setCurrentText("en_US");
        save();
        const QString stored = value("SELECT appvalue FROM appconfig");
        QVERIFY(stored.contains("whatever I like"));
        QVERIFY(stored.contains("en_US"));
        // Saved once more it is no conflict with oneself.
        field("txtDateTimeFormat")->setText("yyyy-MM-dd");
        save();
        QCOMPARE(m_people->texts(), QStringList());
        QVERIFY(value("SELECT appvalue FROM appconfig").contains("yyyy-MM-dd"));
    }

    void pricesInAnotherCurrencyAreAskedFor_data()
    {
        const auto row = addColumns<int, QString>("answer", "stored");
        row("restated", QMessageBox::Yes, "en_US $ 25000 $ 7");
        row("left alone", QMessageBox::No, "en_US Rp 25000 Rp 7");
        row("locale kept", QMessageBox::Cancel, "id_ID Rp 25000 Rp 7");
    }
    void pricesInAnotherCurrencyAreAskedFor()
    {
        QFETCH(int, answer);
        run("DELETE FROM stok_awal");
        run("DELETE FROM grouped_item");
        run("DELETE FROM item");
        loginAsAdmin();
        {
            Builders make;
            EntityItem* rice = make.item("RICE", "Rice", 25000);
            make.openOrder(make.table("t1"), {make.line(rice, 1)});
            insert("stok_awal", QString("item_id=%1, harga_currency='Rp', harga_amount=7").arg(rice->getId()));
        }
        open();
        m_dialog->findChild<QComboBox*>("txtLocale")->setCurrentText("en_US");
        m_people->answer(QMessageBox::StandardButton(answer));
        save();
        QVERIFY2(m_people->lastText().startsWith("1 items and 1 open orders are priced in another currency than $."),
                 qPrintable(m_people->lastText()));
        QTEST(value("SELECT concat_ws(' ', appvalue::json->>'locale', harga_jual_lokal_currency, "
                    "harga_jual_lokal_amount, harga_currency, harga_amount) FROM appconfig, item JOIN stok_awal ON "
                    "item_id = item.id WHERE appkey = 'localization'"),
              "stored");
    }

    void anotherWorkstationsChangeIsTold()
    {
        open();
        run("UPDATE appconfig SET version = version + 1");
        save();
        QCOMPARE(m_people->boxes().size(), 1);
        QCOMPARE(m_people->lastTitle(), QString("Error"));
        QVERIFY(!service<BusinessMeja>("Table")->hasError());
        QVERIFY(!KorServiceDirectory::get("Configuration")->hasError());
    }

    void aDatabaseWithoutFormatsIsNoReasonToComplain()
    {
        run("DROP TABLE appconfig");
        open();
        QCOMPARE(field("txtDateTimeFormat")->text(), QString("d MMM yyyy"));
        save();
        QCOMPARE(m_people->texts(), QStringList());
        QVERIFY(!KorServiceDirectory::get("Configuration")->hasError());
    }

    void withoutAConnectionNothingIsAskedOfTheServer()
    {
        AppContext::instance()->databaseManager()->close();
        const StatementCount statements;
        open();
        save();
        QCOMPARE(statements.count(), 0);
        QCOMPARE(field("txtDateTimeFormat")->text(), QString("d MMM yyyy"));
        QCOMPARE(m_people->texts(), QStringList());
    }

    void theLogFileIsNamed()
    {
        QFile earlier(m_home.filePath("zavel.log"));
        QVERIFY(earlier.open(QIODevice::WriteOnly) && earlier.setPermissions(QFile::Permissions(0x6644)));
        KorLogger logger(nullptr, m_home.filePath("zavel.log"));
        QCOMPARE(earlier.permissions(), QFile::Permissions(0x6600));
        AppContext::instance()->setLogger(&logger);
        open();
        QCOMPARE(field("txtLogFile")->text(), m_home.filePath("zavel.log"));
        QVERIFY(field("txtLogFile")->isReadOnly());
        AppContext::instance()->setLogger(nullptr);
    }

    void liveRecordsAreListedAndFreedOnceTheWindowsAreClosed()
    {
        run("INSERT INTO meja (id, kode, nama, createdby, version) VALUES (41, 'x41', 'Bar', 1, 1)");
        open();
        const QPointer<KorEntity> table = service<BusinessMeja>("Table")->findByCode("x41");
        QVERIFY(table);
        button("btnListEntities")->click();
        QVERIFY(listed().contains(":EntityMeja id:41"));
        QVERIFY(listed().startsWith("child #0:"));

        const QSignalSpy closing(m_dialog.get(), &ConfigDialog::onCloseAllTab);
        m_people->answer(QMessageBox::Yes);
        button("btnKillEntities")->click();
        QCOMPARE(m_people->texts(), QStringList{"Are you sure all the windows has been closed?"});
        QCOMPARE(m_people->lastTitle(), QString("Question"));
        QCOMPARE(closing.count(), 1);
        QVERIFY(!table);
        QVERIFY(!listed().contains("EntityMeja"));
        // The formats that the dialog held are gone as well; it has read them again.
        field("txtDateTimeFormat")->setText("after the clearing");
        save();
        QVERIFY(value("SELECT appvalue FROM appconfig").contains("after the clearing"));
    }

    void anEmptyDatabaseIsInstalledFromTheDialog()
    {
        m_database.reset();
        m_database = std::make_unique<TestDatabase>(TestDatabase::Empty);
        open();
        m_dialog->findChild<QComboBox*>("txtLocale")->setCurrentText("id_ID");
        button("installBtn")->click();
        QVERIFY(!button("installBtn")->isEnabled());
        m_dialog->reject();
        QVERIFY(m_dialog->isVisible());
        QCOMPARE(m_people->texts(), QStringList{"Please wait until the installation completed."});
        const auto* status = m_dialog->findChild<QPlainTextEdit*>("txtStatus");
        QTRY_VERIFY_WITH_TIMEOUT(button("installBtn")->isEnabled(), 30000);
        const QStringList lines = status->toPlainText().split('\n');
        QCOMPARE(lines.first(), QString("[0%] Initializing..."));
        QCOMPARE(lines.last(), QString("[100%] Done. Please restart the app"));
        QCOMPARE(lines.filter(" error: "), QStringList());
        QVERIFY(value("SELECT appvalue FROM appconfig WHERE appkey = 'localization'").contains("id_ID"));
        QCOMPARE(m_dialog->findChild<QComboBox*>("txtLocale")->currentText(), QString("id_ID"));
        m_dialog->reject();
        QVERIFY(!m_dialog->isVisible());
    }

    void anInstalledDatabaseIsMadeAnewOnlyAfterAQuestion()
    {
        insert("appconfig", "appkey='app_version', appvalue='" + DatabaseVersion::ofProgramText() + '\'');
        run("INSERT INTO meja (kode, nama, createdby, version) VALUES ('m9', 'Sold at already', 1, 1)");
        open();
        m_people->answer(QMessageBox::No);
        button("installBtn")->click();
        QVERIFY(button("installBtn")->isEnabled());
        QVERIFY(m_people->lastText().contains(m_database->name()));
        QCOMPARE(count("meja WHERE kode = 'm9'"), 1);

        m_people->answer(QMessageBox::Yes);
        button("installBtn")->click();
        QTRY_VERIFY_WITH_TIMEOUT(button("installBtn")->isEnabled(), 30000);
        QCOMPARE(count("meja WHERE kode = 'm9'"), 0);
    }

private:
    QLineEdit* field(const char* name) const { return box(m_dialog.get(), name); }
    QPushButton* button(const QString& name) const { return m_dialog->findChild<QPushButton*>(name); }
    QString listed() const { return m_dialog->findChild<QPlainTextEdit*>("txtStatusEntities")->toPlainText(); }
    void open()
    {
        m_dialog = std::make_unique<ConfigDialog>();
        m_dialog->show();
    }

    void save()
    {
        const QSignalSpy saved(m_dialog.get(), &ConfigDialog::onUpdateDBConf);
        button("btnSaveDBConf")->click();
        QCOMPARE(saved.count(), 1);
    }

    QTemporaryDir m_home;
    std::unique_ptr<ConfigDialog> m_dialog;
};

QTEST_MAIN(TestConfigDialog)
#include "tst_config_dialog.moc"
