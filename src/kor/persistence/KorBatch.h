#pragma once

#include <QString>
#include <QStringList>

#include <functional>
#include <vector>

class KorDataMapper;
class KorQuery;

/**
 * Collects writes of mappers and sends them to the server in one round trip, in order. Use a transaction for more than
 * one statement: after a database error the rest is not run, but a write that found no row stops nothing.
 *
 * The values are in the SQL text instead of bound. Otherwise each number of lines would need its own prepared
 * statement, and the statement cache would fill with statements that are rarely used again.
 */
class KorBatch
{
public:
    /** Reads the result of its statement; returns the error text, or an empty text. */
    using Reader = std::function<QString(KorQuery&)>;

    void add(const KorDataMapper* mapper, const QString& statement, const Reader& reader);

    /** False if any write failed. An empty batch sends nothing. */
    bool send();
    /** The error text of each failed write. */
    [[nodiscard]] const QStringList& failures() const { return m_failures; }
    /** The mapper of the first failed write; null if all succeeded. */
    [[nodiscard]] const KorDataMapper* failed() const { return m_failed; }

private:
    struct Step
    {
        const KorDataMapper* mapper;
        QString statement;
        Reader reader;
    };

    void note(const Step& step, const QString& words);

    std::vector<Step> m_steps;
    QStringList m_failures;
    const KorDataMapper* m_failed = nullptr;
};
