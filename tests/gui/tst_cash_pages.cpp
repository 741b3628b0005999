#include "app/context/AppContext.h"
#include "cash/accounting/DialogTransaction.h"
#include "cash/accounting/TabTransfer.h"
#include "cash/cashflow/DialogCashFlow.h"
#include "cash/cashflow/TabCashFlow.h"
#include "support/LedgerRows.h"
#include "support/ModalDriver.h"
#include "support/SalesRows.h"
#include "support/ShopRows.h"
#include "support/TestDatabase.h"

#include <QApplication>
#include <QComboBox>
#include <QDateEdit>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTableView>
#include <QTest>

/** The pages of the ledger and of transfers between accounts, worked on with keys and mouse. */
class TestCashPages : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void theTotalsAreThoseOfTheRowsShown_data();
    void theTotalsAreThoseOfTheRowsShown();
    void aGoodYearIsMoreThanOneAmountCanHold();
    void anAccountIsPickedFromTheSuggestions();
    void aLedgerThatCannotBeReadIsTold();
    void anEntryIsMadeWithTheKeyboardAlone();
    void anEntryIsChangedAndDeletedByItsNumber();
    void aDocumentsRowIsChangedWhereItWasMade();
    void nothingIsBookedWithoutTheRight_data();
    void nothingIsBookedWithoutTheRight();
    void moneyIsMovedChangedAndMovedBack();
    void aTransferThatHasGoneIsTold();
    void aFormWithAnErrorSaysWhatIsMissing_data();
    void aFormWithAnErrorSaysWhatIsMissing();
    void anAccountThatHasGoneMeanwhileIsNotBookedOn_data();
    void anAccountThatHasGoneMeanwhileIsNotBookedOn();
    void aFailedSaveLeavesTheFormAsTyped_data();
    void aFailedSaveLeavesTheFormAsTyped();

private:
    void show(QWidget* page);
    template <class Page>
    void show()
    {
        show(new Page);
    }
    template <class Widget>
    Widget* the(const char* name)
    {
        return m_page->findChild<Widget*>(name);
    }
    void click(const char* button) { QTest::mouseClick(the<QPushButton>(button), Qt::LeftButton); }
    void document(LedgerRow::Kind kind, const QString& no, int amount, int account = 1);
    [[nodiscard]] QStringList column(int column) const;
    [[nodiscard]] QString amount(const char* field) { return the<QLineEdit>(field)->text(); }
    QString value(const QString& statement) { return m_database->value("select " + statement).toString(); }

    std::unique_ptr<TestDatabase> m_database;
    std::unique_ptr<ModalDriver> m_people;
    std::unique_ptr<QWidget> m_page;
    QTableView* m_grid = nullptr;
};

using Input = QMap<QString, QString>;
Q_DECLARE_METATYPE(Input)

namespace
{
/** Types into the fields of a form, as a person does: each in its turn, with what stands in it replaced. */
void type(QDialog* form, const Input& input)
{
    QTRY_COMPARE(QApplication::activeWindow(), form);
    for (auto text = input.cbegin(); text != input.cend(); ++text) {
        auto* field = form->findChild<QWidget*>(text.key());
        QVERIFY2(field, qPrintable(text.key()));
        QTest::mouseClick(field, Qt::LeftButton);
        QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(field, Qt::Key_Delete);
        QTest::keyClicks(field, text.value());
        QTest::keyClick(field, Qt::Key_Tab);
    }
}

void press(QDialog* form, QDialogButtonBox::StandardButton button)
{
    QTest::mouseClick(form->findChild<QDialogButtonBox*>()->button(button), Qt::LeftButton);
}

QStringList typedIn(const QDialog* form)
{
    // An amount looks different while somebody is typing it.
    form->findChild<QPlainTextEdit*>("txtNotes")->setFocus();
    QStringList texts;
    for (const QLineEdit* field : form->findChildren<QLineEdit*>())
        texts.append(field->objectName() + '=' + field->text());
    return texts + QStringList{form->findChild<QPlainTextEdit*>("txtNotes")->toPlainText()};
}

const Input entry{{"txtAccount", "2-ab"}, {"txtPaid", "500"}, {"txtNotes", "Change for the till"}};
const Input transfer{
    {"txtFromAccount", "1-100"}, {"txtToAccount", "2-ab"}, {"txtAmount", "500"}, {"txtNotes", "To the safe"}};
} // namespace

