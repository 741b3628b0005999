#pragma once

#include <QMap>
#include <QSet>
#include <QStringList>

class QSqlDatabase;

/** Compares the tills' journals with the database. */
class TillBooks
{
public:
    /** Reads every journal of the folder. */
    explicit TillBooks(const QString& folder);

    /** The number of confirmed bills in the journals of a folder, counted quickly. */
    [[nodiscard]] static int acknowledged(const QString& folder);

    /** One line per fault; empty if every bill exists once and completely and no number is missing. */
    [[nodiscard]] QStringList faults(const QSqlDatabase& database);
    /** The counts as a table; those of the database only after faults(). */
    [[nodiscard]] QString summary() const;

private:
    struct Attempt
    {
        /** The last entry of the journal: try (the till died meanwhile), ack, refused, unsure. */
        QString end;
        QString number;
    };

    void read(const QString& line);
    void compare(const QString& reference, const QString& number, const QList<int>& figures);
    void findMissing();
    void checkNumbers(const QSqlDatabase& database);

    QMap<QString, Attempt> m_attempts;
    QMap<QString, int> m_reasons;
    QStringList m_faults;
    QSet<QString> m_standing;
    int m_lateStatuses = 0;
};
