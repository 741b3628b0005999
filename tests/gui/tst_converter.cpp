#include "app/context/EntityPool.h"
#include "pos/masterdata/item/BusinessItem.h"
#include "shell/database/converter/DialogConverter.h"
#include "support/DatabaseTest.h"

#include <QSqlError>
#include <QSqlQuery>
#include <QUuid>

/** The conversion of a former system's data. */
class TestConverter : public DatabaseTest
{
    Q_OBJECT

protected:
    void prepare() override
    {
        m_legacy = "old_" + QUuid::createUuid().toString(QUuid::Id128);
        TestCluster::instance().run("CREATE DATABASE " + m_legacy);
        legacy(TestDatabase::textOf("gui/former_system.sql"));
        open();
    }
    void tidy() override
    {
        m_dialog.reset();
        TestCluster::instance().run("DROP DATABASE " + m_legacy + " WITH (FORCE)");
    }

private slots:
    void initTestCase() { qputenv("XDG_DATA_HOME", m_home.path().toLocal8Bit()); }

    void theSourceIsAskedForFirst_data()
    {
        const auto row = addColumns<QString, QString>("empty", "text");
        row("host", "txtSourceHost txtSourceUser", "Enter the source host");
        row("user", "txtSourceUser txtSourcePassword", "Enter the source database username");
        row("password", "txtSourcePassword txtSourcePort", "Enter the source database password");
        row("port", "txtSourcePort txtSourceDBName", "Enter the source database port");
        row("database", "txtSourceDBName", "Enter the source database name");
    }
    void theSourceIsAskedForFirst()
    {
        FETCH(QString, empty, text);
        QCOMPARE(shown(m_dialog.get(), "txtSourcePassword"), QString("sorrelmint"));
        for (const QString& name : empty.split(' '))
            fill(name, "");
        start();
        QCOMPARE(m_people->texts(), QStringList{text});
        QVERIFY(isIdle());
    }

