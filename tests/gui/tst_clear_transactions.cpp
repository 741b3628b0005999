#include "shell/database/clearing/DialogClearTransactions.h"
#include "support/DatabaseTest.h"
#include "support/WholeDatabase.h"

class TestClearTransactions : public DatabaseTest
{
    Q_OBJECT

protected:
    void prepare() override
    {
        fillEveryTable(*m_database);
        QDir().mkpath(QFileInfo(ConnectionSettings::defaultPath()).path());
        QVERIFY(m_database->settings().write(ConnectionSettings::defaultPath()));
        m_dialog = std::make_unique<DialogClearTransactions>();
        m_dialog->show();
        box(m_dialog.get(), "txtOutputFile")->setText(m_file);
    }
    void tidy() override
    {
        m_dialog.reset();
        qunsetenv("ZAVEL_PG_BIN");
        QFile::remove(m_file);
    }

private slots:
    void initTestCase()
    {
        qputenv("XDG_DATA_HOME", m_home.path().toLocal8Bit());
        m_file = m_home.filePath("old year.bak");
    }

    void allThatWasTradedGoesAndAllElseStays()
    {
        // What other tables do is up to their families.
        const QString staying =
            "access agent appconfig bank business data_perusahaan employee entities_history grouped_item images item "
            "jenis_item keytable meja member permissions printer_type satuan supplier user_group users";
        const QString going =
            "accounting_trans acquisition acquisition_detail bawa_pulang bawa_pulang_detail cash_flow credit_note "
            "credit_note_detail invoice invoice_bawa_pulang invoice_detail invoice_fast_food invoice_makan_ditempat "
            "item_history komisi_agen komisi_agen_detail makan_ditempat makan_ditempat_detail payment payment_expense "
            "payment_invoice piutang piutang_detail purchase_order purchase_order_detail stock_take";
        const QMap<QString, QStringList> before = allRows(m_database->name());
        const QSignalSpy closing(m_dialog.get(), &DialogClearTransactions::onCloseAllTab);
        button()->click();
        QVERIFY(!button()->isEnabled());
        waitForTheEnd();
        QCOMPARE(m_people->texts(), QStringList{"Done. "});
        QCOMPARE(m_people->lastTitle(), QString("Info"));
        QCOMPARE(closing.count(), 1);
        QVERIFY(QFileInfo(m_file).size() > 0);

        const QMap<QString, QStringList> after = allRows(m_database->name());
        for (auto table = before.cbegin(); table != before.cend(); ++table) {
            QVERIFY2(!table->isEmpty(), qPrintable(table.key()));
            if (table.key() == "stok_awal")
                QCOMPARE(value("SELECT count(*) || ' ' || sum(jumlah + harga_amount) FROM stok_awal"),
                         QString::number(table->size()) + " 0");
            else if (table.key().endsWith("_seq"))
                QCOMPARE(after[table.key()], *table);
        }
        for (const QString& table : staying.split(' '))
            QCOMPARE(after[table], before[table]);
        for (const QString& table : going.split(' '))
            QVERIFY2(before.contains(table) && after[table].isEmpty(), qPrintable(table));

        const QString told = status();
        QVERIFY(told.startsWith("dumping your db...\npg_dump started...\n"));
        QVERIFY(told.contains("\nprocess exited with code: 0 , status: 0\nThe backup is complete: " + m_file));
        QVERIFY(told.contains("\nresetting transactions: Purchases [ok]\n"));
        QVERIFY(told.indexOf("transactions: Purchases ") < told.indexOf("transactions: Table "));
        QVERIFY(!told.contains("[error]"));
    }

    void withoutAFileNothingRuns()
    {
        box(m_dialog.get(), "txtOutputFile")->clear();
        button()->click();
        QCOMPARE(m_people->texts(), QStringList{"Enter a valid backup file path"});
        QCOMPARE(m_people->lastTitle(), QString("Info"));
        QCOMPARE(status(), QString());
    }

