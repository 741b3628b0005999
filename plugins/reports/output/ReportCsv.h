#pragma once

class QIODevice;
class ReportTable;

/**
 * Writes the rows as comma-separated values in UTF-8 that a spreadsheet opens as numbers and dates: a point before
 * the decimals, dates as 2026-01-31, no grouping, and no sums, which the spreadsheet makes itself.
 */
[[nodiscard]] bool writeReportCsv(const ReportTable& table, QIODevice& device);
