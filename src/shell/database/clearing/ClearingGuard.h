#pragma once

#include <QStringList>

/**
 * Sees to it that what is cleared is what was backed up: the database that the program works with, as it was when the
 * backup began.
 */
class ClearingGuard final
{
public:
    ClearingGuard() = default;
    ~ClearingGuard();
    Q_DISABLE_COPY(ClearingGuard)

    /** Puts a mark on the program's database, and remembers what it holds. False without a connection. */
    [[nodiscard]] bool begin();
    /** Asked over the connection of the backup, it is answered by "f" in the program's own database alone. */
    [[nodiscard]] QString question() const;
    /** The tables that somebody has written to since; false when that could not be found out. */
    [[nodiscard]] bool findChanges(QStringList* tables) const;

private:
    qint64 m_mark = 0;
    QString m_snapshot;
};
