#include "app/persistence/AppDocumentMapper.h"

#include "app/persistence/IdKeeper.h"
#include "kor/persistence/KorBatch.h"
#include "kor/persistence/KorDatabase.h"

bool AppDocumentMapper::createTable(int mode)
{
    if (!AppDataMapper::createTable(mode))
        return false;
    for (KorDataMapper* lines : lineMappers()) {
        if (!lines->createTable(mode)) {
            setError(lines->takeError());
            return false;
        }
    }
    return true;
}

void AppDocumentMapper::noteTransaction(bool open)
{
    if (!open)
        setError(tr("error: transaction failed"));
}

bool AppDocumentMapper::fail(const QString& message, const QString& collected)
{
    setError(message + collected);
    return false;
}

bool AppDocumentMapper::commit(KorTransaction& transaction, QString* reason)
{
    if (transaction.commit())
        return true;
    *reason = transaction.failure();
    return false;
}

void AppDocumentMapper::insertLinesWith(KorBatch& batch, const QList<KorEntity*>& lines, int documentId)
{
    QList<KorEntity*> ofOneKind;
    for (int i = 0; i < lines.size(); ++i) {
        attachLine(lines[i], documentId);
        ofOneKind.append(lines[i]);
        if (i + 1 == lines.size() || mapperOf(lines[i + 1]) != mapperOf(lines[i])) {
            mapperOf(lines[i])->insertWith(batch, ofOneKind);
            ofOneKind.clear();
        }
    }
}

bool AppDocumentMapper::send(KorBatch& batch, QString* reason)
{
    if (batch.send())
        return true;
    for (const QString& words : batch.failures())
        *reason += " \r\n " + words;
    return false;
}

bool AppDocumentMapper::insert(KorEntity* document)
{
    const QList<KorEntity*> lines = linesOf(document);
    const IdKeeper ids(QList<KorEntity*>{document} + lines);
    KorTransaction transaction(locksOfInsert(*document));
    noteTransaction(transaction.isOpen());
    if (transaction.isRefused())
        return fail(messages().insertHeader, " \r\n " + transaction.failure());

    if (!beforeInsert(document) || !AppDataMapper::insert(document)) {
        const QString reason = takeError();
        transaction.rollback();
        ids.restore();
        return fail(messages().insertHeader, reason.isEmpty() ? QString() : " \r\n " + reason);
    }

    QString collected;
    KorBatch batch;
    insertLinesWith(batch, lines, document->getId());
    if (send(batch, &collected) && commit(transaction, &collected))
        return true;
    transaction.rollback();
    ids.restore();
    fail(messages().insertLines, collected);
    return resultOfFailedLines();
}

bool AppDocumentMapper::update(KorEntity* document)
{
    const QList<KorEntity*> lines = linesOf(document);
    const IdKeeper ids(lines);
    KorTransaction transaction;
    noteTransaction(transaction.isOpen());

    if (!AppDataMapper::update(document)) {
        const QString reason = takeError();
        transaction.rollback();
        return fail(messages().updateHeader, reason.isEmpty() ? QString() : " \r\n " + reason);
    }

    QString collected;
    KorBatch batch;
    QList<KorEntity*> newLines;
    for (KorEntity* line : lines) {
        attachLine(line, document->getId());
        if (line->isSaved())
            mapperOf(line)->updateWith(batch, line);
        else
            newLines.append(line);
    }
    insertLinesWith(batch, newLines, document->getId());
    for (KorEntity* line : removedLinesOf(document)) {
        // A line that was never saved has nothing to remove.
        if (line->isSaved())
            mapperOf(line)->removeWith(batch, line);
    }
    if (send(batch, &collected) && commit(transaction, &collected))
        return true;
    transaction.rollback();
    ids.restore();
    fail(messages().updateLines, collected);
    return resultOfFailedLines();
}

bool AppDocumentMapper::removeWithLines(KorEntity* document, const QList<KorEntity*>& lines)
{
    // The document first, as a save of it does: the other way round the two would wait for each other.
    KorTransaction transaction({removalLockOf(document->getId())});
    noteTransaction(transaction.isOpen());
    if (transaction.isRefused())
        return fail(messages().removeHeader, " \r\n " + transaction.failure());

    QString collected;
    KorBatch batch;
    for (KorEntity* line : lines)
        mapperOf(line)->removeWith(batch, line);
    if (!send(batch, &collected)) {
        transaction.rollback();
        return fail(messages().removeLines, collected);
    }
    if (!AppDataMapper::remove(document)) {
        const QString reason = takeError();
        transaction.rollback();
        return fail(messages().removeHeader, " \r\n " + reason);
    }
    QString reason;
    return commit(transaction, &reason) || fail(messages().removeHeader, " \r\n " + reason);
}
