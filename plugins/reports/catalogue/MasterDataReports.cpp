#include "reports/catalogue/Questions.h"
#include "reports/catalogue/ReportCatalogue.h"

ReportSubject ReportCatalogue::masterData()
{
    return {"Master Data", QT_TRANSLATE_NOOP("Reports", "Master Data Reports"), {}};
}
