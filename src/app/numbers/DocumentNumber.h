#pragma once

#include <QString>

class DataMapperKey;

/**
 * The next number of a document, drawn inside the document's transaction so that a rollback gives it back. A null
 * text means that none could be drawn; the document must not be saved then, and the error says why.
 */
[[nodiscard]] QString drawNumber(DataMapperKey* keys, const QString& keyName, QString* error);
