#pragma once

#include "app/configuration/EntityAppConfig.h"
#include "app/persistence/AppDataMapper.h"

#include <functional>

/** The shared settings, in the table "appconfig". */
class DataMapperAppConfig final : public AppDataMapper
{
    Q_OBJECT

public:
    explicit DataMapperAppConfig(QObject* parent);

    /** From now on rows whose key begins with this are read as records of that class; the longest beginning wins. */
    template <class Config>
    void addType(const QString& keyPrefix)
    {
        m_types.insert(keyPrefix, [](QObject* parent) { return new Config(parent); });
    }

    /** The row's value, empty where there is no such row. */
    [[nodiscard]] QString getValue(const QString& key);
    /** The row, or the record given for the case that there is none. */
    [[nodiscard]] EntityAppConfig* getValue(const QString& key, EntityAppConfig* defaultEntity);
    [[nodiscard]] EntityAppConfig* getConfig(const QString& key);
    /** The rows whose key matches the pattern with "%" behind it. */
    [[nodiscard]] QList<KorEntity*> getConfigsLike(const QString& prefix);

    bool insert(KorEntity* entity) override;
    bool update(KorEntity* entity) override;
    using AppDataMapper::fromRow;
    KorEntity* fromRow(KorQuery& query, const QString& alias) override;
    KorEntity* createEntity() override;
    bool createTable(int mode) override;

private:
    QMap<QString, std::function<EntityAppConfig*(QObject*)>> m_types;
    // The key of the row that is being read: it tells which class to make.
    QString m_rowKey;
};
