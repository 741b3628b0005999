#include "kor/system/KorFailure.h"

#include <QMutex>
#include <QRegularExpression>
#include <QStringList>

#include <algorithm>

namespace
{
constexpr char failedTransaction[] = "25P02";
constexpr char waitedInVain[] = "55P03";

struct Remembered
{
    QString told;
    KorFailure failure;
};

/** The latest failures, newest first; enough for a form that saves many lines and then shows all failures. */
class Memory
{
public:
    void add(const QString& told, const KorFailure& failure)
    {
        const QMutexLocker lock(&m_mutex);
        const QString whole = told.trimmed();
        m_failures.erase(std::remove_if(m_failures.begin(), m_failures.end(),
                                        [&whole](const Remembered& one) { return one.told == whole; }),
                         m_failures.end());
        m_failures.prepend({whole, failure});
        while (m_failures.size() > most)
            m_failures.removeLast();
    }
    [[nodiscard]] QList<Remembered> all() const
    {
        const QMutexLocker lock(&m_mutex);
        return m_failures;
    }

private:
    static constexpr int most = 100;
    mutable QMutex m_mutex;
    QList<Remembered> m_failures;
};

Memory& memory()
{
    static Memory kept;
    return kept;
}

QString sentenceOf(const QString& state, const QString& statement)
{
    const bool deletes = statement.startsWith("delete", Qt::CaseInsensitive);
    if (state == QLatin1String(failedTransaction))
        return {};
    if (state == "23505")
        return KorFailure::tr("This code, name or number is already in use.");
    if (state == "23503")
        return deletes ? KorFailure::tr("This is still in use, so it can not be deleted.")
                       : KorFailure::tr("Something that this refers to has been deleted, or is still in use.");
    if (state == "23502")
        return KorFailure::tr("A value is missing.");
    if (state == "22001")
        return KorFailure::tr("A text is longer than there is room for.");
    if (state == "22003")
        return KorFailure::tr("A number is larger than there is room for.");
    if (state == "22021" || state == "22P05")
        return KorFailure::tr("A text holds a character that can not be stored.");
    if (state == "53100")
        return KorFailure::tr("The disk of the database server is full. Nothing can be saved until there is room.");
    if (state == "25006")
        return KorFailure::tr("The database server is read-only at the moment. Nothing can be saved.");
    if (state == "40001" || state == "40P01" || state == waitedInVain)
        return KorFailure::tr("Another workstation was working on the same records at this moment.");
    if (state == "42501")
        return KorFailure::tr("The program's user of the database may not do this.");
    if (state == "42P01" || state == "42703")
        return KorFailure::tr("The database lacks something that this program needs. It may have to be updated.");
    return KorFailure::tr("The database could not do this.");
}

/** Removes the line of the statement that PostgreSQL quotes, and the position mark below it. */
QString withoutQuotation(const QString& words, QStringList* quoted)
{
    static const QRegularExpression quotation("^LINE \\d+: .*\n?[ \t]*\\^?[ \t]*(?:\n|$)",
                                              QRegularExpression::MultilineOption);
    QString rest = words;
    const QString quotedLines = quotation.match(words).captured();
    if (!quotedLines.isEmpty())
        quoted->append(quotedLines.trimmed());
    return rest.remove(quotation).trimmed();
}
} // namespace

KorFailure KorFailure::of(Connection connection, const QString& state, const QString& words, const QString& statement,
                          const QString& holders)
{
    switch (connection) {
    case LostWhileSaving:
        return {tr("The connection to the database was lost at the very moment of saving, so it is not certain "
                   "whether it was saved."),
                tr("Please look for it before you save it again."), words, statement};
    case Lost:
        return {tr("The connection to the database is lost."),
                tr("Please try again in a moment; if that does not help, see whether the database server is running."),
                words, statement};
    default:
        if (state == QLatin1String(waitedInVain) && !holders.isEmpty())
            return {tr("Somebody else is working on the same records, and did not let go of them: %1.").arg(holders),
                    tr("Please try again in a moment."), words, statement};
        return {sentenceOf(state, statement), {}, words, statement};
    }
}

QString KorFailure::told(const QString& separator) const
{
    QString text = advice.isEmpty() ? words : sentence + ' ' + advice + "\r\n\r\n" + words;
    if (!statement.isEmpty())
        text += separator + statement;
    memory().add(text, *this);
    return text;
}

KorToldFailure KorToldFailure::in(const QString& text)
{
    const QList<Remembered> remembered = memory().all();
    KorToldFailure told;
    QStringList sentences;
    QStringList words;
    QStringList details;
    const auto addOnce = [](QStringList* texts, const QString& one) {
        if (!one.trimmed().isEmpty() && !texts->contains(one.trimmed()))
            texts->append(one.trimmed());
    };
    int position = 0;
    while (true) {
        const Remembered* next = nullptr;
        int at = -1;
        for (const Remembered& one : remembered) {
            const int found = one.told.isEmpty() ? -1 : text.indexOf(one.told, position);
            if (found >= 0 && (!next || found < at || (found == at && one.told.size() > next->told.size()))) {
                next = &one;
                at = found;
            }
        }
        if (!next)
            break;
        addOnce(&words, text.mid(position, at - position));
        addOnce(&details, next->failure.statement);
        if (!next->failure.isConsequence()) {
            addOnce(&words, withoutQuotation(next->failure.words, &details));
            addOnce(&sentences, next->failure.sentence);
            told.advice = next->failure.advice;
        }
        position = at + next->told.size();
    }
    addOnce(&words, text.mid(position));
    told.sentence = sentences.join("\r\n");
    told.words = sentences.isEmpty() ? text : words.join("\r\n");
    told.details = details.join("\r\n\r\n");
    return told;
}

QString KorToldFailure::text() const
{
    if (!isKnown())
        return words;
    return sentence + (advice.isEmpty() ? QString() : ' ' + advice) + "\r\n\r\n" + words;
}
