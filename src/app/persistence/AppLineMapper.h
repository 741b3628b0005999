#pragma once

#include "app/persistence/AppDataMapper.h"

/** Mapper of the lines of a document: the column with the document's id, and what goes by it. */
class AppLineMapper : public AppDataMapper
{
    Q_OBJECT

public:
    using AppDataMapper::AppDataMapper;

    // In the order of entry.
    [[nodiscard]] QList<KorEntity*> findByDocument(int documentId);
    /** Of several documents in one statement. */
    [[nodiscard]] QList<KorEntity*> findByDocuments(const QList<int>& documentIds);
    /** Removes all lines of the document, also those that no read gives because a partner of theirs is gone. */
    bool removeByDocument(int documentId);
    /** Tells the line whose it is. */
    void attach(KorEntity* line, int documentId) const;

protected:
    /** The document's id, held as a number; the join labels the document and gives the foreign key. */
    void documentColumn(const QString& name, const QString& property, KorDataMapper* document);
    [[nodiscard]] const QString& documentColumn() const { return m_documentColumn; }

private:
    QString m_documentColumn;
    QByteArray m_documentProperty;
};
