#include "reports/catalogue/ReportCatalogue.h"
#include "reports/catalogue/SalesLists.h"

ReportSubject ReportCatalogue::sales()
{
    return {"Penjualan", QT_TRANSLATE_NOOP("Reports", "Sales Reports"),
            SalesLists::byTime() + SalesLists::byPartner() + SalesLists::byItem() + SalesLists::ofInvoices() +
                SalesLists::ofAgents() + QList<Report>{SalesLists::exceptions()}};
}
