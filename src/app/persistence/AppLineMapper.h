#pragma once

#include "app/persistence/AppDataMapper.h"

/** Mapper of the lines of a document, with a column for the document's id. */
class AppLineMapper : public AppDataMapper
{
    Q_OBJECT

public:
    using AppDataMapper::AppDataMapper;

    // Sorted by id, which is the order of entry.
    [[nodiscard]] QList<KorEntity*> findByDocument(int documentId);
    /** The lines of several documents, read with one statement. */
    [[nodiscard]] QList<KorEntity*> findByDocuments(const QList<int>& documentIds);
    /** Deletes all lines of the document, also those that the find operations skip because a joined row is missing. */
    bool removeByDocument(int documentId);
    /** Sets the document's id in the line. */
    void attach(KorEntity* line, int documentId) const;

protected:
    /** Declares the column with the document's id, and the join for the foreign key. */
    void documentColumn(const QString& name, const QString& property, KorDataMapper* document);
    [[nodiscard]] const QString& documentColumn() const { return m_documentColumn; }

private:
    QString m_documentColumn;
    QByteArray m_documentProperty;
};