    void everyRowIsBroughtOverOrAccountedFor()
    {
        insertRows(*m_database, "purchase_order", "id=7, no='PO-1', supplier_id=1");
        KorLogger logger(nullptr, m_home.filePath("zavel.log"));
        AppContext::instance()->setLogger(&logger);
        convert();
        AppContext::instance()->setLogger(nullptr);
        QCOMPARE(m_people->texts(), QStringList());
        QVERIFY(!isMarked());

        QCOMPARE(row("nama_perusahaan, alamat, phone, npwp) from data_perusahaan"),
                 QString("(\"Warung D'Ibu\",\"Jl. Mawar 1, Bandung\",022-123,01.234)"));
        QCOMPARE(row("nama) from satuan where kode = 'BH'"), QString("(\"Pieces (BH)\")"));
        QCOMPARE(
            row("nama, alamat, telp, email, norek_atasnama, notes) from supplier where kode = 'S01'"),
            QString("(\"Pasar D'Angelo\",\"Jl. Pasar 5\",\"\",\"\",\"B. Santoso\",\"Contact: Budi\nmonday's only\")"));
        QCOMPARE(row("length(nama), telp) from supplier where kode = 'S02'"),
                 QString("(200,\"021-5550123 / 021-55\")"));
        QCOMPARE(row("nama, discount_percentage, expired_date > now()) from member where kode = 'M-1'"),
                 QString("(Ana,7.5,t)"));
        QCOMPARE(row("nama, telp, commision_perc) from agent where kode = 'A-1'"), QString("(Guide,\"\",12.5)"));
        QCOMPARE(row("nama) from employee where kode = 'W1'"), QString("(Ketut)"));
        const QString item =
            "item_type, is_group, harga_beli_amount, harga_jual_lokal_amount, harga_jual_luar_amount, "
            "sales_acct_code, inventory_acct_code, cost_of_sales_acct_code, jenis_item.kode, satuan.nama) "
            "from item join jenis_item on jenis_item.id = jenis join satuan on satuan.id = satuan where "
            "item.kode = ";
        QCOMPARE(row(item + "'I1'"), QString("(1,t,10001,25000,30000,4050,1200,5000,PANAS,Pieces)"));
        QCOMPARE(row(item + "'I2'"), QString("(2,f,1000,5000,,4050,1200,5000,NOWHERE,GELAS)"));
        QCOMPARE(row(item + "'I3'"), QString("(1,f,0,0,,4050,1200,5000,-,\"Without unit\")"));
        QCOMPARE(count("stok_awal join item on item.id = item_id where item.kode in ('I1','I2','I3')"), 3);

        const QString purchase =
            "purchase_date, status, sub_total_amount, tax_amount, grandtotal_amount, "
            "amount_paid_amount, other_payment_amount, net_due_amount, apply_to_po, coalesce(po_id, "
            "-1)) from acquisition where no = ";
        QCOMPARE(row(purchase + "'B-1'"), QString("(2019-03-01,1,100000,10000,110000,50000,60000,0,f,-1)"));
        QCOMPARE(row(purchase + "'B-2'"), QString("(2019-03-02,3,50001,0,50001,10000,20000,20001,f,-1)"));
        QCOMPARE(row(purchase + "'B-3'"), QString("(2019-05-01,2,5000,0,5000,0,0,5000,t,7)"));
        QCOMPARE(count("acquisition"), 3);
        QCOMPARE(row("qty, price_each_amount, total_price_amount) from acquisition_detail join acquisition on "
                     "acquisition.id = acquisition_id where no = 'B-2'"),
                 QString("(3,20000,50001)"));
        QCOMPARE(count("item_history where no in ('B-1', 'B-2', 'B-3')"), 3);
        const QString payment = "payment_type, bank.kode, check_no, noref, grandtotal_amount, (select count(*) from "
                                "payment_invoice where payment_id = payment.id)) from payment join bank on bank.id = "
                                "bank_id where no = ";
        QCOMPARE(row(payment + "'P-1'"), QString("(1,1010,\"\",\"\",60000,1)"));
        QCOMPARE(row(payment + "'P-2'"), QString("(3,1020,CK-9,\"a number of more tha\",20000,1)"));
        QCOMPARE(count("payment"), 2);

        QFile log(m_home.filePath("zavel.log"));
        QVERIFY(log.open(QIODevice::ReadOnly));
        const QString logged = QString::fromUtf8(log.readAll());
        for (const char* line : {"item type null:I2", "item type null:I3", "can not find PO no"})
            QVERIFY2(logged.contains(line), line);
        // Every reason why a row was skipped or changed is shown in the form and in the log.
        for (const char* line :
             {"tbljenisbrg: 4 read, 2 written, 2 skipped", "tblsupplier: 4 read, 2 written, 2 skipped",
              "skipped, it has no code: Without code", "skipped, the code exists already: s01",
              "in full \"021-5550123 / 021-5550124\": S02", "tblbarang: 5 read, 3 written, 2 skipped",
              "larger than the program can hold: I4", "amounts rounded to whole units: I1",
              "\"NOWHERE\" was missing and has been added (Item Type): I2", "tblbeli: 4 read, 3 written, 1 skipped",
              "skipped, there is no supplier \"NOBODY\": B-4", "the purchase order PO-NONE was not found: B-2",
              "skipped, there is no such item: B-2/GONE", "skipped, deleted in the former system: B-1/I2",
              "tblbelidetail: 5 read, 3 written, 2 skipped", "skipped, there is no such purchase: P-2/B-9"}) {
            QVERIFY2(status().contains(line), qPrintable(line + ('\n' + status())));
            QVERIFY2(logged.contains(line), line);
        }
        QVERIFY(status().contains("[0%] Converting company profile\n[10%] done\n[10%] Converting item type"));
        QVERIFY(status().contains("[90%] Converting payment\n[100%] done\n"));
    }

    void aSecondRunDoublesNothing()
    {
        convert();
        const QString state =
            "select string_agg(xml::text, '') from (select query_to_xml('select * from ' || t || ' order "
            "by id', true, false, '') xml from unnest(array['data_perusahaan','jenis_item','satuan',"
            "'supplier','member','agent','employee','item','stok_awal','acquisition',"
            "'acquisition_detail','payment','payment_invoice','item_history','keytable']) t) x";
        const QString first = value(state);
        QVERIFY(first.size() > 5000);
        convert();
        QVERIFY(value(state) == first);
        for (const char* line : {"tblprs: 1 read, 0 written, 1 skipped", "tblsatuan: 3 read, 0 written, 3 skipped",
                                 "tblbarang: 5 read, 0 written, 5 skipped", "the number exists already: B-1, B-2, B-3",
                                 "tblbayarbeli: 3 read, 0 written, 3 skipped"})
            QVERIFY2(status().contains(line), qPrintable(line + ('\n' + status())));
    }

