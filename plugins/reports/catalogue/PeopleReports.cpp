#include "reports/catalogue/Columns.h"
#include "reports/catalogue/GoodsLists.h"

using Column = ReportColumn;

namespace
{
ReportParameter called() { return ReportParameter::contains("name", QT_TRANSLATE_NOOP("Reports", "Code or name:")); }

/** Contacts that match the name, with the columns that all contacts have. */
QString contactsOf(const QString& table, const QString& select, const QString& joins, const QString& condition = {})
{
    return QString(
               "select %1.kode as code, %1.nama as name, %1.alamat as address, %1.telp as phone, %1.email, %2 "
               "from %1 %3 where (:name::text is null or lower(%1.kode) like :name or lower(%1.nama) like :name) %4 "
               "order by lower(%1.nama), %1.id")
        .arg(table, select, joins, condition);
}

QList<ReportColumn> contactColumns()
{
    return {Columns::code(), Column::text("name", QT_TRANSLATE_NOOP("Reports", "Name")),
            Column::text("address", QT_TRANSLATE_NOOP("Reports", "Address")),
            Column::text("phone", QT_TRANSLATE_NOOP("Reports", "Phone")),
            Column::text("email", QT_TRANSLATE_NOOP("Reports", "E-mail"))};
}

ReportColumn accountNumber() { return Column::text("norek", QT_TRANSLATE_NOOP("Reports", "Account No.")); }
ReportColumn accountHolder() { return Column::text("holder", QT_TRANSLATE_NOOP("Reports", "Account holder")); }

/** The choice between those who owe and all. */
ReportParameter owing(const char* words)
{
    return ReportParameter::choice("owing", QT_TRANSLATE_NOOP("Reports", "Show:"), {{"yes", words}});
}
const char* const owingOnly = " and (:owing::text is null or open.due <> 0)";

Report suppliers()
{
    Report report;
    report.id = "suppliers";
    report.title = QT_TRANSLATE_NOOP("Reports", "Suppliers");
    report.about =
        QT_TRANSLATE_NOOP("Reports", "The suppliers with their bank accounts, and what is to be paid to each "
                                     "today.");
    report.parameters = {called(), owing(QT_TRANSLATE_NOOP("Reports", "Only those to be paid"))};
    report.query = contactsOf("supplier", "supplier.norek, supplier.norek_atasnama as holder, open.purchases, open.due",
                              "left join (select supplier_id, count(*) as purchases, sum(net_due_amount) as due from "
                              "acquisition where status <> 1 group by supplier_id) open on open.supplier_id = "
                              "supplier.id",
                              owingOnly);
    report.columns =
        contactColumns() +
        QList<ReportColumn>{accountNumber(), accountHolder(),
                            Column::count("purchases", QT_TRANSLATE_NOOP("Reports", "Unpaid purchases")).sum(),
                            Column::money("due", QT_TRANSLATE_NOOP("Reports", "To be paid")).sum()};
    return report;
}

Report members()
{
    Report report;
    report.id = "members";
    report.title = QT_TRANSLATE_NOOP("Reports", "Members");
    report.about =
        QT_TRANSLATE_NOOP("Reports", "The members with their discounts, and what each owes today on invoices "
                                     "that are not fully paid.");
    report.parameters = {called(), owing(QT_TRANSLATE_NOOP("Reports", "Only those who owe"))};
    // The member of a dine-in sale is in its order, otherwise in the sale's own record. Invoices without a known user
    // are left out, as in the sales lists and the payment forms.
    report.query = contactsOf("member",
                              "member.expired_date as expires, member.discount_percentage as discount, open.invoices, "
                              "open.due",
                              R"(left join (
            select coalesce(ordered.member_id, away.member_id, fast.member_id) as member_id, count(*) as invoices,
                   sum(invoice.grandtotal_amount - invoice.amount_paid_amount - invoice.other_payment_amount) as due
            from invoice join users on users.id = invoice.createdby
            left join invoice_makan_ditempat dine on dine.invoice_id = invoice.id
            left join makan_ditempat ordered on ordered.id = dine.makan_ditempat_id
            left join invoice_bawa_pulang away on away.invoice_id = invoice.id
            left join invoice_fast_food fast on fast.invoice_id = invoice.id
            where invoice.status <> 1 and invoice.invoice_date <= current_date
            group by 1) open on open.member_id = member.id)",
                              owingOnly);
    report.columns = contactColumns() +
                     QList<ReportColumn>{Column::date("expires", QT_TRANSLATE_NOOP("Reports", "Expires")),
                                         Column::percent("discount", QT_TRANSLATE_NOOP("Reports", "Discount")),
                                         Column::count("invoices", QT_TRANSLATE_NOOP("Reports", "Open invoices")).sum(),
                                         Column::money("due", QT_TRANSLATE_NOOP("Reports", "Owes")).sum()};
    return report;
}

