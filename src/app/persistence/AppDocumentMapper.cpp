#include "app/persistence/AppDocumentMapper.h"

#include "app/persistence/IdKeeper.h"
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

bool AppDocumentMapper::insert(KorEntity* document)
{
    const QList<KorEntity*> lines = linesOf(document);
    const IdKeeper ids(QList<KorEntity*>{document} + lines);
    KorTransaction transaction;
    noteTransaction(transaction.isOpen());

    if (!beforeInsert(document) || !AppDataMapper::insert(document)) {
        const QString reason = takeError();
        transaction.rollback();
        ids.restore();
        return fail(messages().insertHeader, reason.isEmpty() ? QString() : " \r\n " + reason);
    }

    QString collected;
    for (KorEntity* line : lines) {
        // What a lost connection says of the first line holds for all others.
        if (!transaction.isConnected())
            break;
        attachLine(line, document->getId());
        if (!mapperOf(line)->insert(line))
            collected += " \r\n " + mapperOf(line)->takeError();
    }
    if (collected.isEmpty() && commit(transaction, &collected))
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
    for (KorEntity* line : lines) {
        if (!transaction.isConnected())
            break;
        attachLine(line, document->getId());
        KorDataMapper* mapper = mapperOf(line);
        const bool done = line->isSaved() ? mapper->update(line) : mapper->insert(line);
        if (!done)
            collected += " \r\n " + mapper->takeError();
    }
    for (KorEntity* line : removedLinesOf(document)) {
        // A line that was never saved has nothing to remove.
        if (transaction.isConnected() && line->isSaved() && !mapperOf(line)->remove(line))
            collected += " \r\n " + mapperOf(line)->takeError();
    }
    if (collected.isEmpty() && commit(transaction, &collected))
        return true;
    transaction.rollback();
    ids.restore();
    fail(messages().updateLines, collected);
    return resultOfFailedLines();
}

bool AppDocumentMapper::removeWithLines(KorEntity* document, const QList<KorEntity*>& lines)
{
    KorTransaction transaction;
    noteTransaction(transaction.isOpen());

    QString collected;
    for (KorEntity* line : lines) {
        if (transaction.isConnected() && !mapperOf(line)->remove(line))
            collected += " \r\n " + mapperOf(line)->takeError();
    }
    if (!collected.isEmpty()) {
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
