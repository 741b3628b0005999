#include "shell/database/converter/DocumentStep.h"

#include "pos/purchasing/document/PurchasingService.h"

DocumentStep::~DocumentStep() = default;

void DocumentStep::convert(const LegacyRow& row)
{
    const QString no = Conversion::fitted(numberIn(row), *m_service, "No");
    if (no.isEmpty()) {
        m_run.skip(tr("row %1").arg(m_run.rows().read()), tr("it has no number"));
        return;
    }
    if (const KorEntity* known = stored(no)) {
        m_latest = qMax(m_latest, known->getId());
        m_run.skip(no, tr("the number exists already"));
        return;
    }
    if (no != numberIn(row))
        m_run.mend(tr("too long for \"%1\" and cut, in full \"%2\"").arg("no", numberIn(row)));
    convertNew(row, no);
}

void DocumentStep::end()
{
    if (!m_run.isResumed() || m_latest == KorNoValue)
        return;
    EntityPool pool;
    const EntityPoolScope scope(pool);
    KorEntity* document = m_service->find(m_latest);
    if (!document || !m_service->update(document))
        Conversion::log(m_service->takeErrors().simplified());
}

bool DocumentStep::takesLine(const LegacyRow& line, const QString& key)
{
    m_run.lines().countRead();
    if (!line.flag("cekhapus"))
        return true;
    m_run.lines().skip(key, tr("deleted in the former system"));
    return false;
}

QDate DocumentStep::dateOr(const QDate& date, const QDate& other)
{
    if (date.isValid())
        return date;
    m_run.mend(tr("without a date, %1 took its place").arg(other.toString(Qt::ISODate)));
    return other;
}

bool DocumentStep::save(KorEntity& document, const QString& no, int lineCount)
{
    // An incomplete document must not look complete.
    if (m_run.source().linesFailed()) {
        m_run.skip(no, tr("its lines could not be read"));
        return false;
    }
    const bool done = m_run.save(*m_service, document, no);
    for (int i = 0; i < lineCount; ++i) {
        if (done)
            m_run.lines().countWritten();
        else
            m_run.lines().skip(no, tr("its document was not written"));
    }
    return done;
}
