#include "app/persistence/AppMasterMapper.h"

#include "kor/persistence/KorPaging.h"

KorEntity* AppMasterMapper::findByCode(const QString& code)
{
    return findOne(" where lower(" + codeColumn() + ") = :code", {{":code", code.toLower()}});
}

QList<KorEntity*> AppMasterMapper::findAll(const QString& filter)
{
    const QString value = '%' + filter.toLower() + '%';
    KorPaging paging;
    paging.addFilter("lower(" + codeColumn() + ") like ", value);
    paging.addFilter(" OR lower(" + nameColumn() + ") like ", value);
    if (!sortColumn().isEmpty())
        paging.addSort(sortColumn(), "asc");
    return find(&paging);
}

QString AppMasterMapper::widenCodeStatement() const
{
    return "ALTER TABLE " + tableName() + " ALTER COLUMN kode TYPE varchar(20)\r\n";
}

QString AppMasterMapper::uniqueCodeStatement() const
{
    return "ALTER TABLE " + tableName() + " ADD UNIQUE (kode);\r\n";
}
