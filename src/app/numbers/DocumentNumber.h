#pragma once

#include <QString>

class DataMapperKey;

/**
 * The statement with which documents of one kind wait for each other, each until the one before it is saved or taken
 * back. It goes with the beginning of the document's transaction, behind the locks of other records.
 */
[[nodiscard]] QString numberLock(const QString& keyName);

/**
 * The next number of a document, drawn inside the document's transaction so that a rollback gives it back. A null
 * text means that none could be drawn; the document must not be saved then, and the error says why. Without
 * numberLock() before it, a draw fails when another workstation draws at the same time.
 */
[[nodiscard]] QString drawNumber(DataMapperKey* keys, const QString& keyName, QString* error);
