#include "setup/DatabaseSetup.h"

#include "app/context/AppContext.h"
#include "app/context/DatabaseManager.h"
#include "app/context/DatabaseServer.h"
#include "setup/sample/SampleTrade.h"
#include "zavel/install/ZavelInstaller.h"
#include "zavel/registry/ZavelBusinessRegistry.h"

#include <QDir>
#include <QFileInfo>
#include <QSqlQuery>

DatabaseSetup::DatabaseSetup(const SetupOptions& options)
    : m_options(options), m_manager(new DatabaseManager), m_out(stdout), m_err(stderr)
{
    AppContext::instance()->setDatabaseManager(m_manager);
    ZavelBusinessRegistry::instance();
}

DatabaseSetup::Result DatabaseSetup::run()
{
    switch (m_options.command) {
    case SetupOptions::Install:
        return install();
    case SetupOptions::Update:
        return update();
    case SetupOptions::SampleTrade:
        return sampleTrade();
    default:
        return status();
    }
}

void DatabaseSetup::say(const QString& line) { m_out << line << Qt::endl; }

void DatabaseSetup::tellStep(int percent, const QString& step)
{
    say(QString("[%1%] %2").arg(percent).arg(step.trimmed()));
}

DatabaseSetup::Result DatabaseSetup::fail(const QString& line)
{
    m_err << line << Qt::endl;
    return Failed;
}

DatabaseSetup::Result DatabaseSetup::status()
{
    const QString& name = m_options.connection.database;
    if (isDatabaseMissing()) {
        say(tr("There is no database %1.").arg(name));
        return NotInstalled;
    }
    if (!connectToDatabase())
        return Failed;
    const DatabaseVersion version = installedVersion();
    if (version.isKnown()) {
        say(tr("Installed: %1, version %2.").arg(name, version.text()));
        if (version.isNewerThan(DatabaseVersion::ofProgram())) {
            say(version.tooNew());
            return TooNew;
        }
        if (version.isOlderThan(DatabaseVersion::ofProgram()))
            say(tr("An update to version %1 is due; the command is \"update\". Back up the database first.")
                    .arg(DatabaseVersion::ofProgramText()));
        return Done;
    }
    say((tableCount() == 0 ? tr("The database %1 is empty.")
                           : tr("The database %1 holds tables, but no finished installation."))
            .arg(name));
    return NotInstalled;
}

DatabaseSetup::Result DatabaseSetup::install()
{
    if (m_options.createDatabase && isDatabaseMissing() && !createDatabase())
        return Failed;
    if (!connectToDatabase())
        return Failed;
    if (tableCount() > 0 && !m_options.replace)
        return fail(tr("The database %1 already holds tables. With --replace they are made anew, and what they hold "
                       "is lost.")
                        .arg(m_options.connection.database));
    if (!runInstaller(KorInstaller::FreshInstall))
        return fail(tr("The installation is not complete; see the lines above."));
    return !m_options.writeSettings || writeSettings() ? Done : Failed;
}

DatabaseSetup::Result DatabaseSetup::update()
{
    if (!connectToDatabase())
        return Failed;
    if (!installedVersion().isKnown())
        return fail(tr("Nothing is installed in the database %1.").arg(m_options.connection.database));
    return runInstaller(KorInstaller::UpdateInstall) ? Done
                                                     : fail(tr("The update is not complete; see the lines above."));
}

DatabaseSetup::Result DatabaseSetup::sampleTrade()
{
    if (!connectToDatabase())
        return Failed;
    const DatabaseVersion version = installedVersion();
    if (!version.isKnown())
        return fail(tr("Nothing is installed in the database %1.").arg(m_options.connection.database));
    if (version.isNewerThan(DatabaseVersion::ofProgram()) || version.isOlderThan(DatabaseVersion::ofProgram()))
        return fail(tr("The database %1 is of version %2, this program of version %3.")
                        .arg(m_options.connection.database, version.text(), DatabaseVersion::ofProgramText()));
    SampleTrade trade(m_manager->database(), {m_options.months, m_options.perDay, m_options.seed},
                      [this](int percent, const QString& step) { tellStep(percent, step); });
    return trade.run() ? Done : fail(trade.failure());
}

bool DatabaseSetup::connectToDatabase()
{
    const ConnectionSettings& to = m_options.connection;
    if (m_manager->open(to.host, to.database, to.user, to.password, to.port)) {
        // Hides the server's notices about tables that do not exist yet.
        QSqlQuery(m_manager->database()).exec("SET client_min_messages TO warning");
        return true;
    }
    fail(tr("The database %1 on %2, port %3, can not be opened as %4: %5")
             .arg(to.database, to.host, QString::number(to.port), to.user, m_manager->lastErrorText().trimmed()));
    return false;
}

bool DatabaseSetup::isDatabaseMissing()
{
    const DatabaseServer server(m_manager, m_options.connection);
    return server.isOpen() && !server.has(m_options.connection.database);
}

bool DatabaseSetup::createDatabase()
{
    const QString& name = m_options.connection.database;
    DatabaseServer server(m_manager, m_options.connection);
    if (server.create(name))
        return true;
    fail(server.isOpen() ? tr("The database %1 can not be created: %2").arg(name, server.failure()) : server.failure());
    return false;
}

int DatabaseSetup::tableCount() const
{
    QSqlQuery query("SELECT count(*) FROM pg_tables WHERE schemaname = current_schema()", m_manager->database());
    return query.next() ? query.value(0).toInt() : 0;
}

DatabaseVersion DatabaseSetup::installedVersion() const
{
    return tableCount() == 0 ? DatabaseVersion(QString()) : DatabaseVersion::read();
}

bool DatabaseSetup::runInstaller(int type)
{
    ZavelInstaller installer;
    installer.setType(type);
    installer.setAdminUserName(m_options.adminName);
    installer.setAdminPassword(m_options.adminPassword);
    installer.setDateFormat(m_options.dateFormat);
    installer.setLocale(m_options.locale);
    QObject::connect(&installer, &KorInstaller::onProgress, &installer,
                     [this](int perc, const QString& status) { tellStep(perc, status); });
    QObject::connect(&installer, &KorInstaller::stepFailed, &installer,
                     [this](const QString&, const QStringList& reasons, bool expected) {
                         for (const QString& reason : reasons)
                             say(reason.trimmed());
                         if (expected)
                             say(tr("Every update tells this one; nothing is wrong."));
                     });
    QObject::connect(&installer, &KorInstaller::error, &installer, [this](const QString& err) { fail(err); });
    installer.process();
    return !installer.failed();
}

bool DatabaseSetup::writeSettings()
{
    QDir().mkpath(QFileInfo(m_options.settingsPath).absolutePath());
    if (m_options.connection.write(m_options.settingsPath))
        return true;
    fail(tr("Can't write the settings file: %1").arg(m_options.settingsPath));
    return false;
}