    void whoeverHasEnteredTheCompanyKeepsIt()
    {
        run("update data_perusahaan set nama_perusahaan = 'Ours', version = 2");
        convert();
        QCOMPARE(value("select nama_perusahaan from data_perusahaan"), QString("Ours"));
        QVERIFY(status().contains("skipped, the company profile has been entered already: Warung D'Ibu"));
    }

    void twoThousandItemsTakeSecondsAndSteadyStatements()
    {
        addItems(2000);
        QElapsedTimer clock;
        clock.start();
        const StatementCount statements;
        int paints = 0;
        QTimer screen;
        connect(&screen, &QTimer::timeout, this, [&] {
            // Open pages still work meanwhile.
            EntityPool pool;
            const EntityPoolScope scope(pool);
            paints += service<BusinessItem>("Item")->findByCode("X1") || true;
        });
        screen.start(50);
        convert();
        QCOMPARE(m_people->texts(), QStringList());
        QCOMPARE(count("item where kode like 'X%'"), 2000);
        QVERIFY2(clock.elapsed() < 20000, qPrintable(QString::number(clock.elapsed())));
        QVERIFY(paints > 5);
        QVERIFY2(statements.count() < 2000 * 6 + 500 + paints, qPrintable(QString::number(statements.count())));
        QVERIFY(!service<BusinessItem>("Item")->hasError());
    }

    void aSourceThatIsNotThereIsTold()
    {
        fill("txtSourceDBName", "no such database");
        convert();
        QCOMPARE(m_people->lastTitle(), QString("Error"));
        QVERIFY(m_people->lastText().contains("no such database"));
        QVERIFY(!isMarked());
    }

    void aDatabaseWithoutTheTablesIsTold()
    {
        legacy("drop schema public cascade; create schema public");
        convert();
        QCOMPARE(m_people->texts(), QStringList{"The source database holds no table of the former system."});
        QVERIFY(status().contains("tblprs: 0 read, 0 written, 0 skipped"));
    }

    void twoWorkstationsDoNotConvertAtATime()
    {
        m_database->value("select pg_advisory_lock(hashtext('conversion'))");
        convert();
        QCOMPARE(m_people->texts(), QStringList{"The data are being brought over at another workstation."});
        QCOMPARE(count("item where kode = 'I1'"), 0);
    }

    void aPurchaseIsNotTakenOverWithoutItsLines()
    {
        legacy("drop table tblbelidetail");
        convert();
        QCOMPARE(count("acquisition"), 0);
        QCOMPARE(count("payment"), 0);
        for (const char* line : {"skipped, its lines could not be read: B-1",
                                 "not read to the end: ", "skipped, none of its purchases is there: P-1, P-2"})
            QVERIFY2(status().contains(line), qPrintable(line + ('\n' + status())));
    }

    void whatWasBrokenOffIsExplainedAndFinished_data()
    {
        const auto row = addColumns<QString, QString>("sessions", "words");
        row("the former system's server goes away", "pg_stat_activity where datname = 'OLD'",
            "The connection to the source database is lost");
        row("the program's own server goes away",
            "pg_locks where locktype = 'advisory' and database = (select oid from pg_database where datname = 'NEW')",
            "The connection to the database is lost");
    }
    void whatWasBrokenOffIsExplainedAndFinished()
    {
        FETCH(QString, sessions, words);
        addItems(2000);
        start();
        QTRY_VERIFY_WITH_TIMEOUT(count("item where kode like 'X%'") > 300, 20000);
        // In the middle of an item: it is inserted, its balance waits.
        const QString waiting = "pg_stat_activity where datname = current_database() and wait_event_type = 'Lock'";
        run("begin; lock table stok_awal in exclusive mode");
        QTRY_VERIFY_WITH_TIMEOUT(count(waiting) > 0, 20000);
        TestCluster::instance().run("select pg_terminate_backend(pid) from " +
                                    sessions.replace("OLD", m_legacy).replace("NEW", m_database->name()));
        run("commit");
        QTRY_VERIFY_WITH_TIMEOUT(isIdle(), 30000);
        QCOMPARE(m_people->boxes().size(), 1);
        QCOMPARE(m_people->lastTitle(), QString("Error"));
        QVERIFY2(m_people->lastText().contains(words), qPrintable(m_people->lastText()));
        QVERIFY(isMarked());
        const int before = count("item where kode like 'X%'");
        QVERIFY(before < 2000);
        QCOMPARE(count("stok_awal"), count("item"));

        open();
        QVERIFY(status().contains("has not come to its end"));
        convert();
        QCOMPARE(count("item where kode like 'X%'"), 2000);
        QCOMPARE(count("stok_awal"), count("item"));
        QCOMPARE(count("acquisition"), 3);
        QCOMPARE(m_people->boxes().size(), 1);
        QVERIFY(!isMarked());
    }

