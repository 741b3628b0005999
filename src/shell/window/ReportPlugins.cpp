#include "shell/window/ReportPlugins.h"

#include "app/context/AppContext.h"
#include "kor/widgets/KorPluginTabInterface.h"

#include <QCoreApplication>
#include <QPluginLoader>

QDir ReportPlugins::folder(QDir applicationFolder)
{
    const QString name = applicationFolder.dirName().toLower();
    if (name == "debug" || name == "release")
        applicationFolder.cdUp();
    return QDir(applicationFolder.filePath("plugins"));
}

bool ReportPlugins::load(const QDir& pluginFolder)
{
    const QStringList files = pluginFolder.entryList(QDir::Files);
    for (const QString& file : files) {
        if (!file.endsWith(".so") && !file.endsWith(".dll"))
            continue;
        QPluginLoader loader(pluginFolder.absoluteFilePath(file));
        QObject* instance = loader.instance();
        if (!instance) {
            m_errors.append(loader.errorString());
            continue;
        }
        m_plugin = qobject_cast<KorPluginTabInterface*>(instance);
        handOverSettings();
    }
    return true;
}

void ReportPlugins::handOverSettings() const
{
    if (!m_plugin)
        return;
    const AppContext* context = AppContext::instance();
    m_plugin->set("date_format", context->dateFormat());
    m_plugin->set("app_path", QCoreApplication::applicationDirPath());
    m_plugin->set("db_host", context->dbHost());
    m_plugin->set("db_port", context->dbPort());
    m_plugin->set("db_name", context->dbName());
    m_plugin->set("db_username", context->dbUser());
    m_plugin->set("db_password", context->dbPassword());
}
