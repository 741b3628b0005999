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

    /** Rows whose key starts with the prefix are read as objects of this class. The longest matching prefix decides. */
    template <class Config>
    void addType(const QString& keyPrefix)
    {
        m_types.insert(keyPrefix, [](QObject* parent) { return new Config(parent); });
    }

    /** The value of the row; empty if the row does not exist. */
    [[nodiscard]] QString getValue(const QString& key);
    /** The row, or the given record if the row does not exist. */
    [[nodiscard]] EntityAppConfig* getValue(const QString& key, EntityAppConfig* defaultEntity);
    [[nodiscard]] EntityAppConfig* getConfig(const QString& key);
    /** The rows whose key starts with the prefix, which is used as a LIKE pattern. */
    [[nodiscard]] QList<KorEntity*> getConfigsLike(const QString& prefix);

    bool insert(KorEntity* entity) override;
    bool update(KorEntity* entity) override;
    using AppDataMapper::fromRow;
    KorEntity* fromRow(KorQuery& query, const QString& alias) override;
    KorEntity* createEntity() override;
    bool createTable(int mode) override;

private:
    QMap<QString, std::function<EntityAppConfig*(QObject*)>> m_types;
    // The key of the row being read; it decides which class is created.
    QString m_rowKey;
};
