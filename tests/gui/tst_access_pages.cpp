#include "app/access/DialogLogin.h"
#include "app/access/DialogUserAccess.h"
#include "app/access/TabUser.h"
#include "app/access/TabUserAccess.h"
#include "app/access/TabUserGroup.h"
#include "app/context/EntityUser.h"
#include "app/numbers/TabKeyTable.h"
#include "support/DatabaseTest.h"

#include <QListWidget>
#include <QRadioButton>

namespace
{
void ok(const QWidget* form) { press(form, QDialogButtonBox::Ok); }

/** The login dialog for tests: leaving it is recorded instead of ending the test. */
class LoginUnderTest : public DialogLogin
{
public:
    int left = 0;

protected:
    void leaveProgram() override { ++left; }
};
} // namespace

/** Login, users, groups, rights and running numbers as the people in the restaurant see them. */
class TestAccessPages : public DatabaseTest
{
    Q_OBJECT

protected:
    void prepare() override
    {
        run("TRUNCATE users, user_group, business, permissions, access, keytable RESTART IDENTITY CASCADE");
        run("INSERT INTO user_group (name, version) VALUES ('admin', 1), ('kasir', 1), ('unused', 1);"
            "INSERT INTO users (first_name, last_name, username, password, user_group_id, currency, createdtime, "
            "version) VALUES ('Ann', 'Martin', 'ann', md5('secret'), 2, '$', '2024-11-05 14:03:00', 1);"
            "INSERT INTO business (name, version) VALUES ('Table', 1), ('Unit', 1);"
            "INSERT INTO permissions (permission_name, permission_key, business_id, version) VALUES "
            "('Add table', 0, 1, 1), ('Delete table', 2, 1, 1), ('Manage unit', 0, 2, 1);"
            "INSERT INTO access (group_id, permission_id, grant_type, version) VALUES (2, 1, 1, 1);"
            "INSERT INTO keytable (key_name, next_id, increment_by, format, description, no_zero, version) VALUES "
            "('PO', 57, 1, 'POMMyy', 'Purchase Order Key', 4, 1), ('TR', 3, 1, 'TRMMyy', 'Accounting', 4, 1)");
    }

private slots:
    void theLoginLetsNobodyInWithoutName_data()
    {
        const auto row = addColumns<QString, QString, QString>("name", "password", "message");
        row("nothing typed", "", "", "Please enter username and password\r\n");
        row("no password", "ann", "", "Please enter username and password\r\n");
        row("no name", "", "secret", "Please enter username and password\r\n");
        row("wrong password", "ann", "secreT", "Invalid login\r\n");
        row("right", "ann", "secret", "");
    }
    void theLoginLetsNobodyInWithoutName()
    {
        FETCH(QString, name, password, message);
        LoginUnderTest login;
        showForm(&login);
        QTRY_VERIFY(login.findChild<QLineEdit*>("txtUsername")->hasFocus());
        QCOMPARE(login.findChild<QLabel*>("lblHint")->text(), QString("Default login: admin / Qx7!Rm2z"));
        QTest::keyClicks(login.focusWidget(), name);
        QTest::keyClick(login.focusWidget(), Qt::Key_Tab);
        QTest::keyClicks(login.focusWidget(), password);
        QTest::keyClick(login.focusWidget(), Qt::Key_Return);
        QTRY_COMPARE(m_people->texts(), message.isEmpty() ? QStringList() : QStringList{message});
        QTRY_COMPARE(login.result(), message.isEmpty() ? int(QDialog::Accepted) : int(QDialog::Rejected));
        QCOMPARE(login.left, 0);
    }

    void whoDoesNotLogInLeaves()
    {
        LoginUnderTest login;
        showForm(&login);
        press(&login, QDialogButtonBox::Cancel);
        QCOMPARE(login.left, 1);
        QTest::keyClick(&login, Qt::Key_Escape);
        QCOMPARE(login.left, 2);
        login.close();
        QCOMPARE(login.left, 3);
    }