void TestCashPages::init()
{
    m_database = std::make_unique<TestDatabase>();
    insertShop(*m_database);
    m_database->run("INSERT INTO bank (id, kode, nama, account_type, active, version) VALUES "
                    "(2, '2-AB', 'Safe', 1, true, 1)");
    AppContext::instance()->setLocale("id_ID");
    loginAsAdmin();
    m_database->run("TRUNCATE users CASCADE");
    insertSeller(*m_database, 1, "ann");
    insertSeller(*m_database, 77, "waiter");
    m_people = std::make_unique<ModalDriver>();
}

void TestCashPages::cleanup()
{
    m_page.reset();
    m_people.reset();
    m_database.reset();
}

void TestCashPages::show(QWidget* page)
{
    m_page.reset(page);
    m_page->resize(1000, 600);
    m_page->show();
    QVERIFY(QTest::qWaitForWindowActive(m_page.get()));
    m_grid = m_page->findChild<QTableView*>();
}

void TestCashPages::document(LedgerRow::Kind kind, const QString& no, int amount, int account)
{
    LedgerRow row;
    row.kind = kind;
    row.no = no;
    row.date = QDate::currentDate();
    row.amount = amount;
    row.account = account;
    row.code = account == 1 ? "1-100" : "2-AB";
    row.toAccount = 3 - account;
    row.note = "Made of " + no;
    insertLedgerRow(*m_database, row);
}

QStringList TestCashPages::column(int column) const
{
    QStringList cells;
    for (int row = 0; row < m_grid->model()->rowCount(); ++row)
        cells.append(m_grid->model()->index(row, column).data().toString());
    return cells;
}

// --- the ledger ----------------------------------------------------------------------------------------------------

void TestCashPages::theTotalsAreThoseOfTheRowsShown_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("account");
    QTest::addColumn<QString>("numbers");
    QTest::addColumn<QString>("totals");
    QTest::newRow("all") << "All"
                         << ""
                         << "TRD TR TR NB KK"
                         << "1.270,00 330,00 940,00";
    QTest::newRow("debits") << "DEBET"
                            << ""
                            << "TRD TR KK"
                            << "1.270,00 0,00 1.270,00";
    QTest::newRow("credits of an account") << "CREDIT"
                                           << " 1-100"
                                           << "TR NB"
                                           << "0,00 330,00 -330,00";
    QTest::newRow("an account") << "All"
                                << "2-ab"
                                << "TR KK"
                                << "370,00 0,00 370,00";
    QTest::newRow("no such account") << "All"
                                     << "x"
                                     << ""
                                     << "0,00 0,00 0,00";
}

void TestCashPages::theTotalsAreThoseOfTheRowsShown()
{
    QFETCH(QString, type);
    QFETCH(QString, account);
    QFETCH(QString, totals);
    document(LedgerRow::Sale, "TRD", 900);
    document(LedgerRow::Transfer, "TR", 300);
    document(LedgerRow::Purchase, "NB", 30);
    document(LedgerRow::DebitEntry, "KK", 70, 2);
    document(LedgerRow::Commission, "KAG", 40, 0);
    show<TabCashFlow>();
    the<QComboBox>("ddlType")->setFocus();
    QTest::keyClicks(the<QComboBox>("ddlType"), type);
    QCOMPARE(the<QComboBox>("ddlType")->currentText(), type);
    the<QLineEdit>("txtAccount")->setFocus();
    QTest::keyClicks(the<QLineEdit>("txtAccount"), account);
    click("btnSearch");
    QTEST(column(5).join(' '), "numbers");
    QCOMPARE(amount("txtTotalDebit") + ' ' + amount("txtTotalCredit") + ' ' + amount("txtEndingBalance"), totals);
    QVERIFY(the<QLineEdit>("txtEndingBalance")->isReadOnly());
    QCOMPARE(the<QLabel>("lblCount")->text(), QString("%1 Items").arg(column(5).size()));
    QCOMPARE(the<QLabel>("lblAccountName")->text(), QString(account == "2-ab"     ? "Safe"
                                                            : account == " 1-100" ? "Cash"
                                                                                  : ""));
}

