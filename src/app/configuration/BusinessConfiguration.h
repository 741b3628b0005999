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

    /** The row that marks the database of a sample restaurant; its value is the day on which it was filled. */
    [[nodiscard]] static QString sampleKey() { return "sample_trade"; }

    /** The value of the row; empty if the row does not exist. */
    [[nodiscard]] QString getValue(const QString& key);
    [[nodiscard]] EntityAppConfig* getValue(const QString& key, EntityAppConfig* defaultEntity);
    [[nodiscard]] EntityAppConfig* getConfig(const QString& key);
    /** The row as an object of the class that addType() registered; null if the row is missing or has another class. */
    template <class Config>
    [[nodiscard]] Config* getConfig(const QString& key)
    {
        return qobject_cast<Config*>(getConfig(key));
    }
    [[nodiscard]] QList<EntityAppConfig*> getConfigsLike(const QString& prefix);

    /** See DataMapperAppConfig::addType(). Services of other layers register their classes in their constructors. */
    template <class Config>
    void addType(const QString& keyPrefix)
    {
        m_configs->addType<Config>(keyPrefix);
    }

    /** The stored row, or a new unsaved one with the defaults. */
    [[nodiscard]] EntityConfigLocalizationFormat* getLocalization();
    [[nodiscard]] static QString defaultDateFormat() { return EntityConfigLocalizationFormat::defaultDateFormat(); }
    [[nodiscard]] static QString defaultLocale() { return EntityConfigLocalizationFormat::defaultLocale(); }

    /** The locales that can be configured. */
    [[nodiscard]] static QStringList locales() { return {"en_US", "id_ID"}; }
    /** The locale of this machine if it can be configured, or else the default. */
    [[nodiscard]] static QString localeOfMachine();

    /** Inserts the first rows of a new database. Empty arguments mean the defaults. */
    bool insertInitialData(const QString& dateFormat = QString(), const QString& locale = QString());

private:
    bool insertInitial(EntityAppConfig& config);

    DataMapperAppConfig* m_configs;
};
