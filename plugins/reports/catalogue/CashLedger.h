#pragma once

#include "reports/engine/Report.h"

/** SQL of the general journal, with the same documents, accounts and amounts as its page. */
namespace CashLedger
{
/**
 * Selects all movements whose day meets the condition (such as "<= :to"), which is appended to the day. Fields: account
 * (its code), accountname, day, no, kind, note, debit, credit, id, username. ":account" selects one account.
 */
[[nodiscard]] QString movements(const QString& condition);
/** Sums of these movements per account: account, accountname, movements, debit, credit. */
[[nodiscard]] QString sums(const QString& condition);
/** The texts of the kinds of movements. */
[[nodiscard]] QList<QPair<QVariant, const char*>> kindWords();
} // namespace CashLedger