void TestCashPages::aGoodYearIsMoreThanOneAmountCanHold()
{
    for (const char* no : {"A", "B", "C"})
        document(LedgerRow::Sale, no, 2000000000);
    show<TabCashFlow>();
    QCOMPARE(amount("txtEndingBalance"), QString("6.000.000.000,00"));
}

void TestCashPages::anAccountIsPickedFromTheSuggestions()
{
    document(LedgerRow::Transfer, "TR", 300);
    show<TabCashFlow>();
    the<QLineEdit>("txtAccount")->setFocus();
    QTest::keyClicks(the<QLineEdit>("txtAccount"), "saf");
    QTRY_VERIFY(QApplication::activePopupWidget());
    QTest::keyClick(m_page->windowHandle(), Qt::Key_Return);
    QTRY_COMPARE(the<QLineEdit>("txtAccount")->text(), QString("2-AB"));
    QCOMPARE(the<QLabel>("lblAccountName")->text(), QString("Safe"));
    click("btnSearch");
    QCOMPARE(column(2), QStringList{"Safe"});
}

void TestCashPages::aLedgerThatCannotBeReadIsTold()
{
    show<TabCashFlow>();
    m_database->run("ALTER TABLE komisi_agen RENAME TO elsewhere");
    click("btnRefresh");
    QCOMPARE(m_people->boxes().size(), 1);
    QCOMPARE(m_people->lastTitle(), QString("Error"));
    QCOMPARE(m_people->boxes().last().icon, QMessageBox::Critical);
    QVERIFY2(m_people->lastText().contains("komisi_agen"), qPrintable(m_people->lastText()));
    QCOMPARE(column(0), QStringList());
}

void TestCashPages::anEntryIsMadeWithTheKeyboardAlone()
{
    show<TabCashFlow>();
    m_people->expect<DialogCashFlow>([](DialogCashFlow* form) {
        QVERIFY(QTest::qWaitForWindowActive(form));
        auto* account = form->findChild<QLineEdit*>("txtAccount");
        QTRY_VERIFY(account->hasFocus());
        QCOMPARE(form->findChild<QLineEdit*>("txtOperator")->text(), QString("admin"));
        QTest::keyClicks(account, "saf");
        QTRY_VERIFY(QApplication::activePopupWidget());
        QTest::keyClick(form->windowHandle(), Qt::Key_Return);
        QTRY_VERIFY(form->findChild<QLineEdit*>("txtPaid")->hasFocus());
        QCOMPARE(form->findChild<QLabel*>("lblAccountName")->text(), QString("Safe"));
        QTest::keyClicks(form->focusWidget(), "1500");
        QTest::keyClick(form->focusWidget(), Qt::Key_Tab);
        QTest::keyClicks(form->focusWidget(), "Float for Saturday");
        QTest::keyClick(form->focusWidget(), Qt::Key_Backtab);
        QTest::keyClick(form->focusWidget(), Qt::Key_Return);
    });
    QTest::keyClick(m_page.get(), Qt::Key_F12);
    QTRY_COMPARE(column(5), QStringList{"KK-0007"});
    QVERIFY(m_people->finished());
    QStringList row;
    for (int cell = 1; cell < 9; ++cell)
        row += column(cell);
    QCOMPARE(row.join('|'), QString("2-AB|Safe|Rp1.500,00||KK-0007|DEBET|Float for Saturday|ann"));
    QCOMPARE(value("credit_currency || credit_amount from cash_flow"), QString("Rp0"));
}

