#include "app/widgets/AppNumberEdit.h"
#include "pos/masterdata/account/BankTextBox.h"
#include "pos/masterdata/account/DialogBank.h"
#include "pos/masterdata/account/TableModelBank.h"
#include "pos/masterdata/agent/BusinessAgent.h"
#include "pos/masterdata/agent/DialogAgent.h"
#include "pos/masterdata/member/DialogMember.h"
#include "pos/masterdata/supplier/DialogSupplier.h"
#include "pos/masterdata/supplier/SupplierTextBox.h"
#include "support/DatabaseTest.h"
#include "support/MasterFamilies.h"

namespace
{
using Input = QMap<QString, QString>;

/** Valid input except for the row's changes. */
Input with(const Input& changes)
{
    Input input{{"txtKode", "new"},      {"txtNama", "Name"}, {"txtNamaSatuan", "Name"},    {"txtNamaJenis", "Name"},
                {"txtAlamat", "Street"}, {"txtTelp", "0812"}, {"txtEmail", "a@example.com"}};
    for (auto change = changes.begin(); change != changes.end(); ++change)
        input.insert(change.key(), change.value());
    return input;
}

const Input nothing{{"txtKode", ""},   {"txtNama", ""}, {"txtNamaSatuan", ""}, {"txtNamaJenis", ""},
                    {"txtAlamat", ""}, {"txtTelp", ""}, {"txtEmail", ""}};
} // namespace

Q_DECLARE_METATYPE(Input)

