#include "app/persistence/AppMasterMapper.h"

KorEntity* AppMasterMapper::findByCode(const QString& code)
{
    return findOne(KorConditions().equals("lower(" + codeColumn() + ')', code.toLower()));
}

QList<KorEntity*> AppMasterMapper::findAll(const QString& filter)
{
    KorConditions conditions;
    conditions.contains({"lower(" + codeColumn() + ')', "lower(" + nameColumn() + ')'}, filter);
    if (!sortColumn().isEmpty())
        conditions.ascending(sortColumn());
    return findMany(conditions);
}

QString AppMasterMapper::widenCodeStatement() const
{
    return "ALTER TABLE " + tableName() + " ALTER COLUMN kode TYPE varchar(20)\r\n";
}

QString AppMasterMapper::uniqueCodeStatement() const
{
    return "ALTER TABLE " + tableName() + " ADD UNIQUE (kode);\r\n";
}
