#include "kor/persistence/KorDatabase.h"

#include <QCoreApplication>
#include <QThread>
#include <QThreadStorage>
#include <QUuid>

namespace
{
QString defaultName() { return QString::fromLatin1(QSqlDatabase::defaultConnection); }

/** The clone that a worker thread speaks through; it goes with the thread. */
class WorkerConnection
{
public:
    WorkerConnection() : m_name("worker-" + QUuid::createUuid().toString(QUuid::WithoutBraces))
    {
        QSqlDatabase::cloneDatabase(defaultName(), m_name).open();
    }
    ~WorkerConnection()
    {
        QSqlDatabase::database(m_name, false).close();
        QSqlDatabase::removeDatabase(m_name);
    }
    Q_DISABLE_COPY(WorkerConnection)

    [[nodiscard]] QSqlDatabase database() const { return QSqlDatabase::database(m_name, true); }

private:
    QString m_name;
};

QThreadStorage<WorkerConnection*> workerConnections;
} // namespace

bool KorDatabase::isApplicationThread()
{
    return !QCoreApplication::instance() || QThread::currentThread() == QCoreApplication::instance()->thread();
}

QSqlDatabase KorDatabase::current()
{
    if (isApplicationThread())
        return QSqlDatabase::database(defaultName(), true);
    if (!workerConnections.hasLocalData())
        workerConnections.setLocalData(new WorkerConnection);
    return workerConnections.localData()->database();
}

KorTransaction::KorTransaction() : m_database(KorDatabase::current()), m_open(m_database.transaction()) {}

KorTransaction::~KorTransaction()
{
    if (m_open)
        m_database.rollback();
}

bool KorTransaction::commit()
{
    m_open = false;
    return m_database.commit();
}

bool KorTransaction::rollback()
{
    m_open = false;
    return m_database.rollback();
}
