#include "reports/catalogue/Questions.h"
#include "reports/catalogue/ReportCatalogue.h"

ReportSubject ReportCatalogue::stock() { return {"Persediaan", QT_TRANSLATE_NOOP("Reports", "Inventory Reports"), {}}; }
