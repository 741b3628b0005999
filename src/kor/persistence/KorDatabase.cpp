#include "kor/persistence/KorDatabase.h"

#include "kor/persistence/KorStatementCache.h"
#include "kor/system/KorFailure.h"

#include <QSqlError>
#include <QThread>
#include <QThreadStorage>
#include <QUuid>

namespace
{
// A connection that breaks inside a transaction, or at its beginning, stays broken until it ends: opened anew, what is
// left of the work would be written without the part that the server has thrown away.
thread_local int openTransactions = 0;

QString defaultName() { return QString::fromLatin1(QSqlDatabase::defaultConnection); }

/** The connection, opened anew when it was lost and no transaction went with it. */
QSqlDatabase opened(const QString& name)
{
    const QSqlDatabase database = QSqlDatabase::database(name, false);
    if (database.isOpen() || openTransactions > 0)
        return database;
    KorStatementCache::ofThread().connectionLost();
    return QSqlDatabase::database(name, true);
}

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

    [[nodiscard]] QSqlDatabase database() const { return opened(m_name); }

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
        return opened(defaultName());
    if (!workerConnections.hasLocalData())
        workerConnections.setLocalData(new WorkerConnection);
    return workerConnections.localData()->database();
}

bool KorDatabase::isInTransaction() { return openTransactions > 0; }

KorTransaction::KorTransaction() : m_database(KorDatabase::current()), m_open(m_database.transaction())
{
    if (!m_open) {
        // A session that was lost since the last statement shows only now; nothing is written yet, so a new one will
        // do.
        m_database = KorDatabase::current();
        m_open = m_database.transaction();
    }
    ++openTransactions;
}

KorTransaction::~KorTransaction()
{
    if (m_open)
        rollback();
    end();
}

bool KorTransaction::commit()
{
    end();
    const bool committed = m_database.commit();
    m_unsure = !committed && !m_database.isOpen();
    return committed;
}

bool KorTransaction::rollback()
{
    end();
    return m_database.rollback();
}

QString KorTransaction::failure() const
{
    const QSqlError error = m_database.lastError();
    const KorFailure::Connection connection = m_unsure              ? KorFailure::LostWhileSaving
                                              : m_database.isOpen() ? KorFailure::Kept
                                                                    : KorFailure::Lost;
    return KorFailure::of(connection, error.nativeErrorCode(), error.text(), {}).told();
}

void KorTransaction::end()
{
    openTransactions -= m_ended ? 0 : 1;
    m_ended = true;
    m_open = false;
}
