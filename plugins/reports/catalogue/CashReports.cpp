#include "reports/catalogue/Questions.h"
#include "reports/catalogue/ReportCatalogue.h"

ReportSubject ReportCatalogue::cash() { return {"Kas", QT_TRANSLATE_NOOP("Reports", "Cash Flow Reports"), {}}; }
