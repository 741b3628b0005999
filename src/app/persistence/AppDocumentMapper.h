#pragma once

#include "app/persistence/AppLineMapper.h"

class KorBatch;

/**
 * Mapper of a record with lines: both are read together, and written in one transaction; a line that fails takes all of
 * it back. After a rollback the records in memory have the ids that they had before, so that the form can be saved
 * again.
 */
class AppDocumentMapper : public AppDataMapper
{
    Q_OBJECT

public:
    /** The family's words for what failed. */
    struct Messages
    {
        QString insertHeader;
        QString insertLines;
        QString updateHeader;
        QString updateLines;
        QString removeHeader{};
        QString removeLines{};
    };

    using AppDataMapper::AppDataMapper;

    /** With its lines. */
    KorEntity* findById(int id) override;
    bool insert(KorEntity* document) override;
    bool update(KorEntity* document) override;
    bool createTable(int mode) override;

    [[nodiscard]] AppLineMapper* lineMapper() const { return m_lines; }
    /** The mappers of all line tables, where a record has lines of more than one kind. */
    [[nodiscard]] QList<KorDataMapper*> lineMappers() const override { return {m_lines}; }
    [[nodiscard]] virtual AppLineMapper* mapperOf(const KorEntity*) const { return m_lines; }

    /** The error where a transaction did not open; the work goes on. */
    [[nodiscard]] static QString notOpened() { return tr("error: transaction failed"); }

protected:
    /** To be called at the end of the constructor. */
    void setLineMapper(AppLineMapper* lines) { m_lines = lines; }

    [[nodiscard]] virtual const Messages& messages() const = 0;
    [[nodiscard]] virtual QList<KorEntity*> linesOf(KorEntity* document) const = 0;
    [[nodiscard]] virtual QList<KorEntity*> removedLinesOf(KorEntity*) const { return {}; }
    /** Gives the record the lines that its row has. */
    virtual void readLines(KorEntity* document) = 0;
    /** What an insert has to hold from its beginning on, as KorTransaction takes it. */
    [[nodiscard]] virtual QStringList locksOfInsert(const KorEntity&) const { return {}; }
    /** Inside the transaction, before the header: draws numbers and the like; false takes all back. */
    virtual bool beforeInsert(KorEntity*) { return true; }
    /** What a save returns that was taken back because of a line; the error text stands in any case. */
    [[nodiscard]] virtual bool resultOfFailedLines() const { return false; }

    /** Removes the lines, then the document, in one transaction that holds the document from its beginning on. */
    bool removeWithLines(KorEntity* document, const QList<KorEntity*>& lines);

private:
    /** All lines in one statement for each kind of them. */
    void insertLinesWith(KorBatch& batch, const QList<KorEntity*>& lines, int documentId);
    /** Failing, it gives the words of every line that failed. */
    static bool send(KorBatch& batch, QString* reason);

    AppLineMapper* m_lines = nullptr;
};
