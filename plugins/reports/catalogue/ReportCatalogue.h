#pragma once

#include "reports/engine/Report.h"

/** All reports by subject. To add a report, add its description to the list of its subject. */
namespace ReportCatalogue
{
[[nodiscard]] QList<ReportSubject> subjects();

[[nodiscard]] ReportSubject masterData();
[[nodiscard]] ReportSubject stock();
[[nodiscard]] ReportSubject purchasing();
[[nodiscard]] ReportSubject sales();
[[nodiscard]] ReportSubject cash();
} // namespace ReportCatalogue
