#include "app/persistence/AppLineMapper.h"

#include "kor/entity/KorEntity.h"

void AppLineMapper::documentColumn(const QString& name, const QString& property, KorDataMapper* document)
{
    m_documentColumn = name;
    m_documentProperty = property.toUtf8();
    column(name, "integer not null", property);
    addJoin(property, document, "inner", name, "id");
}

QList<KorEntity*> AppLineMapper::findByDocument(int documentId)
{
    return findMany(KorConditions().equals(m_documentColumn, documentId).ascending(tableName() + ".id"));
}

QList<KorEntity*> AppLineMapper::findByDocuments(const QList<int>& documentIds)
{
    return findMany(KorConditions().oneOf(m_documentColumn, documentIds).ascending(tableName() + ".id"));
}

bool AppLineMapper::removeByDocument(int documentId)
{
    KorQuery query;
    return execute(query, "delete from " + tableName() + " where " + m_documentColumn + " = :id",
                   {{":id", documentId}});
}

void AppLineMapper::attach(KorEntity* line, int documentId) const
{
    line->setProperty(m_documentProperty.constData(), documentId);
}
