#pragma once

#include <QStringList>

/**
 * The SQL that makes a sample restaurant's trade, a file for each kind of document. Each function returns statements in
 * the order in which they run. They are set-wise, and chance is a hash of a row's number, so that the same seed gives
 * the same rows.
 *
 * Words in braces stand for values that SampleTrade fills in: {seed}, {currency}, {unit} (what the cheapest things
 * cost), {factor} (minor units of the currency), {perday}, {begin}, {today} and {samplekey}; in the statements of a
 * month also {month} (its first day), and {from} and {to}, the days of it that are filled.
 */
namespace Sample
{
// Once, at the beginning.
/** Functions and tables of the session that the other statements use. */
[[nodiscard]] QStringList tools();
/** The marks of a sample, accounts, people, tables and goods; what is there under the same code stays as it is. */
[[nodiscard]] QStringList catalogue();
/** Lists of the catalogue's rows, from which the documents choose. */
[[nodiscard]] QStringList choices();

// Once a month, in this order.
/** Orders at tables, over the counter and to take away, with their bills. */
[[nodiscard]] QStringList sales();
/** Orders to suppliers, what they delivered, what went back, and what was paid later. */
[[nodiscard]] QStringList purchases();
[[nodiscard]] QStringList returns();
[[nodiscard]] QStringList supplierPayments();
/** What is on hand at the end of the month. */
[[nodiscard]] QStringList stock();
/** The count at the end of a month that is over. */
[[nodiscard]] QStringList stockCount();
/** Members' later payments and agents' commissions. */
[[nodiscard]] QStringList memberPayments();
[[nodiscard]] QStringList commissions();
/** Entries by hand and transfers. */
[[nodiscard]] QStringList cash();

// Once, at the end.
/** The guests and the suppliers of today. */
[[nodiscard]] QStringList openOrders();

/**
 * Moves a running number on by as many as the rows of the table, which have the columns "made" and "maker"; the
 * condition chooses among them.
 */
[[nodiscard]] QString drawn(const QString& key, const QString& table, const QString& condition = "true");
/** Lets the session's numbers go on from there, for a further draw in the same month. */
[[nodiscard]] QString freshNumbers();
} // namespace Sample
