#pragma once

#include "reports/engine/Report.h"

/** The general journal as statements: the same documents, accounts and amounts as its screen shows. */
namespace CashLedger
{
/**
 * A select of every movement whose day fulfils the condition ("<= :to"), which stands behind the day: account (its
 * code), accountname, day, no, kind, note, debit, credit, id, username. ":account" narrows it.
 */
[[nodiscard]] QString movements(const QString& condition);
/** Of each account, what those movements come to: account, accountname, movements, debit, credit. */
[[nodiscard]] QString sums(const QString& condition);
/** How the kinds of movements read. */
[[nodiscard]] QList<QPair<QVariant, const char*>> kindWords();
} // namespace CashLedger
