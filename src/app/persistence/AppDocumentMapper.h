#pragma once

#include "app/persistence/AppDataMapper.h"

class KorBatch;
class KorTransaction;

/**
 * Mapper of a record with lines: both are written in one transaction, and a line that fails takes all of it back.
 * After a rollback the records in memory have the ids that they had before, so that the form can be saved again.
 */
class AppDocumentMapper : public AppDataMapper
{
    Q_OBJECT

public:
    using AppDataMapper::AppDataMapper;

    bool insert(KorEntity* document) override;
    bool update(KorEntity* document) override;
    bool createTable(int mode) override;

    [[nodiscard]] virtual KorDataMapper* lineMapper() const = 0;
    /** The mappers of all line tables, where a record has lines of more than one kind. */
    [[nodiscard]] QList<KorDataMapper*> lineMappers() const override { return {lineMapper()}; }

protected:
    /** The family's words for what failed. */
    struct Messages
    {
        QString insertHeader;
        QString insertLines;
        QString updateHeader;
        QString updateLines;
        QString removeHeader;
        QString removeLines;
    };

    [[nodiscard]] virtual const Messages& messages() const = 0;
    [[nodiscard]] virtual QList<KorEntity*> linesOf(KorEntity* document) const = 0;
    [[nodiscard]] virtual QList<KorEntity*> removedLinesOf(KorEntity*) const { return {}; }
    virtual void attachLine(KorEntity* line, int documentId) = 0;
    [[nodiscard]] virtual KorDataMapper* mapperOf(const KorEntity*) const { return lineMapper(); }
    /** What an insert has to hold from its beginning on, as KorTransaction takes it. */
    [[nodiscard]] virtual QStringList locksOfInsert(const KorEntity&) const { return {}; }
    /** Inside the transaction, before the header: draws numbers and the like; false takes all back. */
    virtual bool beforeInsert(KorEntity*) { return true; }
    /** What a save returns that was taken back because of a line; the error text stands in any case. */
    [[nodiscard]] virtual bool resultOfFailedLines() const { return false; }

    /** Removes the lines, then the document, in one transaction that holds the document from its beginning on. */
    bool removeWithLines(KorEntity* document, const QList<KorEntity*>& lines);
    /** Opens nothing but notes "error: transaction failed" when the transaction did not open; the work goes on. */
    void noteTransaction(bool open);
    /** Sets the family's message with the collected texts of the lines behind it, and logs it. */
    bool fail(const QString& message, const QString& collected = QString());

private:
    /** All lines in one statement for each kind of them. */
    void insertLinesWith(KorBatch& batch, const QList<KorEntity*>& lines, int documentId);
    /** Failing, it gives the words of every line that failed. */
    static bool send(KorBatch& batch, QString* reason);
    /** Failing, it gives the database's words. */
    static bool commit(KorTransaction& transaction, QString* reason);
};