    void aDocumentThatWasLeftWithoutItsConsequencesGetsThem()
    {
        convert();
        // As after a crash right after the last purchase or payment was written.
        run("delete from item_history where no = 'B-3'");
        run("update acquisition set other_payment_amount = 0, net_due_amount = 40001 where no = 'B-2'");
        run("insert into appconfig (appkey, is_json, appvalue, version) values ('conversion', false, 'begun', 1)");
        convert();
        QCOMPARE(row("qty_in) from item_history where no = 'B-3'"), QString("(5)"));
        QCOMPARE(count("item_history where no in ('B-1', 'B-2', 'B-3')"), 3);
        QCOMPARE(row("other_payment_amount, net_due_amount) from acquisition where no = 'B-2'"),
                 QString("(20000,20001)"));
        QVERIFY(!isMarked());
    }

    void theFormIsNotClosedUnderARun()
    {
        addItems(2000);
        start();
        m_people->answer(QMessageBox::No);
        m_dialog->reject();
        QVERIFY(m_dialog->isVisible());
        m_people->answer(QMessageBox::Yes);
        m_dialog->reject();
        QTRY_VERIFY_WITH_TIMEOUT(!m_dialog->isVisible(), 10000);
        QCOMPARE(m_people->boxes().size(), 2);
        QVERIFY(isMarked());
        const int stopped = count("item");
        QVERIFY(stopped < 2000);

        // When the program ends, the run ends too.
        open();
        start();
        QTRY_VERIFY_WITH_TIMEOUT(count("item") > stopped, 20000);
        m_dialog.reset();
        QVERIFY(count("item") < 2000);
        QVERIFY(isMarked());
    }

private:
    void open()
    {
        m_dialog = std::make_unique<DialogConverter>();
        m_dialog->show();
        fill("txtSourceHost", TestDatabase::host());
        fill("txtSourceUser", TestDatabase::user());
        fill("txtSourcePort", QString::number(TestDatabase::port()));
        fill("txtSourceDBName", m_legacy);
    }

    void fill(const QString& name, const QString& text) { box(m_dialog.get(), qPrintable(name))->setText(text); }
    QString status() const { return m_dialog->findChild<QPlainTextEdit*>("txtStatus")->toPlainText(); }
    bool isIdle() const { return m_dialog->findChild<QPushButton*>("btnConvert")->isEnabled(); }
    void start() { QTest::mouseClick(m_dialog->findChild<QPushButton*>("btnConvert"), Qt::LeftButton); }

    void convert()
    {
        start();
        QTRY_VERIFY_WITH_TIMEOUT(isIdle(), 30000);
    }

    void legacy(const QString& statement)
    {
        {
            QSqlDatabase database = QSqlDatabase::addDatabase("QPSQL", "legacy");
            database.setHostName(TestDatabase::host());
            database.setPort(TestDatabase::port());
            database.setUserName(TestDatabase::user());
            database.setDatabaseName(m_legacy);
            QVERIFY(database.open());
            QSqlQuery query(database);
            QVERIFY2(query.exec(statement), qPrintable(query.lastError().text()));
        }
        QSqlDatabase::removeDatabase("legacy");
    }

    void addItems(int count)
    {
        legacy(
            QString(
                "insert into tblbarang select 'X' || n, 'Item ' || n, 'PANAS', 'BIJI', n, n, n, 0, 'INV', 'N', 0 from "
                "generate_series(1, %1) n")
                .arg(count));
    }

    QString row(const QString& statement) { return value("select row(" + statement); }
    bool isMarked() { return count("appconfig where appkey = 'conversion'") == 1; }

    QTemporaryDir m_home;
    QString m_legacy;
    std::unique_ptr<DialogConverter> m_dialog;
};

QTEST_MAIN(TestConverter)
#include "tst_converter.moc"
