#pragma once

#include <QByteArray>
#include <QString>

/**
 * Compares bytes with the golden file tests/golden/files/NAME; control bytes are written as text. Returns an empty text
 * if they are equal, otherwise a description of the first difference. With ZAVEL_UPDATE_GOLDEN set it writes the file
 * instead.
 */
[[nodiscard]] QString goldenDifference(const QString& name, const QByteArray& actual);
/** Writes every byte outside printable ASCII, except the line feed, as <1B>. Valid UTF-8 text is not changed. */
[[nodiscard]] QByteArray visible(const QByteArray& bytes);
