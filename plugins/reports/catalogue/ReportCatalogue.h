#pragma once

#include "reports/engine/Report.h"

/** All reports there are, by subject. A new report is one more description in its subject's list. */
namespace ReportCatalogue
{
[[nodiscard]] QList<ReportSubject> subjects();

[[nodiscard]] ReportSubject masterData();
[[nodiscard]] ReportSubject stock();
[[nodiscard]] ReportSubject purchasing();
[[nodiscard]] ReportSubject sales();
[[nodiscard]] ReportSubject cash();
} // namespace ReportCatalogue
