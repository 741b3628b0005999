#include "pos/cash/ledger/DialogCashFlow.h"
#include "pos/cash/ledger/TabCashFlow.h"
#include "pos/cash/transfer/DialogTransaction.h"
#include "pos/cash/transfer/TabTransfer.h"
#include "support/DatabaseTest.h"
#include "support/SalesRows.h"

enum Failure { Refused, AnswerLost, SavedButAnswerLost };
Q_DECLARE_METATYPE(Failure)

namespace
{
void pressOk(const QWidget* form) { press(form, QDialogButtonBox::Ok); }

const Entries entry{{"txtAccount", "2-ab"}, {"txtPaid", "500"}};
const Entries transfer{{"txtFromAccount", "1-100"}, {"txtToAccount", "2-ab"}, {"txtAmount", "500"}};
} // namespace

/** The pages of the ledger and of transfers between accounts, worked on with keys and mouse. */
class TestCashPages : public PageTest<QWidget>
{
    Q_OBJECT

protected:
    void prepare() override
    {
        insertShop(*m_database);
        insert("bank", "id=2, kode='2-AB', nama='Safe', active=true");
        AppContext::instance()->setLocale("id_ID");
        run("TRUNCATE users CASCADE");
        insertSeller(*m_database, 1, "ann");
    }

private slots:
    void theTotalsAreThoseOfTheRowsShown_data()
    {
        addColumns<QStringList>("words");
        const auto row = [](const QStringList& words) { addRow(qPrintable(words[0] + ' ' + words[1]), words); };
        // Type and account, then the expected numbers, account name and totals. The totals exceed the range of one
        // amount.
        row({"All", "", "TRE TRD TR TR NB KK", "", "4.000.000.370,00 330,00 4.000.000.040,00"});
        row({"DEBET", "", "TRE TRD TR KK", "", "4.000.000.370,00 0,00 4.000.000.370,00"});
        row({"CREDIT", " 1-100", "TR NB", "Cash", "0,00 330,00 -330,00"});
        row({"All", "2-ab", "TR KK", "Safe", "370,00 0,00 370,00"});
        row({"All", "x'", "", "", "0,00 0,00 0,00"});
    }
    void theTotalsAreThoseOfTheRowsShown()
    {
        QFETCH(QStringList, words);
        for (const char* no : {"TRD", "TRE"})
            document(LedgerRow::Sale, no, 2000000000);
        document(LedgerRow::Transfer, "TR", 300);
        document(LedgerRow::Purchase, "NB", 30);
        document(LedgerRow::DebitEntry, "KK", 70, 2);
        document(LedgerRow::Commission, "KAG", 40, 0);
        show<TabCashFlow>();
        auto* type = m_page->findChild<QComboBox*>("ddlType");
        QTest::keyClicks(type, words[0]);
        QCOMPARE(type->currentText(), words[0]);
        enter(m_page.get(), "txtAccount", words[1]);
        click(m_page.get(), "btnSearch");
        QCOMPARE(column(5), words[2]);
        QCOMPARE(label("lblAccountName"), words[3]);
        QCOMPARE(shown(m_page.get(), "txtTotalDebit") + ' ' + shown(m_page.get(), "txtTotalCredit") + ' ' +
                     shown(m_page.get(), "txtEndingBalance"),
                 words[4]);
        QVERIFY(box(m_page.get(), "txtEndingBalance")->isReadOnly());
        QCOMPARE(label("lblCount"), QString("%1 Items").arg(rowsOf(m_page.get())));
    }

