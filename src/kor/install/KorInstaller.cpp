#include "kor/install/KorInstaller.h"

#include "kor/business/KorBusinessLogic.h"
#include "kor/log/KorLogger.h"
#include "kor/persistence/KorDataMapper.h"
#include "kor/persistence/KorDatabase.h"
#include "kor/persistence/KorQuery.h"

#include <QSqlError>

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
    const QSqlDatabase database = KorDatabase::current();
    if (!database.isOpen()) {
        // Each of the hundreds of statements to come would wait for the same server.
        const QString reason = database.lastError().text();
        m_failures.append(reason);
        log(reason);
        emit error(reason);
        return true;
    }
    // The server would remark on each table that is dropped without being there.
    KorQuery().exec("SET client_min_messages TO warning");
    step(0, tr("Initializing..."));
    addMappers();
    step(25, tr("Creating/Updating tables..."));
    processMappers();
    step(50, tr("Inserting initial datas..."));
    insertInitialData();
    step(75, tr("Registering permissions..."));
    registerPermissions();
    KorQuery().exec("RESET client_min_messages");
    step(100, tr("Done. Please restart the app"));
    return true;
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
            reportFailure(mapper->tableName() + tr(" error: ") + mapper->takeError());
    }
}

bool KorInstaller::processMapper(KorDataMapper* mapper)
{
    mapper->clearError();
    if (isFresh())
        return mapper->createTable(1);

    bool done = mapper->migrate(m_fromVersion, m_appVersion);
    // Tables that an earlier program made have fewer indexes; those of lines are in no registry.
    done = mapper->createIndexes() && done;
    for (KorDataMapper* lines : mapper->lineMappers()) {
        if (!lines->createIndexes())
            reportFailure(lines->tableName() + tr(" error: ") + lines->takeError());
    }
    return done;
}

bool KorInstaller::insertRow(KorBusinessLogic* service, KorEntity* entity)
{
    const bool done = service->insert(entity);
    if (!done)
        reportFailure(service->takeErrors());
    return done;
}

void KorInstaller::reportFailure(const QString& text)
{
    m_failures.append(text);
    log(text.trimmed());
    setStatus(text);
}

void KorInstaller::log(const QString& message)
{
    if (m_logger)
        m_logger->log(message);
}
