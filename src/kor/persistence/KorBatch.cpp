#include "kor/persistence/KorBatch.h"

#include "kor/persistence/KorQuery.h"

#include <QDebug>

void KorBatch::add(const KorDataMapper* mapper, const QString& statement, const Reader& reader)
{
    m_steps.push_back({mapper, statement, reader});
}

bool KorBatch::send()
{
    if (m_steps.empty())
        return true;
    QStringList statements;
    for (const Step& step : m_steps)
        statements.append(step.statement);
    KorQuery query;
    bool hasResult = query.send(statements.join("; "));
    for (const Step& step : m_steps) {
        if (!hasResult) {
            note(step, query.failureOf(step.statement));
            break;
        }
        const QString words = step.reader(query);
        if (!words.isEmpty())
            note(step, words);
        hasResult = query.nextResult();
    }
    return m_failures.isEmpty();
}

void KorBatch::note(const Step& step, const QString& words)
{
    qDebug().noquote() << words;
    m_failures.append(words);
    if (!m_failed)
        m_failed = step.mapper;
}