    void anEntryIsMadeWithTheKeyboardAlone()
    {
        show<TabCashFlow>();
        m_people->expect<DialogCashFlow>([](DialogCashFlow* form) {
            QTRY_COMPARE(QApplication::activeWindow(), form);
            QTRY_VERIFY(box(form, "txtAccount")->hasFocus());
            QCOMPARE(shown(form, "txtOperator"), QString("admin"));
            QTest::keyClicks(box(form, "txtAccount"), "saf");
            QTRY_VERIFY(QApplication::activePopupWidget());
            QTest::keyClick(form->windowHandle(), Qt::Key_Return);
            QTRY_VERIFY(box(form, "txtPaid")->hasFocus());
            QCOMPARE(labelled(form, "lblAccountName"), QString("Safe"));
            QTest::keyClicks(form->focusWidget(), "1500");
            QTest::keyClick(form->focusWidget(), Qt::Key_Tab);
            QTest::keyClicks(form->focusWidget(), "Float for Saturday");
            confirm(form, "txtPaid");
        });
        QTest::keyClick(m_page.get(), Qt::Key_F12);
        QTRY_COMPARE(cells(m_page.get(), 0).mid(1).join('|'),
                     QString("2-AB|Safe|Rp1.500,00||KK-0007|DEBET|Float for Saturday|ann"));
        QVERIFY(m_people->finished());
        QCOMPARE(value("credit_currency || credit_amount from cash_flow"), QString("Rp0"));
    }

    void entriesAreChangedAndDeletedByTheirNumbers()
    {
        document(LedgerRow::DebitEntry, "KK-1", 70, 2);
        document(LedgerRow::CreditEntry, "KK-2", 80);
        show<TabCashFlow>();
        gridOf(m_page.get())->selectAll();
        // The first row leaves the period while the second one still waits.
        m_people->expect<DialogCashFlow>([](DialogCashFlow* form) {
            QCOMPARE(shown(form, "txtNoTrans") + ' ' + form->findChild<QComboBox*>("ddlType")->currentText(),
                     QString("KK-2 CREDIT"));
            form->findChild<QDateEdit*>("datePayment")->setDate(QDate::currentDate().addDays(-40));
            pressOk(form);
        });
        m_people->expect<DialogCashFlow>([](DialogCashFlow* form) {
            QCOMPARE(shown(form, "txtNoTrans") + ' ' + labelled(form, "lblAccountName") + ' ' + shown(form, "txtPaid"),
                     QString("KK-1 Safe 70,00"));
            QTest::keyClick(form->findChild<QComboBox*>("ddlType"), Qt::Key_Down);
            pressOk(form);
        });
        emit gridOf(m_page.get())->doubleClicked(gridOf(m_page.get())->currentIndex());
        QTRY_VERIFY(m_people->finished());
        QTRY_COMPARE(column(5), QString("KK-1"));
        QCOMPARE(column(3) + column(4) + column(6), QString("Rp70,00CREDIT"));

        for (const auto answer : {QMessageBox::No, QMessageBox::Yes}) {
            QCOMPARE(rowsOf(m_page.get()), 1);
            choose(m_page.get(), 0);
            m_people->answer(answer);
            click(m_page.get(), "btnDelete");
            QCOMPARE(m_people->lastTitle(), QString("Delete"));
            QCOMPARE(m_people->lastText(), QString("Are you sure, you want to delete this entity with no: KK-1"));
        }
        QCOMPARE(rowsOf(m_page.get()), 0);
        QCOMPARE(value("string_agg(trans_no, ' ') from cash_flow"), QString("KK-2"));
    }

    void aDocumentsRowIsChangedWhereItWasMade()
    {
        document(LedgerRow::Purchase, "NB-1", 70);
        show<TabCashFlow>();
        for (const char* button : {"btnEdit", "btnDelete"}) {
            choose(m_page.get(), 0);
            click(m_page.get(), button);
            QCOMPARE(m_people->lastTitle(), QString("Error"));
        }
        QCOMPARE(m_people->texts(), (QStringList{"Please open it from Purchases menu or Sales menu",
                                                 "Can not find entity with no: NB-1"}));
        QVERIFY(m_people->finished());
    }

