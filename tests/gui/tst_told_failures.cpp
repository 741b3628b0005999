#include "app/access/TabUser.h"
#include "pos/inventory/adjustment/TabInventoryAdj.h"
#include "pos/masterdata/unit/TabSatuan.h"
#include "pos/purchasing/creditnote/DialogCreditNote.h"
#include "pos/purchasing/creditnote/TabCreditNote.h"
#include "pos/purchasing/payment/DialogPayment.h"
#include "pos/purchasing/payment/TabPayment.h"
#include "pos/purchasing/purchase/DialogPurchases.h"
#include "pos/purchasing/purchase/TabPurchases.h"
#include "support/DatabaseTest.h"
#include "support/DocumentFamilies.h"
#include "zavel/dinein/DialogBayarMakanDitempat.h"
#include "zavel/receivable/DialogPiutang.h"
#include "zavel/receivable/TabPiutang.h"
#include "zavel/service/BusinessPenjualan.h"

#include <QClipboard>
#include <QSqlQuery>

using Work = std::function<void(QDialog*)>;
using Form = std::function<void(const Work&)>;
using Step = std::function<void()>;
Q_DECLARE_METATYPE(Form)
Q_DECLARE_METATYPE(Step)

namespace
{
// Of the password "ab" + "c".
const QString digest = "900150983cd24fb0d6963f7d28e17f72";

QString logged;

void keepLog(QtMsgType type, const QMessageLogContext&, const QString& message)
{
    logged += message + '\n';
    if (type == QtFatalMsg)
        fputs(qPrintable(message), stderr);
}

void ok(const QWidget* form) { press(form, QDialogButtonBox::Ok); }
} // namespace

/** Messages after database errors: in plain words, without SQL, and correct. */
class TestToldFailures : public PageTest<QWidget>
{
    Q_OBJECT

protected:
    void prepare() override
    {
        AppContext::instance()->setLocale("id_ID");
        insertShop(*m_database);
    }

private slots:
    void aFailedSaveIsToldInPlainWords_data()
    {
        const auto row =
            addColumns<Form, QString, QString, QString, QString>("form", "fault", "sentence", "words", "details");
        const Form aUnit = [this](const Work& save) { unit(save); };
        const Form aUser = [this](const Work& save) { user(save); };
        const QString unitStatement =
            "insert into satuan (nama, kode, createdBy,createdTime,version) values(Pieces, PCS2, "
            "1,now(),1) returning id";
        const auto raise = [](const QString& state, const QString& words) {
            return "CREATE FUNCTION refuse() RETURNS trigger AS $$ BEGIN RAISE EXCEPTION '" + words +
                   "' USING ERRCODE = '" + state +
                   "'; END $$ LANGUAGE plpgsql; CREATE TRIGGER refuse BEFORE INSERT ON satuan FOR EACH ROW EXECUTE "
                   "FUNCTION refuse()";
        };
        row("a name that is taken", aUnit, "INSERT INTO satuan (nama, kode, version) VALUES ('Pieces', 'PCS', 1)",
            "This code, name or number is already in use.", "(nama)=(Pieces) already exists", unitStatement);
        row("a full disk", aUnit, raise("53100", "could not extend file"),
            "The disk of the database server is full. Nothing can be saved until there is "
            "room.",
            "could not extend file", unitStatement);
        row("a read-only server", aUnit, "",
            "The database server is read-only at the moment. Nothing "
            "can be saved.",
            "in a read-only transaction", unitStatement);
        row("words that look like markup", aUnit, raise("P0001", "<b>no</b>"), "The database could not do this.",
            "<b>no</b>", unitStatement);
        row("a user, whose password nobody reads", aUser, "ALTER TABLE users ADD CHECK (last_name <> 'Long')",
            "The database could not do this.", "Failing row contains", "values(Bob, Long, bob, ***, ");
    }
    void aFailedSaveIsToldInPlainWords()
    {
        QFETCH(Form, form);
        FETCH(QString, fault, sentence, words, details);
        logged.clear();
        const QtMessageHandler former = qInstallMessageHandler(keepLog);
        form([&](QDialog* dialog) {
            if (fault.isEmpty())
                QSqlQuery("SET default_transaction_read_only = on");
            else
                run(fault);
            ok(dialog);
            QVERIFY(dialog->isVisible());
            giveUp(dialog);
        });
        qInstallMessageHandler(former);
        QCOMPARE(m_people->boxes().size(), 1);
        const SeenBox& box = m_people->boxes().first();
        QCOMPARE(box.title, QString("Error"));
        QVERIFY2(box.text.startsWith(sentence + "\r\n\r\n"), qPrintable(box.text));
        QVERIFY2(box.text.contains(words) && !box.text.contains("insert into"), qPrintable(box.text));
        QVERIFY2(box.details.contains(details), qPrintable(box.details));
        // The log has the statement, and no output contains the secret.
        QVERIFY2(logged.contains(details), qPrintable(logged));
        QVERIFY(!(box.text + box.details + logged).contains(digest));
    }

