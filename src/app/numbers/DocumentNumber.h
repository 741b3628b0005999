#pragma once

#include <QString>

class DataMapperKey;

/**
 * The SQL of the lock that makes documents of one kind wait for each other until the earlier one is committed or rolled
 * back. Pass it to the document's transaction as the last lock.
 */
[[nodiscard]] QString numberLock(const QString& keyName);

/**
 * Draws the next number of a document, inside its transaction, so that a rollback also returns the number. On failure
 * the result is null and "error" has the reason: do not save the document. Without numberLock() it fails if another
 * workstation draws at the same time.
 */
[[nodiscard]] QString drawNumber(DataMapperKey* keys, const QString& keyName, QString* error);
