#include "support/TestTemplate.h"

#include "app/context/AppContext.h"
#include "app/context/DatabaseManager.h"
#include "support/TestCluster.h"
#include "zavel/install/ZavelInstaller.h"

QString installedTemplateName() { return "zavel_installed"; }

namespace
{
void install(const QString& databaseName)
{
    TestCluster& cluster = TestCluster::instance();
    AppContext* context = AppContext::instance();
    if (!context->databaseManager())
        context->setDatabaseManager(new DatabaseManager);
    if (!context->databaseManager()->open(cluster.host(), databaseName, cluster.user(), QString(), cluster.port()))
        qFatal("template: %s", qPrintable(context->databaseManager()->lastErrorText()));
    context->setLocale("en_US");
    ZavelInstaller installer;
    installer.install();
    if (installer.failed())
        qFatal("template: %s", qPrintable(installer.failures().join('\n')));
    context->databaseManager()->close();
}
} // namespace

void ensureInstalledTemplate()
{
    TestCluster& cluster = TestCluster::instance();
    cluster.exclusively([&cluster] {
        if (cluster.hasDatabase(installedTemplateName()))
            return;
        // Created under another name until it is complete, so that nobody clones a partial one.
        const QString unfinished = installedTemplateName() + "_unfinished";
        cluster.run("DROP DATABASE IF EXISTS " + unfinished);
        cluster.run("CREATE DATABASE " + unfinished);
        install(unfinished);
        cluster.run("ALTER DATABASE " + unfinished + " RENAME TO " + installedTemplateName());
    });
}
