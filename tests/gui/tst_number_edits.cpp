#include "app/context/AppContext.h"
#include "app/widgets/MoneyEdit.h"
#include "support/Rows.h"

#include <QDialog>
#include <QHBoxLayout>
#include <QMenu>
#include <QPushButton>
#include <QSignalSpy>

namespace
{
/** A form with the field under test and something else to go to. */
template <class Edit>
struct Form
{
    Form()
    {
        auto* layout = new QHBoxLayout(&window);
        layout->addWidget(&other);
        layout->addWidget(&edit);
        window.show();
        other.setFocus();
        [[maybe_unused]] const bool active = QTest::qWaitForWindowActive(&window);
    }
    void enter() { edit.setFocus(Qt::OtherFocusReason); }
    void leave() { other.setFocus(); }
    void enterAndType(const QString& text)
    {
        enter();
        edit.selectAll();
        if (text.isEmpty())
            QTest::keyClick(&edit, Qt::Key_Delete);
        QTest::keyClicks(&edit, text);
    }

    QWidget window;
    QPushButton other;
    Edit edit;
};
} // namespace

class TestNumberEdits : public QObject
{
    Q_OBJECT

private slots:
    void aTypedNumberIsReadInTheLocaleAndShownWithItsSeparators_data()
    {
        const auto row = addColumns<QString, double, QString>("typed", "value", "shown");
        row("group and decimal", "1.234,5", 1234.5, "1.234,5");
        row("no group", "1234,5", 1234.5, "1.234,5");
        row("groups", "-12.034.567", -12034567.0, "-12.034.567");
        row("negative", "-2500", -2500.0, "-2.500");
        row("ten digits", "1234567890", 1234567890.0, "1.234.567.890");
        row("zero", "0", 0.0, "0");
    }
    void aTypedNumberIsReadInTheLocaleAndShownWithItsSeparators()
    {
        FETCH(QString, typed, shown);
        QFETCH(double, value);
        Form<KorNumberEdit> form;
        form.enterAndType(typed);
        QCOMPARE(form.edit.value(), value);
        QCOMPARE(form.edit.text(), typed);
        form.leave();
        QCOMPARE(form.edit.text(), shown);
        QVERIFY(form.edit.isValid());
        QCOMPARE(form.edit.value(), value);
    }

    void aTextThatIsNoNumberStaysInTheFieldAndTheFormerValueCounts_data()
    {
        const auto row = addColumns<QString>("typed");
        row("letters", "abc");
        row("nothing", "");
        row("two decimal commas", "1,2,3");
        row("a point for a comma", "1.5");
        row("misplaced groups", "12.34.567");
        row("a group of four", "1.2345");
        row("a first group of four", "1234.567");
        row("a group behind the comma", "1,234.567");
        row("nothing before the group", ".500");
        row("half, with the other's point", "0.500");
        row("infinite", "inf");
        row("not a number", "nan");
    }
    void aTextThatIsNoNumberStaysInTheFieldAndTheFormerValueCounts()
    {
        QFETCH(QString, typed);
        Form<KorNumberEdit> form;
        form.edit.setValue(75);
        QVERIFY(form.edit.isValid());
        form.enterAndType(typed);
        form.leave();
        QCOMPARE(form.edit.text(), typed);
        QVERIFY(!form.edit.isValid());
        QCOMPARE(form.edit.value(), 75.0);
        form.enter();
        QCOMPARE(form.edit.text(), typed);
    }

    void theTypedTextComesBackWithTheFocus()
    {
        Form<KorNumberEdit> form;
        QCOMPARE(form.edit.value(), 0.0);
        QCOMPARE(form.edit.rawText(), QString());
        // A form's totals ask for the value while the field writes its own text, and afterwards.
        connect(&form.edit, &QLineEdit::textChanged, &form.edit, [&form] { (void)form.edit.value(); });
        form.enterAndType("1234,50");
        form.leave();
        QCOMPARE(form.edit.text(), QString("1.234,5"));
        QCOMPARE(form.edit.value(), 1234.5);
        form.enter();
        QCOMPARE(form.edit.text(), QString("1234,50"));
        form.leave();
        form.edit.clear();
        form.enter();
        QCOMPARE(form.edit.text(), QString());
    }

    void returnFinishesTheEntryWhereTheCursorStays()
    {
        Form<KorNumberEdit> form;
        QSignalSpy pressed(&form.edit, &QLineEdit::returnPressed);
        form.enterAndType("1500");
        QTest::keyClick(&form.edit, Qt::Key_Enter);
        QCOMPARE(form.edit.text(), QString("1500"));
        QTest::keyClick(&form.edit, Qt::Key_Return);
        QCOMPARE(form.edit.text(), QString("1.500"));
        QCOMPARE(pressed.count(), 2);
        QVERIFY(form.edit.hasFocus());
    }

    void aFieldReachedByTabIsOverwrittenByTheNextKey()
    {
        Form<KorNumberEdit> form;
        form.edit.setValue(12);
        QTest::keyClick(&form.other, Qt::Key_Tab);
        QVERIFY(form.edit.hasFocus());
        QTest::keyClicks(&form.edit, "34");
        QCOMPARE(form.edit.value(), 34.0);
    }