    void moneyIsMovedChangedAndMovedBack()
    {
        add(true, [](QDialog* form) {
            enterAll(form, transfer);
            QCOMPARE(labelled(form, "lblFromAccountName") + ' ' + labelled(form, "lblToAccountName"),
                     QString("Cash Safe"));
            pressOk(form);
        });
        QCOMPARE(cells(m_page.get(), 0).mid(1).join('|'), QString("TR-0007|1-100|Cash|2-AB|Safe|Rp500,00||ann"));
        choose(m_page.get(), 0);
        onForm("btnEdit", [](DialogTransaction* form) {
            QCOMPARE(shown(form, "txtNoTrans") + ' ' + labelled(form, "lblToAccountName"), QString("TR-0007 Safe"));
            enterAll(form, {{"txtFromAccount", "2-AB"}, {"txtToAccount", "1-100"}, {"txtAmount", "600"}});
            pressOk(form);
        });
        QCOMPARE(column(2) + ' ' + column(4) + ' ' + column(6), QString("2-AB 1-100 Rp600,00"));
        choose(m_page.get(), 0);
        m_people->answer(QMessageBox::Yes);
        click(m_page.get(), "btnDelete");
        QCOMPARE(m_people->texts(), QStringList{"Are you sure, you want to delete transaction with no: TR-0007 ?"});
        QCOMPARE(label("lblCount"), QString("0 Items"));
    }

    void aFormSaysWhatIsWrong_data()
    {
        addColumns<bool, Entries, QString>("isTransfer", "input", "message");
        const auto row = [](const char* what, bool isTransfer, const Entries& input, const QString& message) {
            QTest::addRow("%s: %s", isTransfer ? "transfer" : "entry", what)
                << isTransfer << (isTransfer ? transfer : entry) + input << message;
        };
        row("nothing", false, {{"txtAccount", ""}, {"txtPaid", ""}}, "Select account code\r\nEnter the amount paid");
        row("nothing", true, {{"txtFromAccount", ""}, {"txtToAccount", ""}, {"txtAmount", ""}},
            "Enter the source account code\r\nEnter the destination account code\r\nEnter amount paid");
        row("unknown account", false, {{"txtAccount", "9-99"}}, "There is no account with the code: 9-99");
        row("unknown account", true, {{"txtToAccount", "it's"}}, "There is no account with the code: it's");
        row("account that has gone", false, {{"gone", ""}}, "There is no account with the code: 2-ab");
        row("account that has gone", true, {{"gone", ""}}, "There is no account with the code: 2-ab");
        row("same account", true, {{"txtToAccount", " 1-100"}},
            "The source account code should not be the same as the destination account code");
        for (const bool isTransfer : {false, true}) {
            const char* field = isTransfer ? "txtAmount" : "txtPaid";
            const QString missing = isTransfer ? "Enter amount paid" : "Enter the amount paid";
            for (const char* nothing : {"0", "ten"})
                row(nothing, isTransfer, {{field, nothing}}, missing);
        }
    }
    void aFormSaysWhatIsWrong()
    {
        QFETCH(bool, isTransfer);
        QFETCH(Entries, input);
        QFETCH(QString, message);
        add(isTransfer, [this, input, message](QDialog* form) {
            for (const auto& text : input) {
                if (text.first == "gone")
                    run("DELETE FROM bank WHERE kode = '2-AB'");
                else
                    enter(form, text.first, text.second);
            }
            pressOk(form);
            QCOMPARE(m_people->texts(), QStringList{message + "\r\n"});
            QVERIFY(form->isVisible());
            giveUp(form);
        });
        QCOMPARE(value("count(*) from cash_flow") + value("count(*) from accounting_trans"), QString("00"));
    }

