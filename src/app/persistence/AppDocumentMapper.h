#pragma once

#include "app/persistence/AppLineMapper.h"

class KorBatch;

/**
 * Mapper of a record with lines. Both are read together and written in one transaction; if a line fails, all is rolled
 * back. After a rollback the records have their former ids, so that the form can save again.
 */
class AppDocumentMapper : public AppDataMapper
{
    Q_OBJECT

public:
    /** The error texts of the subclass, by what failed. */
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

    /** Reads the lines, too. */
    KorEntity* findById(int id) override;
    bool insert(KorEntity* document) override;
    bool update(KorEntity* document) override;
    bool createTable(int mode) override;

    [[nodiscard]] AppLineMapper* lineMapper() const { return m_lines; }
    /** The mappers of all line tables; override it if a record has several kinds of lines. */
    [[nodiscard]] QList<KorDataMapper*> lineMappers() const override { return {m_lines}; }
    [[nodiscard]] virtual AppLineMapper* mapperOf(const KorEntity*) const { return m_lines; }

    /** The error if a transaction did not start; the save continues. */
    [[nodiscard]] static QString notOpened() { return tr("error: transaction failed"); }

protected:
    /** Call it at the end of the constructor. */
    void setLineMapper(AppLineMapper* lines) { m_lines = lines; }

    [[nodiscard]] virtual const Messages& messages() const = 0;
    [[nodiscard]] virtual QList<KorEntity*> linesOf(KorEntity* document) const = 0;
    [[nodiscard]] virtual QList<KorEntity*> removedLinesOf(KorEntity*) const { return {}; }
    /** Reads the lines from the database into the record. */
    virtual void readLines(KorEntity* document) = 0;
    /** The locks that an insert takes at its start, see KorTransaction. */
    [[nodiscard]] virtual QStringList locksOfInsert(const KorEntity&) const { return {}; }
    /** Called in the transaction before the record is inserted, for example to draw a number. False rolls back. */
    virtual bool beforeInsert(KorEntity*) { return true; }
    /** The result of a save that was rolled back because of a line; the error text is set in any case. */
    [[nodiscard]] virtual bool resultOfFailedLines() const { return false; }

    /** Removes the lines and the document in one transaction, which locks the document first. */
    bool removeWithLines(KorEntity* document, const QList<KorEntity*>& lines);

private:
    /** One INSERT statement for successive lines of the same kind. */
    void insertLinesWith(KorBatch& batch, const QList<KorEntity*>& lines, int documentId);
    /** On failure, adds the errors of all failed lines to the reason. */
    static bool send(KorBatch& batch, QString* reason);

    AppLineMapper* m_lines = nullptr;
};
