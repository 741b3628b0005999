#pragma once

#include <QMap>
#include <QSet>
#include <QStringList>

class QSqlDatabase;

/** What the tills' journals say, compared with what the database holds. */
class TillBooks
{
public:
    /** Reads every journal of the folder. */
    explicit TillBooks(const QString& folder);

    /** The bills that the journals of a folder hold as acknowledged, counted quickly. */
    [[nodiscard]] static int acknowledged(const QString& folder);

    /** What does not hold, a line each; empty when every bill stands once and whole and no number is missing. */
    [[nodiscard]] QStringList faults(const QSqlDatabase& database);
    /** The figures as a table; those of the database only after faults(). */
    [[nodiscard]] QString summary() const;

private:
    struct Attempt
    {
        /** What the journal says last: try (the till died at it), ack, refused, unsure. */
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