    void aFailedSaveLeavesTheFormAsTyped_data()
    {
        const auto row = addColumns<QString, Failure, QString>("table", "failure", "words");
        const QString lacks = "The database lacks something that this program needs.";
        const QString unsure =
            "so it is not certain whether it was saved. Please look for it before you save it again.";
        row("entry refused", "cash_flow", Refused, lacks);
        row("transfer refused", "accounting_trans", Refused, lacks);
        row("entry's answer lost with it", "cash_flow", AnswerLost, unsure);
        row("transfer's answer lost with it", "accounting_trans", AnswerLost, unsure);
        row("entry saved, answer lost", "cash_flow", SavedButAnswerLost, unsure);
        row("transfer saved, answer lost", "accounting_trans", SavedButAnswerLost, unsure);
    }
    void aFailedSaveLeavesTheFormAsTyped()
    {
        FETCH(QString, table, words);
        QFETCH(Failure, failure);
        const bool isTransfer = table == "accounting_trans";
        const QString key = isTransfer ? "TR" : "KK";
        const QString no = key + "-0007";
        add(isTransfer, [&](QDialog* form) {
            enterAll(form, isTransfer ? transfer : entry);
            form->findChild<QPlainTextEdit*>("txtNotes")->setPlainText("As typed");
            if (failure == Refused)
                run("ALTER TABLE " + table + " RENAME TO elsewhere");
            else
                run("CREATE FUNCTION hang_up() RETURNS trigger LANGUAGE plpgsql AS 'BEGIN PERFORM "
                    "pg_terminate_backend(pg_backend_pid()); RETURN NEW; END'; CREATE CONSTRAINT TRIGGER "
                    "hang_up AFTER INSERT ON " +
                    table + " DEFERRABLE INITIALLY DEFERRED FOR EACH ROW EXECUTE FUNCTION hang_up()");
            pressOk(form);
            QCOMPARE(m_people->boxes().size(), 1);
            QCOMPARE(m_people->lastTitle(), QString("Error"));
            QVERIFY2(m_people->lastText().contains(words), qPrintable(m_people->lastText()));
            QVERIFY(form->isVisible());
            if (failure == Refused)
                run("ALTER TABLE elsewhere RENAME TO " + table);
            else
                run("DROP TRIGGER hang_up ON " + table);
            if (failure == SavedButAnswerLost) {
                // The row as a successful save would have written it, with the id and number of the program.
                const QString columns = isTransfer ? "from_account_id, to_account_id, amount_currency, amount_amount"
                                                   : "trans_type, account_code, debet_currency, debet_amount, "
                                                     "credit_currency, credit_amount";
                const QString values = isTransfer ? "1, 2, 'Rp', 500" : "'DEBET', '2-AB', 'Rp', 500, 'Rp', 0";
                run("INSERT INTO " + table + " (id, trans_date, notes, trans_no, createdby, version, " + columns +
                    ") SELECT last_value, current_date, 'Before', '" + no + "', 1, 1, " + values + " FROM " + table +
                    "_id_seq; UPDATE keytable SET next_id = next_id + 1, version = version "
                    "+ 1 WHERE key_name = '" +
                    key + '\'');
            }
            pressOk(form);
        });
        QCOMPARE(m_people->boxes().size(), 1);
        // Once, with the number of the failed save and the form's current input.
        QCOMPARE(value("string_agg(trans_no || ' ' || notes, ',') from " + table), no + " As typed");
        QCOMPARE(cells(m_page.get(), 0).filter("Rp500,00").size(), 1);
    }

private:
    /** Adds an entry to the ledger, or a transfer, on its page. */
    void add(bool isTransfer, const std::function<void(QDialog*)>& work)
    {
        isTransfer ? show<TabTransfer>() : show<TabCashFlow>();
        isTransfer ? ::onForm<DialogTransaction>(*m_people, m_page.get(), "btnAdd", work)
                   : ::onForm<DialogCashFlow>(*m_people, m_page.get(), "btnAdd", work);
    }

    void document(LedgerRow::Kind kind, const QString& no, int amount, int account = 1)
    {
        insertLedgerRow(*m_database, {kind, no, QDate::currentDate(), amount, account, account == 1 ? "1-100" : "2-AB",
                                      3 - account, "Made of " + no});
    }

    [[nodiscard]] QString column(int column) const { return PageTest::column(column).join(' '); }

    QString value(const QString& statement) { return m_database->value("select " + statement).toString(); }
};

QTEST_MAIN(TestCashPages)
#include "tst_cash_pages.moc"
