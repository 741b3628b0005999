#include "reports/catalogue/SalesLists.h"
#include "reports/catalogue/SalesSums.h"

using Column = ReportColumn;

namespace
{
/** A partner's name; sales without one show the other text. */
ReportColumn name(const char* title, const char* none) { return Column::text("name", title).words({{"", none}}); }
} // namespace

// The same joins as in the list of all sales.
QList<Report> SalesLists::byPartner()
{
    const char* const links = "left join invoice_makan_ditempat dine on dine.invoice_id = i.id "
                              "left join invoice_fast_food fast on fast.invoice_id = i.id ";
    const Column code = Column::text("code", QT_TRANSLATE_NOOP("Reports", "Code"));
    return {
        SalesSums::salesBy("sales-by-type", QT_TRANSLATE_NOOP("Reports", "Sales by type"),
                           QT_TRANSLATE_NOOP("Reports", "Dine in, fast food and take away side by side."),
                           {"i.invoice_type as type", {}, {}, {SalesSums::typeColumn()}}),
        SalesSums::salesBy(
            "sales-by-table", QT_TRANSLATE_NOOP("Reports", "Sales by table"),
            QT_TRANSLATE_NOOP("Reports", "What each table brought, at the table where the guests paid. Each part of "
                                         "a divided bill counts as a sale."),
            {"coalesce(meja.nama, '') as name, meja.kode as code",
             "left join invoice_makan_ditempat dine on dine.invoice_id = i.id "
             "left join makan_ditempat o on o.id = dine.makan_ditempat_id left join meja on meja.id = o.meja_id",
             "and i.invoice_type = 'TRD'",
             {name(QT_TRANSLATE_NOOP("Reports", "Table"), QT_TRANSLATE_NOOP("Reports", "Not known")), code}}),
        SalesSums::salesBy(
            "sales-by-waitress", QT_TRANSLATE_NOOP("Reports", "Sales by waitress"),
            QT_TRANSLATE_NOOP("Reports", "What was sold under each waitress's name. Take-away has none."),
            {"coalesce(e.nama, '') as name, e.kode as code",
             links + QString("left join employee e on e.id = coalesce(dine.employee_id, fast.employee_id)"),
             {},
             {name(QT_TRANSLATE_NOOP("Reports", "Waitress"), QT_TRANSLATE_NOOP("Reports", "No waitress")), code}}),
        SalesSums::salesBy(
            "sales-by-cashier", QT_TRANSLATE_NOOP("Reports", "Sales by cashier"),
            QT_TRANSLATE_NOOP("Reports", "Who saved the invoices first. Whoever changes one later is told on the page "
                                         "of exceptions."),
            {"coalesce(u.username, '') as name",
             "left join users u on u.id = i.createdby",
             {},
             {name(QT_TRANSLATE_NOOP("Reports", "Cashier"), QT_TRANSLATE_NOOP("Reports", "Not known"))}}),
        SalesSums::salesBy(
            "sales-by-member", QT_TRANSLATE_NOOP("Reports", "Sales by member"),
            QT_TRANSLATE_NOOP("Reports", "What each member spent, and what is still due of it."),
            {"coalesce(m.nama, '') as name, m.kode as code",
             "left join member m on m.id = i.member_id",
             {},
             {name(QT_TRANSLATE_NOOP("Reports", "Member"), QT_TRANSLATE_NOOP("Reports", "No member")), code}}),
        SalesSums::salesBy(
            "sales-by-agent", QT_TRANSLATE_NOOP("Reports", "Sales by agent"),
            QT_TRANSLATE_NOOP("Reports", "What the guests spent whom an agent brought. Take-away has none."),
            {"a.nama as name, a.kode as code",
             links + QString("join agent a on a.id = coalesce(dine.agent_id, fast.agent_id)"),
             {},
             {Column::text("name", QT_TRANSLATE_NOOP("Reports", "Agent")), code}})};
}
