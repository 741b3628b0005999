#pragma once

#include "reports/engine/Report.h"

/** What the sales reports share: parameters, sums, and their columns. */
namespace SalesSums
{
/** The period and the filters: type of sale and cashier. */
[[nodiscard]] QList<ReportParameter> questions();
/** The condition on the invoices "i" for these parameters. */
extern const char* const scope;
/** The sums over invoices "i": sales, subtotal, discount, tax, service, total, cash, credit, due. */
extern const char* const sums;
/** The texts of the types of sale. */
[[nodiscard]] QList<QPair<QVariant, const char*>> typeWords();
[[nodiscard]] ReportColumn typeColumn();
/** The status of an invoice as text. */
[[nodiscard]] ReportColumn statusColumn();
/** Columns for these sums, the share and the average sale, in the usual order. */
[[nodiscard]] QList<ReportColumn> columns(const QStringList& fields);

/** The key by which sales are grouped. */
struct Key
{
    /** SQL: the selected columns, the joins they need, and a further condition that begins with "and". */
    QString select;
    QString joins = QString();
    QString condition = QString();
    /** The columns of the selected fields; the first one labels the chart. */
    QList<ReportColumn> columns;
};
/** One row per key value, highest sales first, with its share of all sales. */
[[nodiscard]] Report salesBy(const QString& id, const char* title, const char* about, const Key& key);
} // namespace SalesSums