    void theContextMenuDoesNotEndTheEntry()
    {
        Form<KorNumberEdit> form;
        form.enterAndType("1500");
        QMenu menu;
        menu.addAction("Paste");
        menu.popup(form.edit.mapToGlobal(QPoint(0, 0)));
        QVERIFY(QTest::qWaitForWindowExposed(&menu));
        QCOMPARE(form.edit.text(), QString("1500"));
        menu.close();
        QTest::keyClicks(&form.edit, "0");
        QCOMPARE(form.edit.text(), QString("15000"));
    }

    void theFieldBeingTypedInIsMarked()
    {
        Form<KorNumberEdit> form;
        QVERIFY(form.edit.alignment() & Qt::AlignRight);
        form.enter();
        QCOMPARE(form.edit.styleSheet(), QString("border: 1px solid #005782;"));
        form.leave();
        QCOMPARE(form.edit.styleSheet(), QString());
    }

    void theConfigurationTellsHowNumbersAreWritten_data()
    {
        const auto row = addColumns<QString, QString, double, QString, QString, QString>(
            "locale", "typed", "value", "asNumber", "asMoney", "currency");
        row("Indonesian", "id_ID", "1.234,5", 1234.5, "1.234,5", "1.234,50", "Rp");
        row("American", "en_US", "1,234.5", 1234.5, "1,234.5", "1,234.50", "$");
        row("the other's group is a decimal point", "en_US", "1.234", 1.234, "1.234", "1.23", "$");
        row("a million", "id_ID", "1500000", 1500000.0, "1.500.000", "1.500.000,00", "Rp");
        row("negative", "id_ID", "-15", -15.0, "-15", "-15,00", "Rp");
        row("nothing configured yet", "", "1234.5", 1234.5, "1234.5", "1234.50", "");
    }
    void theConfigurationTellsHowNumbersAreWritten()
    {
        FETCH(QString, locale, typed);
        QFETCH(double, value);
        AppContext::instance()->setLocale(locale);

        Form<AppNumberEdit> quantity;
        quantity.enterAndType(typed);
        QCOMPARE(quantity.edit.value(), value);
        quantity.leave();
        QTEST(quantity.edit.text(), "asNumber");

        Form<MoneyEdit> price;
        QTEST(price.edit.currency(), "currency");
        price.enterAndType(typed);
        QCOMPARE(price.edit.value(), value);
        price.leave();
        QTEST(price.edit.text(), "asMoney");
        QTEST(price.edit.money()->getCurrency(), "currency");

        // A number from the program reads the same after a walk through the field.
        price.edit.setValue(value);
        price.enter();
        QTEST(price.edit.text(), "asNumber");
        price.leave();
        QTEST(price.edit.text(), "asMoney");
    }

    void anAmountInAPaymentFollowsEveryKey()
    {
        AppContext::instance()->setLocale("id_ID");
        Form<MoneyEdit> form;
        form.edit.setValue(200);
        QList<double> paid;
        connect(&form.edit, &QLineEdit::textChanged, &form.edit, [&] { paid.append(form.edit.money()->getAmount()); });
        form.enterAndType("1500");
        QCOMPARE(form.edit.text(), QString("1500"));
        QCOMPARE(paid.mid(paid.size() - 4), QList<double>({1.0, 15.0, 150.0, 1500.0}));
        form.leave();
        QCOMPARE(form.edit.text(), QString("1.500,00"));
        QCOMPARE(form.edit.money()->rawAmount(), 1500);
        form.enter();
        QCOMPARE(form.edit.text(), QString("1500"));
    }

    void theAmountOfARecordStaysTheRecords()
    {
        AppContext::instance()->setLocale("id_ID");
        QObject record;
        QPointer<Money> price = new Money(&record, 2500.0, "Rp");
        {
            Form<MoneyEdit> form;
            form.edit.setMoney(price);
            QCOMPARE(form.edit.text(), QString("2.500,00"));
            form.enterAndType("3000");
            QVERIFY(form.edit.money() != price);
            QCOMPARE(form.edit.money()->rawAmount(), 3000);
            form.edit.setMoney(form.edit.money());
            QCOMPARE(form.edit.money()->rawAmount(), 3000);
            form.edit.setMoney(nullptr);
            QCOMPARE(form.edit.text(), QString("0,00"));
        }
        QVERIFY(price);
        QCOMPARE(price->rawAmount(), 2500);
    }

    void anAmountHandedOutOutlivesTheNextKey()
    {
        AppContext::instance()->setLocale("id_ID");
        Form<MoneyEdit> form;
        form.edit.setValue(1000);
        const QPointer<Money> before = form.edit.money();
        form.edit.setValue(2000);
        Money* total = before->add(form.edit.money());
        QVERIFY(form.edit.isValid());
        QVERIFY(before);
        QCOMPARE(total->rawAmount(), 3000);
        // A form that stays open does not collect old Money objects.
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCOMPARE(form.edit.findChildren<Money*>().size(), 1);
    }

    void escapeCommitsTheAmountAndClosesTheForm()
    {
        AppContext::instance()->setLocale("id_ID");
        QDialog dialog;
        auto* edit = new MoneyEdit(&dialog);
        dialog.show();
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
        edit->setFocus();
        QTest::keyClicks(edit, "1500");
        QTest::keyClick(edit, Qt::Key_Escape);
        QVERIFY(!dialog.isVisible());
        QCOMPARE(edit->text(), QString("1.500,00"));
        QCOMPARE(edit->money()->rawAmount(), 1500);
    }
};

QTEST_MAIN(TestNumberEdits)
#include "tst_number_edits.moc"
