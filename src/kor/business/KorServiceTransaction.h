#pragma once

#include <QString>
#include <QStringList>

#include <functional>

class KorBusinessLogic;

/**
 * Does a service's writes as one, all or none. The writes keep their own failures; a transaction that cannot begin or
 * end is kept in the service under the operation's name as well, in the family's words where it has its own. The locks
 * are those of KorTransaction.
 */
[[nodiscard]] bool inOneTransaction(KorBusinessLogic& service, const QString& operation,
                                    const std::function<bool()>& writes, const QString& notBegun = QString(),
                                    const QStringList& locks = {});
