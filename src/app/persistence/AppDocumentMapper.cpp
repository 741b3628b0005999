#include "app/persistence/AppDocumentMapper.h"

#include "app/persistence/AppDocumentSave.h"
#include "kor/persistence/KorBatch.h"

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

KorEntity* AppDocumentMapper::findById(int id)
{
    KorEntity* document = AppDataMapper::findById(id);
    if (!document)
        return nullptr;
    readLines(document);
    for (KorDataMapper* lines : lineMappers()) {
        if (lines->hasError()) {
            setError(lines->takeError());
            return nullptr;
        }
    }
    return document;
}

void AppDocumentMapper::insertLinesWith(KorBatch& batch, const QList<KorEntity*>& lines, int documentId)
{
    QList<KorEntity*> ofOneKind;
    for (int i = 0; i < lines.size(); ++i) {
        mapperOf(lines[i])->attach(lines[i], documentId);
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
    AppDocumentSave save(QList<KorEntity*>{document} + lines, locksOfInsert(*document));
    if (!save.transaction().isOpen())
        setError(notOpened());
    if (save.transaction().isRefused())
        return fail(messages().insertHeader, " \r\n " + save.transaction().failure());

    QString reason;
    if (!beforeInsert(document) || !AppDataMapper::insert(document)) {
        reason = takeError();
        save.end(false, &reason);
        return fail(messages().insertHeader, reason.isEmpty() ? QString() : " \r\n " + reason);
    }

    KorBatch batch;
    insertLinesWith(batch, lines, document->getId());
    if (save.end(send(batch, &reason), &reason))
        return true;
    fail(messages().insertLines, reason);
    return resultOfFailedLines();
}

bool AppDocumentMapper::update(KorEntity* document)
{
    const QList<KorEntity*> lines = linesOf(document);
    AppDocumentSave save(lines);
    if (!save.transaction().isOpen())
        setError(notOpened());

    QString reason;
    if (!AppDataMapper::update(document)) {
        reason = takeError();
        save.end(false, &reason);
        return fail(messages().updateHeader, reason.isEmpty() ? QString() : " \r\n " + reason);
    }

    KorBatch batch;
    QList<KorEntity*> newLines;
    for (KorEntity* line : lines) {
        mapperOf(line)->attach(line, document->getId());
        if (line->isSaved())
            mapperOf(line)->updateWith(batch, line);
        else
            newLines.append(line);
    }
    insertLinesWith(batch, newLines, document->getId());
    for (KorEntity* line : removedLinesOf(document)) {
        // A line that was never saved has no row.
        if (line->isSaved())
            mapperOf(line)->removeWith(batch, line);
    }
    if (save.end(send(batch, &reason), &reason))
        return true;
    fail(messages().updateLines, reason);
    return resultOfFailedLines();
}

bool AppDocumentMapper::removeWithLines(KorEntity* document, const QList<KorEntity*>& lines)
{
    // Lock the document first, as a save does; otherwise the two could deadlock.
    AppDocumentSave save({}, {removalLockOf(document->getId())});
    if (!save.transaction().isOpen())
        setError(notOpened());
    if (save.transaction().isRefused())
        return fail(messages().removeHeader, " \r\n " + save.transaction().failure());

    QString reason;
    KorBatch batch;
    for (KorEntity* line : lines)
        mapperOf(line)->removeWith(batch, line);
    if (!send(batch, &reason)) {
        save.end(false, &reason);
        return fail(messages().removeLines, reason);
    }
    const bool removed = AppDataMapper::remove(document);
    if (!removed)
        reason = takeError();
    return save.end(removed, &reason) || fail(messages().removeHeader, " \r\n " + reason);
}
