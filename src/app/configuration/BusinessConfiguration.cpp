#include "app/configuration/BusinessConfiguration.h"

#include <QCoreApplication>
#include <QDir>

#include <QLocale>

BusinessConfiguration::BusinessConfiguration(QObject* parent, DataMapperAppConfig* mapper)
    : KorBusinessLogic("Configuration", mapper, parent), m_configs(mapper)
{}

QList<KorPermission> BusinessConfiguration::getPermissions() const
{
    return {{MANAGE_CONFIGURATION, tr("Manage Configurations")}};
}

QString BusinessConfiguration::getValue(const QString& key)
{
    return read(m_configs->getValue(key), m_configs, "getValue");
}

EntityAppConfig* BusinessConfiguration::getValue(const QString& key, EntityAppConfig* defaultEntity)
{
    return read(m_configs->getValue(key, defaultEntity), m_configs, "getValue");
}

EntityAppConfig* BusinessConfiguration::getConfig(const QString& key)
{
    return read(m_configs->getConfig(key), m_configs, "getConfig");
}

QList<EntityAppConfig*> BusinessConfiguration::getConfigsLike(const QString& prefix)
{
    return castAll<EntityAppConfig>(read(m_configs->getConfigsLike(prefix), m_configs, "getConfigsLike"));
}

EntityConfigLocalizationFormat* BusinessConfiguration::getLocalization()
{
    auto* stored = qobject_cast<EntityConfigLocalizationFormat*>(
        read(m_configs->getConfig(EntityConfigLocalizationFormat::rowKey()), m_configs, "getLocalization"));
    if (stored)
        return stored;
    auto* localization = new EntityConfigLocalizationFormat(AppDataMapper::entityParent());
    localization->setDateTimeFormat(defaultDateFormat());
    localization->setLocale(defaultLocale());
    return localization;
}

QString BusinessConfiguration::localeOfMachine()
{
    const QString name = QLocale::system().name();
    return locales().contains(name) ? name : defaultLocale();
}

bool BusinessConfiguration::insertInitialData(const QString& dateFormat, const QString& locale)
{
    bool inserted = true;
    QDir folder(QCoreApplication::applicationDirPath());
    if (folder.cd("reports")) {
        EntityAppConfig reports;
        reports.setKey("reports");
        reports.setValue(folder.absolutePath());
        inserted = insertInitial(reports);
    }
    EntityConfigLocalizationFormat localization;
    localization.setDateTimeFormat(dateFormat.isEmpty() ? defaultDateFormat() : dateFormat);
    localization.setLocale(locale.isEmpty() ? defaultLocale() : locale);
    return insertInitial(localization) && inserted;
}

bool BusinessConfiguration::insertInitial(EntityAppConfig& config)
{
    return written(m_configs->insert(&config), m_configs, "insertinitialdata");
}
