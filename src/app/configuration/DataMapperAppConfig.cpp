#include "app/configuration/DataMapperAppConfig.h"

#include "app/configuration/EntityConfigLocalizationFormat.h"
#include "kor/entity/KorMetaDataMap.h"

DataMapperAppConfig::DataMapperAppConfig(QObject* parent) : AppDataMapper(parent)
{
    setName("appconfig");
    metaData()->setTableName("appconfig");
    column("appkey", "varchar(200) not null", "Key");
    column("is_json", "boolean not null", "IsStoredAsJSON");
    column("appvalue", "text not null", "Value");
    column("description", "text  null", "Description");
    addType<EntityConfigLocalizationFormat>(EntityConfigLocalizationFormat::rowKey());
}

bool DataMapperAppConfig::createTable(int mode)
{
    if (!AppDataMapper::createTable(mode))
        return false;
    KorQuery query;
    // Two kitchens added in the same second must not get the same key. An existing table already has the constraint.
    return mode != 1 || execute(query, "ALTER TABLE appconfig ADD UNIQUE (appkey);");
}

QString DataMapperAppConfig::getValue(const QString& key)
{
    const EntityAppConfig* config = getConfig(key);
    return config ? config->getValue() : QString("");
}

EntityAppConfig* DataMapperAppConfig::getValue(const QString& key, EntityAppConfig* defaultEntity)
{
    EntityAppConfig* config = getConfig(key);
    return config ? config : defaultEntity;
}

EntityAppConfig* DataMapperAppConfig::getConfig(const QString& key)
{
    if (key.isEmpty())
        return nullptr;
    return static_cast<EntityAppConfig*>(findOne(KorConditions().equals("appkey", key)));
}

QList<KorEntity*> DataMapperAppConfig::getConfigsLike(const QString& prefix)
{
    return findMany(KorConditions().matches({"appkey"}, prefix + '%').ascending("appconfig.id"));
}

bool DataMapperAppConfig::insert(KorEntity* entity)
{
    static_cast<EntityAppConfig*>(entity)->toStored();
    return AppDataMapper::insert(entity);
}

bool DataMapperAppConfig::update(KorEntity* entity)
{
    static_cast<EntityAppConfig*>(entity)->toStored();
    return AppDataMapper::update(entity);
}

KorEntity* DataMapperAppConfig::fromRow(KorQuery& query, const QString& alias)
{
    m_rowKey = query.field(aliasOf(alias, "appkey")).toString();
    auto* config = static_cast<EntityAppConfig*>(AppDataMapper::fromRow(query, alias));
    m_rowKey.clear();
    if (config)
        config->fromStored();
    return config;
}

KorEntity* DataMapperAppConfig::createEntity()
{
    // Backwards in key order, so that the longer of two matching prefixes is found first.
    for (auto it = m_types.constEnd(); it != m_types.constBegin();) {
        --it;
        if (m_rowKey.startsWith(it.key()))
            return it.value()(entityParent());
    }
    return new EntityAppConfig(entityParent());
}