    void aUserFormTellsAllThatIsWrong_data()
    {
        QTest::addColumn<QStringList>("typed"); // user name, first and last name
        addColumns<QString>("message");
        addRow("empty", QStringList{"", "", ""}, "Enter Username\r\nEnter First Name\r\nEnter Last Name\r\n");
        addRow("blank inside", QStringList{"bo b", "Bob", "Smith"}, "Enter alpha numeric for Username\r\n");
        addRow("taken", QStringList{"ann", "Bob", "Smith"}, "Username already exists\r\n");
        addRow("other letters are another user", QStringList{"Ann", "Bob", "Smith"}, "");
    }
    void aUserFormTellsAllThatIsWrong()
    {
        QFETCH(QStringList, typed);
        QFETCH(QString, message);
        DialogUser form;
        typeInto(&form, "txtUsername", typed[0]);
        typeInto(&form, "txtFirstName", typed[1]);
        typeInto(&form, "txtLastName", typed[2]);
        QCOMPARE(form.validate(), message.isEmpty());
        form.accept();
        QCOMPARE(m_people->texts().join(""), message);
    }

    void aUserIsAddedAndEditedWithoutTouchingThePassword()
    {
        TabUser page;
        showPage(&page);
        const auto* grid = page.findChild<QTableView*>("tblUser");
        m_people->expect<DialogUser>([](DialogUser* form) {
            typeInto(form, "txtUsername", "bob");
            typeInto(form, "txtFirstName", "Bob");
            typeInto(form, "txtLastName", "O'Hara");
            typeInto(form, "txtPassword", "secret");
            form->findChild<QComboBox*>("cbGroup")->setCurrentText("kasir");
            ok(form);
        });
        click(&page, "btnAdd_2");
        QTRY_COMPARE(grid->model()->rowCount(), 2);
        QCOMPARE(cells(*grid->model(), 0), (QStringList{"1", "ann", "Ann", "Martin", "kasir", "5 Nov 2024"}));
        QCOMPARE(cells(*grid->model(), 1).mid(1, 4), (QStringList{"bob", "Bob", "O'Hara", "kasir"}));

        m_people->expect<DialogUser>([](DialogUser* form) {
            QCOMPARE(form->findChild<QLineEdit*>("txtPassword")->text(), QString());
            QCOMPARE(form->findChild<QComboBox*>("cbGroup")->currentText(), QString("kasir"));
            typeInto(form, "txtFirstName", "Bobby");
            form->findChild<QComboBox*>("cbGroup")->setCurrentText("admin");
            ok(form);
        });
        page.findChild<QTableView*>("tblUser")->selectRow(1);
        page.on_btnEdit_clicked();
        QCOMPARE(cells(*grid->model(), 1).mid(1, 4), (QStringList{"bob", "Bobby", "O'Hara", "admin"}));
        QVERIFY(service<BusinessUser>("User")->login("bob", "secret"));
        QVERIFY(m_people->finished());
    }

    void aGroupThatSomebodyBelongsToStays()
    {
        TabUserGroup page;
        showPage(&page);
        auto* grid = page.findChild<QTableView*>("tblUserGroup");
        QCOMPARE(cells(*grid->model(), 1).mid(0, 2), (QStringList{"2", "kasir"}));
        grid->selectAll();
        m_people->answer(QMessageBox::No);
        m_people->answer(QMessageBox::Yes);
        m_people->answer(QMessageBox::Yes);
        page.on_btnDelete_clicked();
        QCOMPARE(m_people->texts(), (QStringList{"Are you sure, you want to delete user group: admin?",
                                                 "Are you sure, you want to delete user group: kasir?",
                                                 "Can not delete user groupd with id: 2, it is still in use",
                                                 "Are you sure, you want to delete user group: unused?"}));
        QCOMPARE(m_people->boxes()[2].icon, QMessageBox::Critical);
        QCOMPARE(grid->model()->rowCount(), 2);

        // The right is checked once for all rows; a grant for own records only is not enough.
        m_people->clear();
        loginWithRights("User Group", {{1, 2}});
        grid->selectAll();
        page.on_btnDelete_clicked();
        QCOMPARE(m_people->texts(), QStringList{"You don't have access.\r\nRequired permission: User Group."});
    }

    void aGroupNameIsTakenInAnyLetters()
    {
        DialogUserGroup form;
        QVERIFY(!form.validate());
        typeInto(&form, "txtGroupName", "KASIR");
        form.accept();
        QCOMPARE(m_people->texts(), QStringList{"This group name already exists\r\n"});
    }

