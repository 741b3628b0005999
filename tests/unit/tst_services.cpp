#include "app/registry/AppBusinessRegistry.h"
#include "kor/business/KorServiceDirectory.h"
#include "pos/registry/PosBusinessRegistry.h"
#include "support/Rows.h"
#include "zavel/registry/ZavelBusinessRegistry.h"

#include <QMetaEnum>

/** The names and rights of the services, which pages and stored grants refer to. */
class TestServices : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { ZavelBusinessRegistry::instance(); }
    void rightsKeepTheirNumbers_data()
    {
        const auto row = addColumns<QStringList>("rights");
        row("User Group", {"0 Create a new user group", "1 Update user group", "2 Delete user group"});
        row("User", {"0 Create a new user", "1 Update user", "2 Delete user"});
        row("User Access", {"0 Update user access"});
        row("Configuration", {"0 Manage Configurations"});
        row("Permission", {});
        row("KeyTable", {"2 Update Key"});
        row("Company Profile", {"0 Manage company info"});
        row("Item Type", {"0 Manage item type"});
        row("Unit", {"0 Manage unit"});
        row("Table", {"0 Add table", "1 Update table", "2 Delete table"});
        row("Supplier", {"0 Insert supplier", "1 Update supplier", "2 Delete supplier"});
        row("Member", {"0 Insert member", "1 Update member", "2 Delete member"});
        row("Agent", {"0 Insert agent", "1 Update agent", "2 Delete agent"});
        row("Bank", {"0 Insert bank", "1 Update bank", "2 Delete bank"});
        row("Item", {"0 Insert item", "1 Update item", "2 Delete item"});
        row("Grouped Item", {"0 Insert grouped item", "1 Update grouped item", "2 Delete grouped item"});
        row("Beginning Balance", {"0 Update Beginning Balance"});
        row("Inventory", {"10 Insert Inventory Adjustment", "11 Delete Inventory Adjustment"});
        row("Purchase Order", {"0 Insert PO", "1 Update PO", "2 Delete PO", "3 Insert PO Detail", "4 Update PO Detail",
                               "5 Delete PO Detail"});
        row("Purchases", {"0 Insert Purchases", "1 Update Purchases", "2 Delete Purchases", "3 Insert Purchases Detail",
                          "4 Update Purchases Detail", "5 Delete Purchases Detail"});
        row("Credit Note",
            {"0 Insert Credit Note", "1 Update Credit Note", "2 Delete Credit Note", "3 Insert Credit Note Detail",
             "4 Update Credit Note Detail", "5 Delete Credit Note Detail"});
        row("Payment", {"0 Insert Payment", "1 Update Payment", "2 Delete Payment"});
        row("Employee", {"0 Insert Employee", "1 Update Employee", "2 Delete Employee"});
        row("Sales", {"0 Add New Order", "1 Edit an Order", "2 Delete an Order", "3 Save an Invoice",
                      "4 Set Kitchen Status", "5 Pay for an Accounts Receivable", "6 Update an Accounts Receivable",
                      "7 Pay for Agent Commission", "8 Update Agent Commission Payment", "9 Delete a Sales Order",
                      "10 Delete Accounts Receivable", "11 Delete Agent Commission Payment"});
        row("Journal Transaction",
            {"1 Insert Journal Transaction", "2 Update Journal Transaction", "3 Delete Journal Transaction"});
        row("Accounting Transaction",
            {"0 Create Accounting Trans", "1 Update Accounting Trans", "2 Delete Accounting Trans"});
        row("Printer Type", {"0 Add Printer Type", "1 Update Printer Type", "2 Delete Printer Type"});
        row("Printer Config", {"0 Manage Printer Configurations"});
    }
    void rightsKeepTheirNumbers()
    {
        const KorBusinessLogic* service = KorServiceDirectory::get(QTest::currentDataTag());
        QVERIFY(service);
        QStringList rights;
        for (const KorPermission& right : service->getPermissions())
            rights.append(QString::number(right.first) + ' ' + right.second);
        QTEST(rights, "rights");

        // The installer creates the rights from this enumeration.
        const QMetaObject* meta = service->metaObject();
        const int index = meta->indexOfEnumerator("PERMISSIONS");
        QVERIFY(rights.isEmpty() || index >= 0);
        for (const KorPermission& right : service->getPermissions())
            QVERIFY(meta->enumerator(index).valueToKey(right.first));
    }

    void permissionsAreNumberedAlikeEverywhere()
    {
        // An installation numbers the permissions in this order, and other installations rely on it. New services must
        // come at the end.
        const auto names = [](const KorBusinessRegistry* registry) {
            QStringList list;
            for (const KorBusinessLogic* service : registry->all())
                list.append(service->name());
            return list.join(", ");
        };
        QVERIFY(names(AppBusinessRegistry::instance())
                    .startsWith("Configuration, Permission, User Access, User, KeyTable, User Group"));
        QVERIFY(names(PosBusinessRegistry::instance())
                    .startsWith(
                        "Accounting Transaction, Bank, Agent, Supplier, Printer Type, Printer Config, Company Profile, "
                        "Purchases, Credit Note, Grouped Item, Inventory, Item, Item Type, Member, Purchase Order, "
                        "Payment, Unit, Beginning Balance, Employee, Journal Transaction"));
        QVERIFY(names(ZavelBusinessRegistry::instance()).startsWith("Table, Sales"));
    }
};

QTEST_MAIN(TestServices)
#include "tst_services.moc"
