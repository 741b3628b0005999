#pragma once

class QIODevice;
class ReportTable;

/**
 * Writes the rows as CSV in UTF-8, so that spreadsheets read numbers and dates: decimal point, dates as 2026-01-31, no
 * thousands separators, no sums. False if writing failed.
 */
[[nodiscard]] bool writeReportCsv(const ReportTable& table, QIODevice& device);