    void aSaveWhoseListCannotBeReadIsNotCalledLost()
    {
        unit([this](QDialog* form) {
            ok(form);
            m_database->killConnections();
        });
        QCOMPARE(m_people->boxes().size(), 1);
        QVERIFY2(m_people->lastText().startsWith("It is saved. Only the list could not be read again.") &&
                     !m_people->lastText().contains("try again"),
                 qPrintable(m_people->lastText()));
    }

    void aNulIsDroppedWhereItIsPasted()
    {
        const QString text = QString("a") + QChar(QChar::Null) + "b" + QChar(QChar::Null);
        QApplication::clipboard()->setText(text);
        DialogPurchases form(nullptr);
        form.show();
        QApplication::setActiveWindow(&form);
        QStringList heard;
        QLineEdit* line = box(&form, "txtInvoiceNo");
        connect(line, &QLineEdit::textEdited, [&heard](const QString& edited) { heard.append(edited); });
        auto* notes = form.findChild<QPlainTextEdit*>("txtNotes");
        for (QWidget* field : QList<QWidget*>{line, notes}) {
            field->setFocus();
            QTest::keySequence(field, QKeySequence::Paste);
            QTest::keyClicks(field, "c");
        }
        QCOMPARE(line->text() + ' ' + notes->toPlainText(), QString("abc abc"));
        QCOMPARE(heard, (QStringList{"ab", "abc"}));
    }

