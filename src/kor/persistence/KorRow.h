#pragma once

#include "kor/entity/KorStamp.h"

#include <QString>

struct pg_result;

/**
 * The current row of a result, read from libpq's memory without a variant for each value. Valid until the query moves
 * on. A column below 0 counts as NULL.
 */
class KorRow
{
public:
    KorRow(const pg_result* result, int row) : m_result(result), m_row(row) {}

    [[nodiscard]] bool isNull(int column) const;
    /** The value as the server wrote it; empty for NULL. Owned by the result. */
    [[nodiscard]] const char* text(int column) const;
    /** 0 for NULL, as for the next ones. */
    [[nodiscard]] int toInt(int column) const;
    [[nodiscard]] double toDouble(int column) const;
    [[nodiscard]] bool toBool(int column) const { return *text(column) == 't'; }
    /** A null text for NULL. */
    [[nodiscard]] QString toString(int column) const;
    /** Invalid for NULL. */
    [[nodiscard]] QDate toDate(int column) const;
    [[nodiscard]] KorStamp toStamp(int column) const;

private:
    const pg_result* m_result;
    int m_row;
};
