#include "app/numbers/DataMapperKey.h"

#include "app/numbers/EntityKey.h"
#include "kor/entity/KorMetaDataMap.h"

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
    auto* key = static_cast<EntityKey*>(findOne(KorConditions().equals("key_name", keyName)));
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
    return findMany(KorConditions().contains("lower(key_name)", filter).ascending("key_name"));
}

KorEntity* DataMapperKey::createEntity() { return new EntityKey(entityParent()); }