    void whatFailsBehindASavedDocumentIsToldAndFinished_data()
    {
        const auto row = addColumns<Step, QString, QString, int, QString, QString>("step", "when", "table", "times",
                                                                                   "told", "result");
        const QString again = " is saved. Please do not enter it again.\r\nNot done yet: ";
        const auto edits = [this](auto* page, auto* dialog) -> Step {
            using Page = std::remove_pointer_t<decltype(page)>;
            using Dialog = std::remove_pointer_t<decltype(dialog)>;
            return [this] { work<Page, Dialog>("btnEdit", [](QDialog* form) { ok(form); }); };
        };
        const Step adjust = [this] {
            work<TabInventoryAdj, DialogInventoryAdj>("btnAdd", [](QDialog* form) {
                enter(form, "txtKode", "RICE");
                enter(form, "txtStok", "3");
                enter(form, "txtSourceAccount", "1-100");
                ok(form);
            });
        };
        const Step takeBack = [this] {
            insert("stock_take", "source_acct_code='1-100', qty=3, qty_adj=3");
            insert("item_history", "tran_type=3, qty_in=3");
            m_page = std::make_unique<TabInventoryAdj>();
            showPage(m_page.get());
            choose(m_page.get(), 0);
            click(m_page.get(), "btnDelete");
        };
        row("purchases", edits((TabPurchases*)nullptr, (DialogPurchases*)nullptr), "INSERT", "item_history", 1,
            "NB-1" + again + "the rows of its goods on the stock card.",
            "qty_in || ' ' || no FROM item_history#2 NB-1");
        row("bill payments", edits((TabPayment*)nullptr, (DialogPayment*)nullptr), "UPDATE", "acquisition", 5,
            "TPH-1" + again + "what is still due of the purchases that it pays.",
            "net_due_amount FROM acquisition#200");
        row("credit notes", edits((TabCreditNote*)nullptr, (DialogCreditNote*)nullptr), "UPDATE", "acquisition", 5,
            "CN-1" + again + "what is still due of its purchase.", "net_due_amount FROM acquisition#480");
        row("member payments", edits((TabPiutang*)nullptr, (DialogPiutang*)nullptr), "UPDATE", "invoice", 1,
            "PIU-1" + again + "what is still due of the invoices that it pays.",
            "other_payment_amount FROM invoice#70");
        row("adjustment", adjust, "INSERT", "item_history", 1, "The adjustment" + again + "its row on the stock card.",
            "string_agg(qty_in::text, ',') FROM item_history#3");
        row("adjustment taken back", takeBack, "DELETE", "item_history", 1,
            "The adjustment is deleted.\r\nNot done yet: taking its row off the "
            "stock card.",
            "count(*) FROM item_history#0");
        row("bill", Step([this] { payOrder(); }), "UPDATE", "makan_ditempat", 1,
            "TRD-0007" + again + "the status of its order.",
            "status FROM makan_ditempat#" + QString::number(EntityOrder::UNPAID));
    }
    void whatFailsBehindASavedDocumentIsToldAndFinished()
    {
        QFETCH(Step, step);
        FETCH(QString, when, table, told, result);
        QFETCH(int, times);
        for (const DocumentFamily& family : documentFamilies()) {
            if (family.name == QTest::currentDataTag())
                family.lay(*m_database, 1);
        }
        hangUp(when, table, times);
        step();
        QTRY_COMPARE(value(result.section('#', 0, 0)), result.section('#', 1));
        const auto boxes = m_people->boxes();
        const auto box =
            std::find_if(boxes.begin(), boxes.end(), [&](const SeenBox& one) { return one.text.startsWith(told); });
        QVERIFY2(box != boxes.end(), qPrintable(m_people->texts().join('\n')));
        QVERIFY2(box->text.contains("The connection to the database") && !box->text.contains("try again"),
                 qPrintable(box->text));
    }

private:
    /** Works on the form behind the page's button, of the first record where there is one. */
    template <class Page, class Dialog>
    void work(const char* button, const Work& work)
    {
        m_page = std::make_unique<Page>();
        showPage(m_page.get());
        if (rowsOf(m_page.get()) > 0)
            choose(m_page.get(), 0);
        ::onForm<Dialog>(*m_people, m_page.get(), button, work);
    }
    void unit(const Work& save)
    {
        work<TabSatuan, DialogSatuan>("btnAdd", [save](QDialog* form) {
            enter(form, "txtKode", "PCS2");
            enter(form, "txtNamaSatuan", "Pieces");
            save(form);
        });
    }

    void user(const Work& save)
    {
        work<TabUser, DialogUser>("btnAdd_2", [save](QDialog* form) {
            enter(form, "txtUsername", "bob");
            enter(form, "txtFirstName", "Bob");
            enter(form, "txtLastName", "Long");
            enter(form, "txtPassword", "abc");
            save(form);
        });
    }

    /** The session ends in this statement, so many times. */
    void hangUp(const QString& when, const QString& table, int times)
    {
        // A sequence keeps its count although the session goes.
        run("CREATE SEQUENCE hung_up; CREATE FUNCTION hang_up() RETURNS trigger LANGUAGE plpgsql AS "
            "'BEGIN IF nextval(''hung_up'') <= " +
            QString::number(times) +
            " THEN PERFORM pg_terminate_backend(pg_backend_pid()); END IF; RETURN coalesce(NEW, OLD); END'; "
            "CREATE TRIGGER hang_up BEFORE " +
            when + " ON " + table + " FOR EACH ROW EXECUTE FUNCTION hang_up()");
    }

    void payOrder()
    {
        const int order = insertDineOrder(*m_database, {{2, 300}});
        DialogBayarMakanDitempat form(nullptr);
        QVERIFY(form.openOrder(service<BusinessPenjualan>("Sales")->findOrder(order)));
        form.show();
        enter(&form, "txtCashAccount", "1-100");
        ok(&form);
        // The form is still open and saves the same bill again.
        m_people->answer(QMessageBox::No);
        ok(&form);
        QCOMPARE(value("count(*) FROM invoice"), QString("1"));
    }

    QString value(const QString& statement) { return m_database->value("SELECT " + statement).toString(); }
};

QTEST_MAIN(TestToldFailures)
#include "tst_told_failures.moc"
