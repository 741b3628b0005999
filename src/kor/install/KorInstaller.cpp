#include "kor/install/KorInstaller.h"

#include "kor/business/KorBusinessLogic.h"
#include "kor/persistence/KorDataMapper.h"
#include "kor/persistence/KorDatabase.h"
#include "kor/persistence/KorMigration.h"
#include "kor/persistence/KorQuery.h"
#include "kor/system/KorLogger.h"

#include <QSqlError>

namespace
{
// Any number that no other advisory lock uses. Advisory locks count per database.
constexpr int installerLock = 1095781;

/** The boolean result of a statement about the lock. */
bool answer(const char* statement)
{
    KorQuery query;
    return query.exec(QString(statement).arg(installerLock)) && query.next() && query.value(0).toBool();
}

/** Checked first because without a server each of hundreds of statements would wait for its own timeout. */
bool isConnected() { return KorDatabase::current().isOpen(); }
} // namespace

KorInstaller::KorInstaller(QObject* parent) : QObject(parent) {}

bool KorInstaller::addMapper(KorDataMapper* mapper)
{
    m_mappers.append(mapper);
    return true;
}

void KorInstaller::process()
{
    install();
    emit finished();
}

bool KorInstaller::install()
{
    if (!begin())
        return true;
    step(0, tr("Initializing..."));
    addMappers();
    step(25, tr("Creating/Updating tables..."));
    processMappers();
    step(50, tr("Inserting initial datas..."));
    if (isConnected())
        insertInitialData();
    step(75, tr("Registering permissions..."));
    if (isConnected())
        registerPermissions();
    end();
    step(100, tr("Done. Please restart the app"));
    return true;
}

bool KorInstaller::begin()
{
    const QSqlDatabase database = KorDatabase::current();
    QString reason = database.lastError().text();
    if (database.isOpen()) {
        if (answer("SELECT pg_try_advisory_lock(%1)")) {
            reason = objection();
            if (reason.isEmpty()) {
                // Silences the server's notice for each dropped table that does not exist.
                KorQuery().exec("SET client_min_messages TO warning");
                (void)KorMigration::takeFailures();
                m_installedVersion = installedVersion();
                return true;
            }
            (void)answer("SELECT pg_advisory_unlock(%1)");
        } else {
            reason = tr("This database is being installed or updated at this very moment, from here or from another "
                        "workstation. Please wait until that has ended.");
        }
    }
    m_failed = true;
    m_failures.append(reason);
    log(reason);
    emit error(reason);
    return false;
}

void KorInstaller::end()
{
    // The advisory lock belongs to the session. If it is gone, the connection was lost, and statements were lost with
    // it.
    if (!answer("SELECT pg_advisory_unlock(%1)"))
        reportFailure(tr("The connection to the database was lost on the way, and steps failed. Please run it again."));
    else if (m_incomplete)
        // With the new version number stored, the program would treat the missing tables or columns as damage at its
        // start.
        reportFailure(tr("Tables or columns of the new version could not be made. The database keeps the version that "
                         "it had; please run the update again."));
    else
        recordCompletion();
    KorQuery().exec("RESET client_min_messages");
}

void KorInstaller::step(int percent, const QString& status)
{
    setPercent(percent);
    setStatus(status);
}

void KorInstaller::setStatus(const QString& status)
{
    m_status = status;
    emit onProgress(m_percent, m_status);
}

void KorInstaller::processMappers()
{
    for (int i = 0; i < m_mappers.size(); ++i) {
        KorDataMapper* mapper = m_mappers.at(i);
        const bool done = processMapper(mapper);
        setPercent(25 + i / 25);
        if (done)
            setStatus(mapper->tableName() + tr(" installed"));
        else
            reportTable(mapper);
        if (!done && !isConnected())
            return;
    }
}

void KorInstaller::reportTable(KorDataMapper* mapper)
{
    const QString error = mapper->takeError();
    const QList<KorMigration::Failure> failures = KorMigration::takeFailures();
    bool expected = error.isEmpty() && !failures.isEmpty();
    QStringList reasons;
    for (const KorMigration::Failure& failure : failures) {
        expected = expected && failure.expected;
        if (failure.expected)
            log(failure.text);
        else
            reasons.append(failure.text);
    }
    reportFailure(mapper->tableName() + tr(" error: ") + error, reasons, expected);
}

bool KorInstaller::processMapper(KorDataMapper* mapper)
{
    mapper->clearError();
    return isFresh() ? mapper->createTable(1) : updateTable(mapper);
}

bool KorInstaller::updateTable(KorDataMapper* mapper)
{
    if (!growTable(mapper))
        return false;
    bool done = mapper->migrate(m_fromVersion, m_appVersion);
    // Tables of earlier versions have fewer indexes. Line tables are in no registry, so they follow below.
    done = mapper->createIndexes() && done;
    for (KorDataMapper* lines : mapper->lineMappers()) {
        if (!growTable(lines) || !lines->createIndexes())
            reportFailure(lines->tableName() + tr(" error: ") + lines->takeError());
    }
    return done;
}

bool KorInstaller::growTable(KorDataMapper* mapper)
{
    const bool grown = mapper->grow(m_installedVersion, m_appVersion);
    m_incomplete = m_incomplete || !grown;
    return grown;
}

bool KorInstaller::reportAny(const QString& failure)
{
    if (!failure.isEmpty())
        reportFailure(failure);
    return !failure.isEmpty();
}

bool KorInstaller::insertRow(KorBusinessLogic* service, KorEntity* entity)
{
    const bool done = service->insert(entity);
    if (!done)
        reportFailure(service->takeErrors());
    return done;
}

void KorInstaller::reportFailure(const QString& text, const QStringList& reasons, bool expected)
{
    m_failed = m_failed || !expected;
    m_failures.append(text);
    log(text.trimmed());
    for (const QString& reason : reasons)
        log(reason);
    setStatus(text);
    emit stepFailed(text, reasons, expected);
}

void KorInstaller::log(const QString& message)
{
    if (m_logger)
        m_logger->log(message);
}