void TestCashPages::anEntryIsChangedAndDeletedByItsNumber()
{
    document(LedgerRow::DebitEntry, "KK-1", 70, 2);
    document(LedgerRow::CreditEntry, "KK-2", 80);
    show<TabCashFlow>();
    m_grid->selectAll();
    // The first row moves to the end of the list while the second one still waits.
    m_people->expect<DialogCashFlow>([](DialogCashFlow* form) {
        QCOMPARE(form->findChild<QLineEdit*>("txtNoTrans")->text(), QString("KK-2"));
        QCOMPARE(form->findChild<QComboBox*>("ddlType")->currentText(), QString("CREDIT"));
        form->findChild<QDateEdit*>("datePayment")->setDate(QDate::currentDate().addDays(-40));
        press(form, QDialogButtonBox::Ok);
    });
    m_people->expect<DialogCashFlow>([](DialogCashFlow* form) {
        QCOMPARE(form->findChild<QLineEdit*>("txtNoTrans")->text(), QString("KK-1"));
        QCOMPARE(form->findChild<QLabel*>("lblAccountName")->text(), QString("Safe"));
        QCOMPARE(form->findChild<QLineEdit*>("txtPaid")->text(), QString("70,00"));
        form->findChild<QComboBox*>("ddlType")->setFocus();
        QTest::keyClick(form->focusWidget(), Qt::Key_Down);
        press(form, QDialogButtonBox::Ok);
    });
    emit m_grid->doubleClicked(m_grid->currentIndex());
    QTRY_VERIFY(m_people->finished());
    QTRY_COMPARE(column(5), QStringList{"KK-1"});
    QCOMPARE(column(3) + column(4) + column(6), (QStringList{"", "Rp70,00", "CREDIT"}));

    m_grid->selectRow(0);
    m_people->answer(QMessageBox::No);
    click("btnDelete");
    QCOMPARE(m_people->lastTitle(), QString("Delete"));
    QCOMPARE(m_people->lastText(), QString("Are you sure, you want to delete this entity with no: KK-1"));
    QCOMPARE(column(5).size(), 1);
    m_grid->selectRow(0);
    m_people->answer(QMessageBox::Yes);
    m_page->activateWindow();
    QTRY_COMPARE(QApplication::activeWindow(), m_page.get());
    QTest::keyClick(m_grid, Qt::Key_Delete);
    QTRY_COMPARE(column(5).size(), 0);
    QCOMPARE(value("trans_no from cash_flow"), QString("KK-2"));
}

void TestCashPages::aDocumentsRowIsChangedWhereItWasMade()
{
    document(LedgerRow::Purchase, "NB-1", 70);
    show<TabCashFlow>();
    m_grid->selectRow(0);
    click("btnEdit");
    QCOMPARE(m_people->lastTitle(), QString("Error"));
    QCOMPARE(m_people->lastText(), QString("Please open it from Purchases menu or Sales menu"));
    m_grid->selectRow(0);
    click("btnDelete");
    QCOMPARE(m_people->lastTitle(), QString("Error"));
    QCOMPARE(m_people->lastText(), QString("Can not find entity with no: NB-1"));
    QVERIFY(m_people->finished());
    QCOMPARE(column(5), QStringList{"NB-1"});
}

void TestCashPages::nothingIsBookedWithoutTheRight_data()
{
    QTest::addColumn<QList<int>>("others");
    QTest::addColumn<QString>("button");
    // The rights of the journal count from 1.
    QTest::newRow("add") << QList<int>{0, 2, 3} << "btnAdd";
    QTest::newRow("edit") << QList<int>{1, 3} << "btnEdit";
    QTest::newRow("delete") << QList<int>{1, 2} << "btnDelete";
}

void TestCashPages::nothingIsBookedWithoutTheRight()
{
    QFETCH(QList<int>, others);
    QFETCH(QString, button);
    document(LedgerRow::DebitEntry, "KK-1", 70);
    QList<QPair<int, int>> grants;
    for (int key : others)
        grants.append({key, 2});
    loginWithRights("Journal Transaction", grants);
    show<TabCashFlow>();
    m_grid->selectRow(0);
    click(button.toLatin1().constData());
    QVERIFY(m_people->finished());
    QCOMPARE(m_people->boxes().size(), 1);
    QVERIFY(m_people->lastText().startsWith("You don't have access."));
    QCOMPARE(value("count(*) from cash_flow"), QString("1"));
}

// --- transfers -----------------------------------------------------------------------------------------------------