    void rightsAreGivenServiceByService()
    {
        TabUserAccess page;
        showPage(&page);
        auto* grid = page.findChild<QTableView*>("tblPermission");
        auto* groups = page.findChild<QComboBox*>("cbGroup");
        auto* businesses = page.findChild<QListWidget*>("lvBusiness");
        QCOMPARE(cells(*grid->model(), 0), (QStringList{"1", "Add table", "NONE"}));
        groups->setCurrentText("kasir");
        QCOMPARE(cells(*grid->model(), 0), (QStringList{"1", "Add table", "OWNER"}));
        QVERIFY(!page.findChild<QPushButton*>("btnAdd")->isVisible());
        QVERIFY(!page.findChild<QPushButton*>("btnDelete")->isVisible());

        grid->selectAll();
        m_people->expect<DialogUserAccess>([](DialogUserAccess* form) {
            QVERIFY(form->findChild<QRadioButton*>("rbOwner")->isChecked());
            QCOMPARE(labelled(form, "lblGroup"), QString("kasir"));
            QCOMPARE(labelled(form, "lblBusiness"), QString("Table"));
            form->findChild<QRadioButton*>("rbNone")->setChecked(true);
            ok(form);
        });
        m_people->expect<DialogUserAccess>([](DialogUserAccess* form) {
            QCOMPARE(labelled(form, "lblPermission"), QString("Delete table"));
            form->findChild<QRadioButton*>("rbAll")->setChecked(true);
            ok(form);
        });
        page.on_btnEdit_clicked();
        QCOMPARE(m_people->texts(), QStringList{"Application needs to be restarted to take the effect"});
        QCOMPARE(m_people->lastTitle(), QString("Info"));
        QCOMPARE(cells(*grid->model(), 0).last() + cells(*grid->model(), 1).last(), QString("NONEALL"));
        QVERIFY(m_people->finished());

        // The message is shown even after cancelling: an earlier change may still need a restart.
        m_people->clear();
        page.on_btnEdit_clicked();
        QCOMPARE(m_people->texts(), QStringList{"Application needs to be restarted to take the effect"});

        bringToFront(&page);
        businesses->setFocus();
        QTest::keyClick(businesses, Qt::Key_Down);
        QCOMPARE(cells(*grid->model(), 0), (QStringList{"3", "Manage unit", "NONE"}));
        QVERIFY(businesses->hasFocus());

        m_people->clear();
        loginWithRights("User Access", {});
        grid->selectAll();
        page.on_btnEdit_clicked();
        QCOMPARE(m_people->texts(), QStringList{"You don't have access.\r\nRequired permission: User Access."});
    }

    void anAccessPageIsTwoStatements()
    {
        TabUserAccess page;
        const StatementCount statements;
        page.on_btnRefresh_clicked();
        QCOMPARE(statements.count(), 2);
    }

    void aRunningNumberIsEditedButNeverAddedOrDeleted()
    {
        TabKeyTable page;
        showPage(&page);
        auto* grid = page.findChild<QTableView*>("tblKeyTable");
        QCOMPARE(cells(*grid->model(), 0), (QStringList{"PO", "57", "1", "4", "POMMyy", "Purchase Order Key"}));
        QVERIFY(!page.findChild<QPushButton*>("btnAdd")->isVisible());
        QVERIFY(!page.findChild<QPushButton*>("btnDelete")->isVisible());
        QVERIFY(grid->columnWidth(2) >= 130);

        grid->selectRow(0);
        m_people->expect<DialogKeyTable>([](DialogKeyTable* form) {
            typeInto(form, "txtNextId", "");
            typeInto(form, "txtIncrementBy", "1.5");
            typeInto(form, "txtNoZero", "four");
            typeInto(form, "txtFormat", "");
            typeInto(form, "txtDescription", "");
            ok(form);
        });
        m_people->expect<DialogKeyTable>([](DialogKeyTable* form) {
            typeInto(form, "txtNextId", "100");
            typeInto(form, "txtIncrementBy", "10");
            typeInto(form, "txtNoZero", "6");
            typeInto(form, "txtFormat", "'PO-'yyyy");
            typeInto(form, "txtDescription", "Orders");
            ok(form);
        });
        QTest::keyClick(grid, Qt::Key_F2);
        QTRY_COMPARE(cells(*grid->model(), 0), (QStringList{"PO", "100", "10", "6", "'PO-'yyyy", "Orders"}));
        QCOMPARE(m_people->texts(),
                 QStringList{"Enter Next Id\r\nEnter valid number for Increment value\r\n"
                             "Enter valid number for Number of zero\r\nEnter Format\r\nEnter Description\r\n"});
        QVERIFY(m_people->finished());
    }
};

QTEST_MAIN(TestAccessPages)
#include "tst_access_pages.moc"