Report agents()
{
    Report report;
    report.id = "agents";
    report.title = QT_TRANSLATE_NOOP("Reports", "Agents");
    report.about = QT_TRANSLATE_NOOP("Reports", "The agents with their commissions and bank accounts.");
    report.parameters = {called()};
    report.query = contactsOf("agent",
                              "agent.commision_perc as commission, agent.norek, agent.norek_atasnama as holder, "
                              "agent.notes as note",
                              {});
    report.columns = contactColumns() +
                     QList<ReportColumn>{Column::percent("commission", QT_TRANSLATE_NOOP("Reports", "Commission")),
                                         accountNumber(), accountHolder(), Columns::note()};
    return report;
}

Report employees()
{
    Report report;
    report.id = "employees";
    report.title = QT_TRANSLATE_NOOP("Reports", "Employees");
    report.about = QT_TRANSLATE_NOOP("Reports", "The employees who serve the tables.");
    report.parameters = {called()};
    report.query = contactsOf("employee", "employee.id", {});
    report.columns = contactColumns();
    return report;
}

// --- users and rights ----------------------------------------------------------------------------------------------

ReportParameter group()
{
    return ReportParameter::row("usergroup", QT_TRANSLATE_NOOP("Reports", "User group:"),
                                "select id, name from user_group order by lower(name)");
}
ReportColumn groupColumn() { return Column::text("usergroup", QT_TRANSLATE_NOOP("Reports", "User group")); }
const char* const groupAsked = "(:usergroup::bigint is null or user_group.id = :usergroup::bigint)";

Report users()
{
    Report report;
    report.id = "users";
    report.title = QT_TRANSLATE_NOOP("Reports", "Users");
    report.about = QT_TRANSLATE_NOOP("Reports", "Who can log in, and in which group.");
    report.parameters = {group()};
    report.query =
        QString("select username, trim(first_name || ' ' || last_name) as name, user_group.name as usergroup, "
                "users.createdtime as since from users join user_group on user_group.id = user_group_id "
                "where %1 order by lower(username)")
            .arg(groupAsked);
    report.columns = {Columns::user(), Column::text("name", QT_TRANSLATE_NOOP("Reports", "Name")), groupColumn(),
                      Column::time("since", QT_TRANSLATE_NOOP("Reports", "Created"))};
    return report;
}

Report rights()
{
    Report report;
    report.id = "rights";
    report.title = QT_TRANSLATE_NOOP("Reports", "Rights by group");
    report.about = QT_TRANSLATE_NOOP("Reports", "What each group of users may do. Own records are those that the user "
                                                "entered.");
    const QList<QPair<QVariant, const char*>> grants{{0, QT_TRANSLATE_NOOP("Reports", "None")},
                                                     {1, QT_TRANSLATE_NOOP("Reports", "Own records")},
                                                     {2, QT_TRANSLATE_NOOP("Reports", "All records")}};
    report.parameters = {group(), ReportParameter::choice("grant", QT_TRANSLATE_NOOP("Reports", "Right:"), grants)};
    // A right without a row counts as denied.
    report.query = QString(R"(
        select * from (
            select user_group.id, user_group.name as usergroup, business.name as service,
                   permissions.permission_name as name, permissions.id as permission,
                   case when access.grant_type in (1, 2) then access.grant_type else 0 end as granted
            from user_group cross join permissions join business on business.id = permissions.business_id
            left join access on access.group_id = user_group.id and access.permission_id = permissions.id
            where %1) rights
        where (:grant::integer is null or granted = :grant::integer)
        order by usergroup, id, service, permission)")
                       .arg(groupAsked);
    report.columns = {groupColumn(), Column::text("service", QT_TRANSLATE_NOOP("Reports", "Subject")),
                      Column::text("name", QT_TRANSLATE_NOOP("Reports", "Right")),
                      Column::text("granted", QT_TRANSLATE_NOOP("Reports", "Granted on")).words(grants)};
    return report;
}
} // namespace

QList<Report> GoodsLists::contacts() { return {suppliers(), members(), agents(), employees()}; }

QList<Report> GoodsLists::users() { return {::users(), rights()}; }