void TestCashPages::moneyIsMovedChangedAndMovedBack()
{
    show<TabTransfer>();
    m_people->expect<DialogTransaction>([](DialogTransaction* form) {
        type(form, transfer);
        QCOMPARE(form->findChild<QLabel*>("lblToAccountName")->text(), QString("Safe"));
        press(form, QDialogButtonBox::Ok);
    });
    click("btnAdd");
    QStringList row;
    for (int cell = 1; cell < 9; ++cell)
        row += column(cell);
    QCOMPARE(row.join('|'), QString("TR-0007|1-100|Cash|2-AB|Safe|Rp500,00|To the safe|ann"));
    m_grid->selectRow(0);
    m_people->expect<DialogTransaction>([](DialogTransaction* form) {
        QCOMPARE(form->findChild<QLineEdit*>("txtNoTrans")->text(), QString("TR-0007"));
        QCOMPARE(form->findChild<QLabel*>("lblFromAccountName")->text(), QString("Cash"));
        type(form, {{"txtFromAccount", "2-AB"}, {"txtToAccount", "1-100"}, {"txtAmount", "600"}});
        press(form, QDialogButtonBox::Ok);
    });
    click("btnEdit");
    QCOMPARE(column(2) + column(4) + column(6), (QStringList{"2-AB", "1-100", "Rp600,00"}));
    m_grid->selectRow(0);
    m_people->answer(QMessageBox::Yes);
    click("btnDelete");
    QCOMPARE(m_people->texts(), QStringList{"Are you sure, you want to delete transaction with no: TR-0007 ?"});
    QCOMPARE(the<QLabel>("lblCount")->text(), QString("0 Items"));
    QCOMPARE(value("count(*) from accounting_trans"), QString("0"));
}

void TestCashPages::aTransferThatHasGoneIsTold()
{
    document(LedgerRow::Transfer, "TR-1", 300);
    show<TabTransfer>();
    const QString id = value("id from accounting_trans");
    m_database->run("DELETE FROM accounting_trans");
    for (const char* button : {"btnEdit", "btnDelete"}) {
        m_grid->selectRow(0);
        click(button);
    }
    QCOMPARE(m_people->texts(),
             (QStringList{"Can not find transaction with id: " + id, "Can not find transaction with no: TR-1"}));
    QCOMPARE(m_people->lastTitle(), QString("Error"));
}

// --- what the forms refuse -----------------------------------------------------------------------------------------

void TestCashPages::aFormWithAnErrorSaysWhatIsMissing_data()
{
    QTest::addColumn<bool>("isTransfer");
    QTest::addColumn<Input>("input");
    QTest::addColumn<QString>("message");
    const auto row = [](const char* what, bool isTransfer, const Input& input, const QString& message) {
        Input all = isTransfer ? transfer : entry;
        for (auto text = input.cbegin(); text != input.cend(); ++text)
            all[text.key()] = text.value();
        QTest::addRow("%s: %s", isTransfer ? "transfer" : "entry", what) << isTransfer << all << message;
    };
    row("nothing", false, {{"txtAccount", ""}, {"txtPaid", ""}}, "Select account code\r\nEnter the amount paid\r\n");
    row("nothing", true, {{"txtFromAccount", ""}, {"txtToAccount", ""}, {"txtAmount", ""}},
        "Enter the source account code\r\nEnter the destination account code\r\nEnter amount paid\r\n");
    row("unknown account", false, {{"txtAccount", "9-99"}}, "There is no account with the code: 9-99\r\n");
    row("unknown account", true, {{"txtToAccount", "it's"}}, "There is no account with the code: it's\r\n");
    row("same account", true, {{"txtToAccount", " 1-100"}},
        "The source account code should not be the same as the destination account code\r\n");
    for (const bool isTransfer : {false, true}) {
        const QString field = isTransfer ? "txtAmount" : "txtPaid";
        const QString missing = isTransfer ? "Enter amount paid\r\n" : "Enter the amount paid\r\n";
        row("zero", isTransfer, {{field, "0"}}, missing);
        row("less than one", isTransfer, {{field, "0,4"}}, missing);
        row("no number", isTransfer, {{field, "ten"}}, missing);
        row("negative", isTransfer, {{field, "-5"}}, "The amount must not be negative\r\n");
        row("huge", isTransfer, {{field, "2147483648"}}, "The amount is too large, the largest is 2.147.483.647\r\n");
        row("endless", isTransfer, {{field, "1e300"}}, "The amount is too large, the largest is 2.147.483.647\r\n");
    }
}

