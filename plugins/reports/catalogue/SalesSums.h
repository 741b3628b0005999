#pragma once

#include "reports/engine/Report.h"

/** What the reports of sales have in common: their questions, what they add up, and the columns that show it. */
namespace SalesSums
{
/** The period, and what narrows the sales: their type and the cashier. */
[[nodiscard]] QList<ReportParameter> questions();
/** The condition on the invoices "i" that follows from the questions. */
extern const char* const scope;
/** The sums over invoices "i": sales, subtotal, discount, tax, service, total, cash, credit, due. */
extern const char* const sums;
/** How the types of sale read. */
[[nodiscard]] QList<QPair<QVariant, const char*>> typeWords();
[[nodiscard]] ReportColumn typeColumn();
/** How an invoice's status reads. */
[[nodiscard]] ReportColumn statusColumn();
/** The columns of these sums, of the share and of the average sale, in the order of an invoice. */
[[nodiscard]] QList<ReportColumn> columns(const QStringList& fields);

/** What the sales are told by. */
struct Key
{
    /** Statement text: what is selected, the joins it needs, and a further condition that begins with "and". */
    QString select;
    QString joins = QString();
    QString condition = QString();
    /** The columns that are selected, the first one for the chart. */
    QList<ReportColumn> columns;
};
/** One row for each of what the sales are told by, the best first, with its share of all. */
[[nodiscard]] Report salesBy(const QString& id, const char* title, const char* about, const Key& key);
} // namespace SalesSums
