#pragma once

#include <QStringList>

/**
 * Makes sure that the backup is of the program's own database, and that nothing changed since the backup began.
 * Otherwise clearing would lose data.
 */
class ClearingGuard final
{
public:
    ClearingGuard() = default;
    ~ClearingGuard();
    Q_DISABLE_COPY(ClearingGuard)

    /**
     * Takes an advisory lock in the program's database and stores a transaction snapshot. False without a connection.
     */
    [[nodiscard]] bool begin();
    /** A query for the backup's connection: it returns "f" only in the program's own database. */
    [[nodiscard]] QString question() const;
    /** Returns the tables with changes since begin(); false if this could not be read. */
    [[nodiscard]] bool findChanges(QStringList* tables) const;

private:
    qint64 m_mark = 0;
    QString m_snapshot;
};