void TestCashPages::aFormWithAnErrorSaysWhatIsMissing()
{
    QFETCH(bool, isTransfer);
    QFETCH(Input, input);
    QFETCH(QString, message);
    isTransfer ? show<TabTransfer>() : show<TabCashFlow>();
    const auto work = [this, input, message](QDialog* form) {
        type(form, input);
        press(form, QDialogButtonBox::Ok);
        QCOMPARE(m_people->lastText(), message);
        QCOMPARE(m_people->boxes().size(), 1);
        QVERIFY(form->isVisible());
        press(form, QDialogButtonBox::Cancel);
    };
    isTransfer ? m_people->expect<DialogTransaction>(work) : m_people->expect<DialogCashFlow>(work);
    click("btnAdd");
    QVERIFY(m_people->finished());
    QCOMPARE(value("count(*) from cash_flow") + value("count(*) from accounting_trans"), QString("00"));
}

void TestCashPages::anAccountThatHasGoneMeanwhileIsNotBookedOn_data()
{
    QTest::addColumn<bool>("isTransfer");
    QTest::newRow("entry") << false;
    QTest::newRow("transfer") << true;
}

void TestCashPages::anAccountThatHasGoneMeanwhileIsNotBookedOn()
{
    QFETCH(bool, isTransfer);
    isTransfer ? show<TabTransfer>() : show<TabCashFlow>();
    const auto work = [this, isTransfer](QDialog* form) {
        type(form, isTransfer ? transfer : entry);
        m_database->run("DELETE FROM bank WHERE kode = '2-AB'");
        press(form, QDialogButtonBox::Ok);
        QCOMPARE(m_people->texts(), QStringList{"There is no account with the code: 2-ab\r\n"});
        press(form, QDialogButtonBox::Cancel);
    };
    isTransfer ? m_people->expect<DialogTransaction>(work) : m_people->expect<DialogCashFlow>(work);
    click("btnAdd");
    QVERIFY(m_people->finished());
}

void TestCashPages::aFailedSaveLeavesTheFormAsTyped_data() { anAccountThatHasGoneMeanwhileIsNotBookedOn_data(); }

void TestCashPages::aFailedSaveLeavesTheFormAsTyped()
{
    QFETCH(bool, isTransfer);
    isTransfer ? show<TabTransfer>() : show<TabCashFlow>();
    const QString table = isTransfer ? "accounting_trans" : "cash_flow";
    const auto work = [this, isTransfer, table](QDialog* form) {
        type(form, isTransfer ? transfer : entry);
        const QStringList typed = typedIn(form);
        m_database->run("ALTER TABLE " + table + " RENAME TO elsewhere");
        press(form, QDialogButtonBox::Ok);
        QCOMPARE(m_people->boxes().size(), 1);
        QCOMPARE(m_people->lastTitle(), QString("Error"));
        QVERIFY2(m_people->lastText().contains(table), qPrintable(m_people->lastText()));
        QVERIFY(form->isVisible());
        QCOMPARE(typedIn(form), typed);
        m_database->run("ALTER TABLE elsewhere RENAME TO " + table);
        press(form, QDialogButtonBox::Ok);
    };
    isTransfer ? m_people->expect<DialogTransaction>(work) : m_people->expect<DialogCashFlow>(work);
    click("btnAdd");
    QVERIFY(m_people->finished());
    QCOMPARE(m_people->boxes().size(), 1);
    // The number of the save that failed has gone back.
    QCOMPARE(value("trans_no from " + table), QString(isTransfer ? "TR-0007" : "KK-0007"));
    QCOMPARE(m_grid->model()->rowCount(), 1);
}

QTEST_MAIN(TestCashPages)
#include "tst_cash_pages.moc"
