#pragma once

#include "app/configuration/DataMapperAppConfig.h"
#include "app/configuration/EntityConfigLocalizationFormat.h"
#include "kor/business/KorBusinessLogic.h"

/** The service of the settings that all workstations share. */
class BusinessConfiguration final : public KorBusinessLogic
{
    Q_OBJECT

public:
    enum PERMISSIONS { MANAGE_CONFIGURATION };
    Q_ENUM(PERMISSIONS)

    BusinessConfiguration(QObject* parent, DataMapperAppConfig* mapper);

    [[nodiscard]] QList<KorPermission> getPermissions() const override;

    /** The row's value, empty where there is no such row. */
    [[nodiscard]] QString getValue(const QString& key);
    [[nodiscard]] EntityAppConfig* getValue(const QString& key, EntityAppConfig* defaultEntity);
    [[nodiscard]] EntityAppConfig* getConfig(const QString& key);
    /** The row in the class that addType has named for its key; null for a missing row or one of another class. */
    template <class Config>
    [[nodiscard]] Config* getConfig(const QString& key)
    {
        return qobject_cast<Config*>(getConfig(key));
    }
    [[nodiscard]] QList<EntityAppConfig*> getConfigsLike(const QString& prefix);

    /** See DataMapperAppConfig::addType. Services of other layers name the classes of their rows when they are made. */
    template <class Config>
    void addType(const QString& keyPrefix)
    {
        m_configs->addType<Config>(keyPrefix);
    }

    /** The stored row, or one with the defaults that is not saved yet. */
    [[nodiscard]] EntityConfigLocalizationFormat* getLocalization();
    [[nodiscard]] static QString defaultDateFormat() { return EntityConfigLocalizationFormat::defaultDateFormat(); }
    [[nodiscard]] static QString defaultLocale() { return EntityConfigLocalizationFormat::defaultLocale(); }

    /** What a shop can be set to, and the one of them that this machine goes by; the default where it is another. */
    [[nodiscard]] static QStringList locales() { return {"en_US", "id_ID"}; }
    [[nodiscard]] static QString localeOfMachine();

    /** The first rows of a new database, with these formats, or the defaults where they are empty. */
    bool insertInitialData(const QString& dateFormat = QString(), const QString& locale = QString());

private:
    bool insertInitial(EntityAppConfig& config);

    DataMapperAppConfig* m_configs;
};
