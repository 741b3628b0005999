#pragma once

#include <QString>
#include <QStringList>

#include <functional>
#include <vector>

class KorDataMapper;
class KorQuery;

/**
 * Writes that go to the server in one trip, in the order in which mappers put them in. More than one statement belongs
 * into a transaction: when the database refuses one the rest is not run, and a write that found no row stops nothing.
 *
 * The values stand in the text instead of being bound. A text of its own for each number of lines would fill the
 * statements kept prepared with ones that are hardly used twice.
 */
class KorBatch
{
public:
    /** Reads the result of its statement; the words of a write that did not happen, or nothing. */
    using Reader = std::function<QString(KorQuery&)>;

    void add(const KorDataMapper* mapper, const QString& statement, const Reader& reader);

    /** False when one of the writes did not happen. An empty batch costs nothing. */
    bool send();
    /** The words of each write that did not happen. */
    [[nodiscard]] const QStringList& failures() const { return m_failures; }
    /** Whose write was the first that did not happen; null where all were done. */
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
