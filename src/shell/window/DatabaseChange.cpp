#include "shell/window/DatabaseChange.h"

#include "app/context/AppContext.h"
#include "app/context/ConnectionSettings.h"
#include "app/context/DatabaseManager.h"

#include <memory>

bool changeDatabase(const ConnectionSettings& settings, QString* reason)
{
    AppContext* context = AppContext::instance();
    DatabaseManager* former = context->databaseManager();
    // Closed first: both use the default connection name.
    if (former) {
        former->close();
        // close() does nothing on a lost connection, and a remaining copy would keep the old one in use.
        former->setDatabase(QSqlDatabase());
    }
    auto manager = std::make_unique<DatabaseManager>();
    if (manager->open(settings.host, settings.database, settings.user, settings.password, settings.port)) {
        context->setDatabaseManager(manager.release());
        delete former;
        return true;
    }
    *reason = manager->lastErrorText();
    manager.reset();
    if (former)
        former->open(context->dbHost(), context->dbName(), context->dbUser(), context->dbPassword(),
                     context->dbPort().toInt());
    return false;
}