    void withoutAGoodBackupNothingIsCleared_data()
    {
        const auto row = addColumns<QString, QString, QString, QString>("field", "value", "tool", "said");
        row("a user whom the server does not know", "txtDBUser", "stranger", "",
            "\nprocess exited with code: 1 , status: 0\n");
        row("another database of the same server", "txtDBName", "postgres", "", "another database");
        row("a folder that is not there", "txtOutputFile", "/nowhere/x.bak", "", "There is no folder");
        row("a program that writes nothing", "", "", "exit 0", "process exited with code: 0 , status: 0");
        row("a program that writes no backup", "", "", "while [ \"$1\" != -f ]; do shift; done; echo x >\"$2\"",
            "can not be read again");
    }
    void withoutAGoodBackupNothingIsCleared()
    {
        FETCH(QString, field, value, tool, said);
        const QTemporaryDir programs;
        if (!tool.isEmpty())
            TestCluster::replaceTool(programs.path(), "pg_dump",
                                     "#!/bin/sh\n[ \"$1\" = --version ] && exit 0\n" + tool.toLatin1() + '\n');
        else
            box(m_dialog.get(), field.toLatin1())->setText(value);
        const QMap<QString, QStringList> before = allRows(m_database->name());
        button()->click();
        waitForTheEnd();
        QVERIFY2(status().contains(said), qPrintable(status()));
        QVERIFY(!status().contains("resetting transactions"));
        QCOMPARE(m_people->texts().size(), 1);
        QCOMPARE(m_people->lastTitle(), QString("Error"));
        QCOMPARE(allRows(m_database->name()), before);
    }

    void whatIsSavedDuringTheBackupIsNotLost()
    {
        const int sales = count("invoice");
        run("BEGIN");
        run("LOCK TABLE meja IN ACCESS EXCLUSIVE MODE");
        run("UPDATE invoice SET note = 'paid' WHERE id = (SELECT max(id) FROM invoice)");
        button()->click();
        QTRY_VERIFY(count("pg_locks WHERE NOT granted") > 0);
        run("COMMIT");
        waitForTheEnd();
        QVERIFY(m_people->lastText().contains("does not hold it: invoice."));
        QCOMPARE(count("invoice"), sales);
        button()->click();
        waitForTheEnd();
        QCOMPARE(m_people->lastText(), QString("Done. "));
        QCOMPARE(count("invoice"), 0);
    }

    void aPartThatFailsIsToldAndTheOthersAreCleared_data()
    {
        addRows<QString>(
            "statement",
            {{"a table that refuses",
              "CREATE FUNCTION no() RETURNS trigger LANGUAGE plpgsql AS 'BEGIN RAISE ''locked away''; END'; "
              "CREATE TRIGGER no BEFORE TRUNCATE ON cash_flow EXECUTE FUNCTION no()"},
             {"a table that a till holds", "BEGIN; LOCK TABLE cash_flow IN ROW SHARE MODE"}});
    }
    void aPartThatFailsIsToldAndTheOthersAreCleared()
    {
        QFETCH(QString, statement);
        run(statement);
        button()->click();
        waitForTheEnd();
        QCOMPARE(m_people->texts(), QStringList{"Done. Error: 1"});
        QCOMPARE(status().count(" [error]\n"), 1);
        QVERIFY(status().contains("is marked by [error]"));
        QVERIFY(count("cash_flow") > 0);
        QCOMPARE(count("invoice") + count("accounting_trans") + count("bawa_pulang"), 0);
    }

private:
    QPushButton* button() const { return m_dialog->findChild<QPushButton*>("btnBackupAndClearTransactions"); }
    QString status() const { return m_dialog->findChild<QPlainTextEdit*>("txtStatus")->toPlainText(); }
    void waitForTheEnd()
    {
        QTRY_VERIFY_WITH_TIMEOUT(button()->isEnabled() && !QApplication::activeModalWidget(), 30000);
    }

    QTemporaryDir m_home;
    QString m_file;
    std::unique_ptr<DialogClearTransactions> m_dialog;
};

QTEST_MAIN(TestClearTransactions)
#include "tst_clear_transactions.moc"
