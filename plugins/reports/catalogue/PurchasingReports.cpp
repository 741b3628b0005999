#include "reports/catalogue/Questions.h"
#include "reports/catalogue/ReportCatalogue.h"

ReportSubject ReportCatalogue::purchasing()
{
    return {"Pembelian", QT_TRANSLATE_NOOP("Reports", "Purchases Reports"), {}};
}
