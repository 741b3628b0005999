#pragma once

#include <QByteArray>
#include <QString>

/**
 * Compares bytes with the golden file tests/golden/files/NAME, control bytes made visible. Returns an empty text when
 * they are equal, else a readable account of the first difference. With ZAVEL_UPDATE_GOLDEN set it writes the file.
 */
[[nodiscard]] QString goldenDifference(const QString& name, const QByteArray& actual);
/** Every byte outside printable ASCII but the line feed as <1B>. UTF-8 text stays as it is where it is valid. */
[[nodiscard]] QByteArray visible(const QByteArray& bytes);
