#include "app/numbers/DataMapperKey.h"

#include "app/numbers/EntityKey.h"
#include "kor/entity/KorMetaDataMap.h"
#include "kor/persistence/KorPaging.h"

DataMapperKey::DataMapperKey(QObject* parent) : AppDataMapper(parent)
{
    setName("key");
    metaData()->setTableName("keytable");
    column("key_name", "varchar(200) not null unique", "KeyName");
    column("next_id", "bigserial not null", "NextId");
    column("increment_by", "integer not null", "IncrementBy");
    column("format", "varchar(200) not null", "Format");
    column("description", "varchar(200) not null", "Description");
    column("no_zero", "bigserial not null", "NoZero");
}

EntityKey* DataMapperKey::getKey(const QString& keyName)
{
    auto* key = static_cast<EntityKey*>(findOne(" where key_name = :keyname", {{":keyname", keyName}}));
    if (!key)
        return nullptr;

    const int number = key->getNextId();
    key->setNextId(number + key->getIncrementBy());
    if (!update(key)) {
        delete key;
        return nullptr;
    }
    key->setNextId(number);
    key->setGeneratedNo(QDateTime::currentDateTime().toString(key->getFormat()) +
                        QString("%1").arg(number, key->getNoZero(), 10, QLatin1Char('0')));
    return key;
}

QList<KorEntity*> DataMapperKey::findAll(const QString& filter)
{
    const QString value = '%' + filter.toLower() + '%';
    KorPaging paging;
    paging.addFilter("lower(key_name) like ", value);
    paging.addFilter(" OR lower(key_name) like ", value);
    paging.addSort("key_name", "asc");
    return find(&paging);
}

KorEntity* DataMapperKey::createEntity() { return new EntityKey(entityParent()); }
