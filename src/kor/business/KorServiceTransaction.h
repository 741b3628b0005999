#pragma once

#include <QString>
#include <QStringList>

#include <functional>

class KorBusinessLogic;

/**
 * Runs the writes of a service in one transaction: all or none. Failed writes keep their own errors. A failed begin or
 * commit is also kept in the service under the operation's name, with the given words if not empty. For the locks see
 * KorTransaction.
 */
[[nodiscard]] bool inOneTransaction(KorBusinessLogic& service, const QString& operation,
                                    const std::function<bool()>& writes, const QString& notBegun = QString(),
                                    const QStringList& locks = {});
