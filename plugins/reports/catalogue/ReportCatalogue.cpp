#include "reports/catalogue/ReportCatalogue.h"

QList<ReportSubject> ReportCatalogue::subjects() { return {masterData(), stock(), purchasing(), sales(), cash()}; }