/** The input checks and saving of the master data forms. */
class TestMasterForms : public DatabaseTest
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        keepDatabase();
        for (const MasterFamily& family : masterFamilies())
            run("TRUNCATE " + family.table + " CASCADE");
        for (const MasterFamily& family : masterFamilies())
            run(family.insertStatement("taken", "Somebody"));
        run("INSERT INTO bank (id, kode, nama, account_type, active, version) VALUES "
            "(901, '4050', 'Sales of Materials', 4, false, 1), (902, '6650', 'Fees', 5, true, 1)");
    }

    void aFormSaysAllThatIsWrongAtOnce_data()
    {
        addColumns<int, Input, QString>("family", "input", "told");

        struct Words
        {
            QString service;
            QString empty;
            QString taken;
            QString email;
        };
        const QList<Words> all{
            {"Table",
             "Enter the table code\r\nEnter the table name\r\n",
             "This table code is already in use please use another code\r\n",
             {}},
            {"Unit",
             "Enter the unit name\r\nEnter the unit code\r\n",
             "This unit code is already in use please use another code\r\n",
             {}},
            {"Item Type",
             "Enter the code\r\nEnter the name\r\n",
             "This code is already in use please use another code\r\n",
             {}},
            {"Supplier",
             "Enter the supplier code\r\nEnter the supplier name\r\nEnter the supplier address\r\nEnter the telp "
             "no\r\n",
             "This supplier code is already in use please use another code\r\n", "Enter the valid email address\r\n"},
            {"Member", "Enter the member code\r\nEnter the member name\r\nEnter the address\r\nenter the telp no.\r\n",
             "This member code is already used please use another code\r\n", "Enter the valid email address\r\n"},
            {"Agent", "Enter the agent code\r\nEnter the agent name\r\nEnter the address\r\nEnter the telp no\r\n",
             "This agent code already used, please choose another code\r\n", "Enter the correct email address\r\n"},
            {"Bank",
             "Enter the account code\r\nEnter the account name\r\n",
             "The code you entered is already in use please use another code\r\n",
             {}},
            {"Employee",
             "Enter the employee code\r\nEnter the employee name\r\nEnter the employee address\r\n"
             "Enter the phone no\r\n",
             "This employee code is already in use, please enter another code\r\n",
             "Enter the valid email address\r\n"},
        };
        const auto row = [](const Words& words, const char* name, const Input& input, const QString& told) {
            addRow(qPrintable(words.service + ", " + name), indexOf(words.service), input, told);
        };
        for (const Words& words : all) {
            row(words, "nothing filled in", nothing, words.empty);
            row(words, "code taken in other letters", with({{"txtKode", "TAKEN"}}), words.taken);
            row(words, "all in order", with({}), {});
            if (words.email.isEmpty())
                continue;
            row(words, "no e-mail", with({{"txtEmail", ""}}), {});
            row(words, "e-mail without a host", with({{"txtEmail", "budi@"}}), words.email);
        }
        const Words& suppliers = all.at(3);
        row(suppliers, "e-mail in capitals", with({{"txtEmail", "A.B+C@D-E.INFO"}}), {});
        row(suppliers, "e-mail with a long ending", with({{"txtEmail", "a@example.museum"}}), suppliers.email);
        row(suppliers, "e-mail and more", with({{"txtEmail", "a@example.com, b@example.com"}}), suppliers.email);
    }
    void aFormSaysAllThatIsWrongAtOnce()
    {
        QFETCH(int, family);
        QFETCH(Input, input);
        QFETCH(QString, told);
        const std::unique_ptr<KorDialog> form = masterFamilies().at(family).makeForm();
        form->show();
        for (auto field = input.begin(); field != input.end(); ++field) {
            if (form->findChild<QWidget*>(field.key()))
                typeInto(form.get(), field.key(), field.value());
        }
        form->accept();
        QCOMPARE(m_people->texts(), told.isEmpty() ? QStringList() : QStringList{told});
        QCOMPARE(form->isVisible(), !told.isEmpty());
        if (!told.isEmpty())
            QCOMPARE(m_people->lastTitle(), QString("Error"));
    }

    void aMemberIsValidForAYearUnlessToldOtherwise()
    {
        DialogMember form;
        auto* date = form.findChild<QDateEdit*>("dateExpired");
        QCOMPARE(date->date(), QDate::currentDate().addYears(1));
        QCOMPARE(date->displayFormat(), QString("d MMM yyyy"));
        typeInto(&form, "txtDiscPerc", "250.5");
        auto* member = static_cast<EntityMember*>(form.getEntity());
        QCOMPARE(member->getExpiredDate(), date->date());
        QCOMPARE(member->getDiscountPercentage(), 250.5);

        auto* expired = new EntityMember;
        expired->setExpiredDate(QDate(2020, 2, 29));
        expired->setDiscountPercentage(7.5);
        DialogMember second;
        second.setEntity(expired);
        QCOMPARE(second.findChild<QDateEdit*>("dateExpired")->text(), QString("29 Feb 2020"));
        QCOMPARE(second.findChild<AppNumberEdit*>("txtDiscPerc")->text(), QString("7.5"));
    }

    void anAgentsShareIsAPercentage_data()
    {
        const auto row = addColumns<QString, bool, double>("typed", "accepted", "share");
        row("nothing at all", "0", true, 0.0);
        row("a fraction", "7.5", true, 7.5);
        row("everything", "100", true, 100.0);
        row("a little more", "100.01", false, 0.0);
        row("less than nothing", "-0.5", false, 0.0);
        row("no number", "1O", false, 0.0);
        row("emptied", "", true, 0.0);
        row("untouched", QString(), true, 0.0);
    }
    void anAgentsShareIsAPercentage()
    {
        QFETCH(QString, typed);
        QFETCH(bool, accepted);
        DialogAgent form;
        currentFamilyNamed("Agent").fill(&form, "share", "Guide");
        if (!typed.isNull())
            typeInto(&form, "txtPerc", typed);
        QCOMPARE(form.validate(), accepted);
        QCOMPARE(form.errorsOf(form.findChild<QWidget*>("txtPerc")),
                 accepted ? QStringList() : QStringList{"Enter the number between 0-100"});
        if (accepted)
            QTEST(static_cast<EntityAgent*>(form.getEntity())->getCommisionPerc(), "share");
    }

    void aSupplierNamesItsAccountOrNone()
    {
        auto* suppliers = service<BusinessSupplier>("Supplier");
        {
            DialogSupplier form;
            form.setEntity(suppliers->findByCode("taken"));
            auto* account = form.findChild<QComboBox*>("ddlBank");
            QCOMPARE(account->currentText(), QString("none"));
            QCOMPARE(account->currentData().toInt(), KorNoValue);
            QCOMPARE(account->count(), 4);
            account->setCurrentText("Fees");
            typeInto(&form, "txtNotes", "pays late");
            QVERIFY2(suppliers->update(form.getEntity()), qPrintable(suppliers->takeErrors()));
        }
        QCOMPARE(m_database->value("SELECT bank_id FROM supplier WHERE kode = 'taken'").toInt(), 902);
        DialogSupplier form;
        form.setEntity(suppliers->findByCode("taken"));
        QCOMPARE(form.findChild<QComboBox*>("ddlBank")->currentText(), QString("Fees"));
        QCOMPARE(form.findChild<QPlainTextEdit*>("txtNotes")->toPlainText(), QString("pays late"));
        form.findChild<QComboBox*>("ddlBank")->setCurrentText("none");
        QVERIFY(suppliers->update(form.getEntity()));
        QVERIFY(m_database->value("SELECT bank_id FROM supplier WHERE kode = 'taken'").isNull());
    }

    void aLongAddressIsCutWhereItsColumnEnds()
    {
        DialogSupplier form;
        auto* address = form.findChild<QPlainTextEdit*>("txtAlamat");
        address->setPlainText(QString(500, 'a'));
        address->moveCursor(QTextCursor::Start);
        address->insertPlainText("xyz");
        QCOMPARE(address->toPlainText(), QString(500, 'a'));
    }

    void theFormOfAnAccountOffersSixTypesInItsOwnOrder()
    {
        const DialogBank form;
        const auto* types = form.findChild<QComboBox*>("ddlType");
        QStringList offered;
        for (int i = 0; i < types->count(); ++i)
            offered.append(types->itemText(i) + '=' + types->itemData(i).toString());
        QCOMPARE(offered, (QStringList{"Cash=1", "Cost of Sales=9", "Inventory=8", "Accounts Payable=2",
                                       "Account Receivable=3", "Commisions and Fees Expense=5"}));
    }

    void everyTypeOfAccountHasItsWordInTheList()
    {
        QList<KorEntity*> rows;
        for (int type = 0; type <= 10; ++type) {
            auto* account = new EntityBank;
            account->setAccountType(type);
            rows.append(account);
        }
        TableModelBank model(rows, nullptr);
        QStringList words;
        for (int row = 0; row < model.rowCount(); ++row)
            words.append(model.index(row, 3).data().toString());
        model.clear();
        QCOMPARE(words, (QStringList{"", "Cash", "Accounts Payable", "Accounts Receiveable", "Income", "Expense",
                                     "Assets", "Other Current Liabilities", "Inventory", "Cost of Sales", ""}));
    }

    void anIncomeAccountTurnsIntoCashWhenItsFormIsSaved()
    {
        auto* accounts = service<BusinessBank>("Bank");
        DialogBank form;
        form.setEntity(accounts->findByCode("4050"));
        QCOMPARE(form.findChild<QComboBox*>("ddlType")->currentText(), QString("Cash"));
        auto* account = static_cast<EntityBank*>(form.getEntity());
        QCOMPARE(account->getAccountType(), 1);
        // A closed account stays closed; a new one is open.
        QVERIFY(!account->getActive());
        QVERIFY(static_cast<EntityBank*>(DialogBank().getEntity())->getActive());
    }

    void aLookupOffersTheAccountsTypeAndTheSuppliersByCode()
    {
        QLineEdit editor;
        BankTextBox accounts(&editor, service<BusinessBank>("Bank"));
        accounts.search("SALES");
        QCOMPARE(accounts.rowCount(), 1);
        QCOMPARE(accounts.rowText(0, 0).toString(), QString("4050"));
        QCOMPARE(accounts.rowText(0, 1).toString(), QString("Sales of Materials"));
        QCOMPARE(accounts.rowText(0, 2).toString(), QString("Income"));

        run(currentFamilyNamed("Supplier").insertStatement("z", "Apples"));
        SupplierTextBox suppliers(&editor, service<BusinessSupplier>("Supplier"));
        suppliers.search("");
        QCOMPARE(suppliers.rowText(suppliers.rowCount() - 1, 1).toString(), QString("Apples"));
        suppliers.search("app");
        suppliers.doneCompletion();
        QCOMPARE(editor.text(), QString("z"));
        QCOMPARE(suppliers.selectedItem()->getNama(), QString("Apples"));
    }

private:
    static const MasterFamily& currentFamilyNamed(const QString& serviceName)
    {
        return masterFamilies().at(indexOf(serviceName));
    }
    static int indexOf(const QString& serviceName)
    {
        for (int i = 0; i < masterFamilies().size(); ++i) {
            if (masterFamilies().at(i).service == serviceName)
                return i;
        }
        qFatal("no family %s", qPrintable(serviceName));
    }
};

QTEST_MAIN(TestMasterForms)
#include "tst_master_forms.moc"
