#include "reports/catalogue/Columns.h"

using Column = ReportColumn;

namespace Columns
{
ReportColumn code() { return Column::text("code", QT_TRANSLATE_NOOP("Reports", "Code")); }
ReportColumn item() { return Column::text("name", QT_TRANSLATE_NOOP("Reports", "Item")); }
ReportColumn itemType() { return Column::text("itemtype", QT_TRANSLATE_NOOP("Reports", "Item type")); }
ReportColumn unit() { return Column::text("unit", QT_TRANSLATE_NOOP("Reports", "Unit")); }
ReportColumn supplier() { return Column::text("supplier", QT_TRANSLATE_NOOP("Reports", "Supplier")); }
ReportColumn number() { return Column::text("no", QT_TRANSLATE_NOOP("Reports", "No.")); }
ReportColumn day() { return Column::date("day", QT_TRANSLATE_NOOP("Reports", "Date")); }
ReportColumn note() { return Column::text("note", QT_TRANSLATE_NOOP("Reports", "Notes")); }
ReportColumn user() { return Column::text("username", QT_TRANSLATE_NOOP("Reports", "User")); }

ReportColumn paidStatus()
{
    return Column::text("status", QT_TRANSLATE_NOOP("Reports", "Status"))
        .words({{1, QT_TRANSLATE_NOOP("Reports", "Fully paid")},
                {2, QT_TRANSLATE_NOOP("Reports", "Unpaid")},
                {3, QT_TRANSLATE_NOOP("Reports", "Partially paid")}});
}
} // namespace Columns

namespace Asked
{
const char* const item = R"(
        and (:itemtype::bigint is null or item.jenis = :itemtype::bigint)
        and (:item::text is null or lower(item.kode) like :item or lower(item.nama) like :item))";
const char* const supplier = " and (:supplier::bigint is null or supplier.id = :supplier::bigint)";
} // namespace Asked
