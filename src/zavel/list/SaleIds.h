#pragma once

#include <QString>

/**
 * Queries for the ids of invoices by what their links say, each link table by its own index. The lists of sales start
 * with them: "this agent on one link or the other" behind the joins would read all years.
 */
namespace SaleIds
{
/** Not fully paid. */
[[nodiscard]] QString open();
/** The member of the order, or of the sale over the counter or to take away. */
[[nodiscard]] QString ofMember(int memberId);
[[nodiscard]] QString ofWaitress(int employeeId);
[[nodiscard]] QString ofAgent(int agentId);
[[nodiscard]] QString ofAllAgents();
/** Those of the ids whose commission is not paid. */
[[nodiscard]] QString pending(const QString& ids);
} // namespace SaleIds
