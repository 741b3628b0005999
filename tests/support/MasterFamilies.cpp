#include "support/MasterFamilies.h"

#include "kor/entity/KorMetaDataMap.h"
#include "kor/widgets/KorTextBoxExtender.h"
#include "pos/masterdata/account/TabBank.h"
#include "pos/masterdata/agent/TabAgent.h"
#include "pos/masterdata/employee/TabEmployee.h"
#include "pos/masterdata/itemtype/TabJenisItem.h"
#include "pos/masterdata/member/TabMember.h"
#include "pos/masterdata/supplier/TabSupplier.h"
#include "pos/masterdata/unit/TabSatuan.h"
#include "shell/window/Pages.h"
#include "support/Hands.h"
#include "support/Rows.h"
#include "zavel/tables/TabMeja.h"

#include <algorithm>

namespace
{
/** A family with only a code and a name. */
template <class Tab, class Dialog>
MasterFamily family(const QString& service, const QString& table, MasterFamily::Order order, const QString& title,
                    const QString& called, const QStringList& rights)
{
    MasterFamily family;
    family.service = service;
    family.table = table;
    family.order = order;
    family.title = title;
    family.headers = QStringList{"ID", "Code", "Name"};
    family.called = called;
    family.rights = rights;
    family.lostRow = "Can not find entity with id: %1";
    family.grid = QString(Tab::staticMetaObject.className()).replace(0, 3, "tbl");
    family.nameField = "txtNama";
    family.makePage = [] { return std::make_unique<Tab>(); };
    family.makeForm = [] { return std::make_unique<Dialog>(); };
    return family;
}

QStringList threeRights(const QString& of) { return {"Insert " + of, "Update " + of, "Delete " + of}; }

/** A contact; the last two parameters are further columns of the table. */
template <class Tab, class Dialog>
MasterFamily contact(const QString& service, const QString& table, MasterFamily::Order order, const QString& rights,
                     const QString& column = QString(), const QString& value = QString())
{
    MasterFamily contact = family<Tab, Dialog>(service, table, order, service + 's', table, threeRights(rights));
    contact.headers += QStringList{"Phone", "Email"};
    contact.details = {{"txtAlamat", "Harbour street 4"}, {"txtTelp", "0812 555"}};
    contact.columns = ", alamat, telp, email" + column;
    contact.values = ", 'Harbour street 4', '0812 555', ''" + value;
    return contact;
}

QList<MasterFamily> makeFamilies()
{
    using F = MasterFamily;
    MasterFamily unit = family<TabSatuan, DialogSatuan>("Unit", "satuan", F::ByName, "Units", "unit", {"Manage unit"});
    unit.headers = QStringList{"ID", "Name", "Code"};
    unit.nameField = "txtNamaSatuan";
    MasterFamily itemType = family<TabJenisItem, DialogJenisItem>("Item Type", "jenis_item", F::ByName, "Item Types",
                                                                  "item", {"Manage item type"});
    itemType.nameField = "txtNamaJenis";
    MasterFamily agent =
        contact<TabAgent, DialogAgent>("Agent", "agent", F::AsStored, "agent", ", commision_perc", ", 5");
    agent.lostRow = "Can not find entity with id: %";
    MasterFamily account =
        family<TabBank, DialogBank>("Bank", "bank", F::ById, "Accounts", "account", threeRights("bank"));
    account.headers += "Type";
    account.columns = ", account_type, active";
    account.values = ", 1, true";
    return {family<TabMeja, DialogMeja>("Table", "meja", F::ByName, "Tables", "table",
                                        {"Add table", "Update table", "Delete table"}),
            unit,
            itemType,
            contact<TabSupplier, DialogSupplier>("Supplier", "supplier", F::ById, "supplier"),
            contact<TabMember, DialogMember>("Member", "member", F::ById, "member", ", discount_percentage", ", 10"),
            agent,
            account,
            contact<TabEmployee, DialogEmployee>("Employee", "employee", F::ById, "Employee")};
}
} // namespace

AppMasterMapper* MasterFamily::mapper() const
{
    return static_cast<AppMasterMapper*>(KorServiceDirectory::get(service)->mapper());
}

QString MasterFamily::insertStatement(const QString& code, const QString& name) const
{
    QString quoted = name;
    quoted.replace('\'', "''");
    return QString("INSERT INTO %1 (kode, nama, createdby, version%2) VALUES ('%3', '%4', 1, 1%5)")
        .arg(table, columns, code, quoted, values);
}

void MasterFamily::fill(KorDialog* form, const QString& code, const QString& name) const
{
    typeInto(form, nameField, name);
    for (auto field = details.begin(); field != details.end(); ++field)
        typeInto(form, field.key(), field.value());
    // For unknown fields: a text that is also a valid number.
    for (QLineEdit* box : form->findChildren<QLineEdit*>()) {
        if (order == Unknown && box->isVisible() && box->text().isEmpty() && !box->findChild<KorTextBoxExtender*>())
            QTest::keyClicks(box, "1");
    }
    typeInto(form, "txtKode", code);
}

namespace
{
/** Adds the values that a row needs besides code and name. */
void addDetails(MasterFamily& family)
{
    for (const KorColumnMap* column : family.mapper()->metaData()->columns()) {
        const bool given = QStringList{"kode", "nama", "createdby", "version"}.contains(column->columnName());
        if (given || !column->sqlType().contains("not null") || column->sqlType().contains("default"))
            continue;
        family.columns += ", " + column->columnName();
        family.values += column->sqlType().startsWith("varchar") || column->sqlType().startsWith("text") ? ", 'x'"
                         : column->sqlType().startsWith("date") ? ", '2026-03-01'"
                                                                : ", 1";
    }
}

/** The families of other pages that list codes and names, found in the program's list of pages. */
QList<MasterFamily> familiesOfPages(const QList<MasterFamily>& known)
{
    QList<MasterFamily> families;
    for (const Page& page : allPages()) {
        const KorBusinessLogic* service = page.service ? KorServiceDirectory::find(*page.service) : nullptr;
        auto* mapper = service ? dynamic_cast<AppMasterMapper*>(service->mapper()) : nullptr;
        const auto same = [service](const MasterFamily& family) { return family.service == service->name(); };
        // Items need more than a code and a name; their form has separate tests.
        if (!mapper || service->name() == "Item" || std::any_of(known.begin(), known.end(), same))
            continue;
        MasterFamily family;
        family.service = service->name();
        family.table = mapper->metaData()->tableName();
        family.order = MasterFamily::Unknown;
        family.lostRow = "Can not find entity with id: %1";
        family.nameField = "txtNama";
        for (const KorPermission& right : service->getPermissions())
            family.rights.append(right.second);
        family.makePage = [&page] { return std::unique_ptr<AppListTab>(static_cast<AppListTab*>(page.make())); };
        family.makeForm = [&page] { return std::unique_ptr<KorDialog>(page.makeForm()); };
        addDetails(family);
        families.append(family);
    }
    return families;
}
} // namespace

const QList<MasterFamily>& masterFamilies()
{
    static const QList<MasterFamily> families = [] {
        const QList<MasterFamily> known = makeFamilies();
        return known + familiesOfPages(known);
    }();
    return families;
}

void addFamilyRows()
{
    addColumns<int>("family");
    for (int i = 0; i < masterFamilies().size(); ++i)
        addRow(qPrintable(masterFamilies().at(i).service), i);
}

const MasterFamily& currentFamily()
{
    QFETCH(int, family);
    return masterFamilies().at(family);
}
