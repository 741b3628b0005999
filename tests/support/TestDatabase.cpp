#include "support/TestDatabase.h"

#include "app/context/AppContext.h"
#include "app/context/DatabaseManager.h"
#include "app/context/EntityUser.h"
#include "app/registry/AppBusinessRegistry.h"
#include "kor/business/KorBusinessLogic.h"
#include "kor/persistence/KorQuery.h"
#include "pos/registry/PosBusinessRegistry.h"
#include "support/TestCluster.h"
#include "support/TestTemplate.h"
#include "zavel/registry/ZavelBusinessRegistry.h"

#include <QFile>
#include <QSqlError>
#include <QSqlQuery>
#include <QTimeZone>
#include <QUuid>

QString TestDatabase::host() { return TestCluster::instance().host(); }

int TestDatabase::port() { return TestCluster::instance().port(); }

QString TestDatabase::user() { return TestCluster::instance().user(); }

TestDatabase::TestDatabase(Kind kind)
    : m_name("t_" + QUuid::createUuid().toString(QUuid::Id128)), m_otherName("other-" + m_name)
{
    if (kind == Installed) {
        ensureInstalledTemplate();
        TestCluster::instance().run("CREATE DATABASE " + m_name + " TEMPLATE " + installedTemplateName() +
                                    " STRATEGY file_copy");
    } else {
        TestCluster::instance().run("CREATE DATABASE " + m_name + " STRATEGY file_copy");
    }
    connect();
}

TestDatabase::TestDatabase(const QString& existing) : m_name(existing), m_otherName("other-" + existing), m_isOwn(false)
{
    connect();
}

void TestDatabase::connect()
{
    AppContext::instance()->setLocale("en_US");
    AppContext::instance()->setDateFormat("d MMM yyyy");
    ZavelBusinessRegistry::instance();

    QSqlDatabase database = QSqlDatabase::addDatabase("QPSQL", m_otherName);
    database.setHostName(host());
    database.setPort(port());
    database.setUserName(user());
    database.setDatabaseName(m_name);
    if (!database.open())
        qFatal("other workstation: %s", qPrintable(database.lastError().text()));
    // The server has another time zone on purpose. Workstations use their own; otherwise there would be two different
    // "today" at night.
    QSqlQuery(database).exec("SET TIME ZONE '" + QTimeZone::systemTimeZoneId() + '\'');
    if (!open())
        qFatal("program's connection: %s", qPrintable(AppContext::instance()->databaseManager()->lastErrorText()));
}

TestDatabase::~TestDatabase()
{
    AppContext::instance()->databaseManager()->close();
    QSqlDatabase::database(m_otherName).close();
    QSqlDatabase::removeDatabase(m_otherName);
    AppContext::instance()->resetEntityPool();
    if (m_isOwn)
        TestCluster::instance().run("DROP DATABASE " + m_name + " WITH (FORCE)");
}

ConnectionSettings TestDatabase::settings() const
{
    ConnectionSettings settings;
    settings.host = host();
    settings.port = port();
    settings.user = user();
    settings.database = m_name;
    return settings;
}

bool TestDatabase::open()
{
    AppContext* context = AppContext::instance();
    if (!context->databaseManager())
        context->setDatabaseManager(new DatabaseManager);
    return context->databaseManager()->open(host(), m_name, user(), QString(), port());
}

QSqlDatabase TestDatabase::other() const { return QSqlDatabase::database(m_otherName); }

void TestDatabase::run(const QString& statement)
{
    QSqlQuery query(other());
    if (!query.exec(statement))
        qFatal("%s: %s", qPrintable(statement), qPrintable(query.lastError().text()));
}

void TestDatabase::runFile(const QString& path) { run(textOf(path)); }

QString TestDatabase::textOf(const QString& path)
{
    QFile file(QString(ZAVEL_SOURCE_DIR "/tests/") + path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("%s: %s", qPrintable(path), qPrintable(file.errorString()));
    return QString::fromUtf8(file.readAll());
}

QVariant TestDatabase::value(const QString& statement)
{
    QSqlQuery query(other());
    if (!query.exec(statement))
        qFatal("%s: %s", qPrintable(statement), qPrintable(query.lastError().text()));
    return query.next() ? query.value(0) : QVariant();
}

void TestDatabase::killConnections()
{
    run("SELECT pg_terminate_backend(pid) FROM pg_stat_activity WHERE datname = current_database() "
        "AND pid <> pg_backend_pid()");
}

void loginAsAdmin()
{
    AppContext* context = AppContext::instance();
    EntityUser admin;
    admin.setId(1);
    admin.setUserName("admin");
    context->setCurrentUser(&admin);
    const QList<const KorBusinessRegistry*> registries{AppBusinessRegistry::instance(), PosBusinessRegistry::instance(),
                                                       ZavelBusinessRegistry::instance()};
    for (const KorBusinessRegistry* registry : registries) {
        for (const KorBusinessLogic* service : registry->all()) {
            for (const KorPermission& permission : service->getPermissions()) {
                context->userRights()->insert(service->name(), {permission.first, 2});
                context->accessCaptions()->insert(service->name() + QString::number(permission.first),
                                                  permission.second);
            }
        }
    }
}

void loginWithRights(const QString& businessName, const QList<QPair<int, int>>& grants, int userId)
{
    EntityUser user;
    user.setId(userId);
    user.setUserName("waiter");
    AppContext::instance()->setCurrentUser(&user);
    for (const auto& grant : grants)
        AppContext::instance()->userRights()->insert(businessName, grant);
}

StatementCount::StatementCount() : m_start(KorQuery::statementCount()) {}

int StatementCount::count() const { return static_cast<int>(KorQuery::statementCount() - m_start); }
