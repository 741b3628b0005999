#include "reports/catalogue/Questions.h"

namespace Questions
{
ReportParameter saleType()
{
    return ReportParameter::choice("type", QT_TRANSLATE_NOOP("Reports", "Type of sale:"),
                                   {{"TRD", QT_TRANSLATE_NOOP("Reports", "Dine in")},
                                    {"TRF", QT_TRANSLATE_NOOP("Reports", "Fast food")},
                                    {"TRP", QT_TRANSLATE_NOOP("Reports", "Take away")}});
}

ReportParameter cashier()
{
    return ReportParameter::row("cashier", QT_TRANSLATE_NOOP("Reports", "Cashier:"),
                                "select id, username from users order by lower(username)");
}

ReportParameter itemType()
{
    return ReportParameter::row("itemtype", QT_TRANSLATE_NOOP("Reports", "Item type:"),
                                "select id, nama from jenis_item order by lower(nama)");
}

ReportParameter item() { return ReportParameter::contains("item", QT_TRANSLATE_NOOP("Reports", "Item:")); }

ReportParameter member()
{
    return ReportParameter::row("member", QT_TRANSLATE_NOOP("Reports", "Member:"),
                                "select id, nama from member order by lower(nama)");
}

ReportParameter supplier()
{
    return ReportParameter::row("supplier", QT_TRANSLATE_NOOP("Reports", "Supplier:"),
                                "select id, nama from supplier order by lower(nama)");
}

ReportParameter agent()
{
    return ReportParameter::row("agent", QT_TRANSLATE_NOOP("Reports", "Agent:"),
                                "select id, nama from agent order by lower(nama)");
}

ReportParameter waitress()
{
    return ReportParameter::row("waitress", QT_TRANSLATE_NOOP("Reports", "Waitress:"),
                                "select id, nama from employee order by lower(nama)");
}

ReportParameter account()
{
    return ReportParameter::row("account", QT_TRANSLATE_NOOP("Reports", "Account:"),
                                "select kode, kode || ' ' || nama from bank order by kode");
}
} // namespace Questions
