#include "kor/persistence/KorDatabase.h"

#include "kor/persistence/KorQuery.h"
#include "kor/persistence/KorServerCall.h"
#include "kor/persistence/KorStatementCache.h"
#include "kor/system/KorFailure.h"

#include <QElapsedTimer>
#include <QSqlDriver>
#include <QSqlError>
#include <QThread>
#include <QThreadStorage>
#include <QUuid>

#include <functional>

namespace
{
// While this is above 0, a lost connection is not reopened. On a new connection the rest of the work would be saved
// without the part that the server rolled back.
thread_local int openTransactions = 0;

QString defaultName() { return QString::fromLatin1(QSqlDatabase::defaultConnection); }

/** After a slow failed connect, skips reconnects for a while, so that statements do not each wait for the timeout. */
class Patience
{
public:
    [[nodiscard]] bool isOver() const { return m_since.isValid() && m_since.elapsed() < rest; }
    void tried(bool opened, qint64 milliseconds)
    {
        // A connection that is refused at once costs no time, so it may be tried again immediately.
        if (opened || milliseconds < slow)
            m_since.invalidate();
        else
            m_since.start();
    }

private:
    static constexpr qint64 slow = 1000;
    static constexpr qint64 rest = 3000;
    QElapsedTimer m_since;
};

thread_local Patience patience;

/** The connection, reopened if it was lost outside a transaction. */
QSqlDatabase opened(const QString& name)
{
    QSqlDatabase database = QSqlDatabase::database(name, false);
    if (database.isOpen() || openTransactions > 0 || patience.isOver())
        return database;
    KorStatementCache::ofThread().connectionLost();
    QElapsedTimer time;
    time.start();
    KorDatabase::open(database);
    patience.tried(database.isOpen(), time.elapsed());
    return database;
}

bool atServer(const QSqlDatabase& database, const std::function<bool()>& call)
{
    bool done = false;
    KorServerCall::run(database.driver(), [&] { done = call(); });
    return done;
}

/** A worker thread's clone of the connection; removed when the thread ends. */
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

bool KorDatabase::open(QSqlDatabase& database)
{
    bool opened = false;
    KorServerCall::run(nullptr, [&] { opened = database.open(); });
    return opened;
}

bool KorDatabase::isInTransaction() { return openTransactions > 0; }

KorTransaction::KorTransaction(const QStringList& locks) : m_database(KorDatabase::current()), m_open(begin(locks))
{
    if (!m_open) {
        // A connection lost since the last statement is only noticed here. Nothing is written yet, so a new one can be
        // used.
        m_database = KorDatabase::current();
        m_open = begin(locks);
    }
    ++openTransactions;
}

bool KorTransaction::begin(const QStringList& locks)
{
    if (locks.isEmpty())
        return atServer(m_database, [this] { return m_database.transaction(); });
    KorQuery query;
    if (!query.send("begin; " + locks.join("; ")))
        return false;
    for (int i = 0; i < locks.size(); ++i) {
        if (!query.nextResult()) {
            // If the connection was lost while waiting, the transaction has not begun.
            if (m_database.isOpen())
                m_refusal = query.failure();
            return m_database.isOpen();
        }
    }
    while (query.next())
        m_found.append(query.value(0));
    return true;
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
    const bool committed = atServer(m_database, [this] { return m_database.commit(); });
    m_unsure = !committed && !m_database.isOpen();
    return committed;
}

bool KorTransaction::rollback()
{
    end();
    return atServer(m_database, [this] { return m_database.rollback(); });
}

QString KorTransaction::failure() const
{
    if (isRefused())
        return m_refusal;
    const QSqlError error = m_database.lastError();
    const KorFailure::Connection connection = m_unsure              ? KorFailure::LostWhileSaving
                                              : m_database.isOpen() ? KorFailure::Kept
                                                                    : KorFailure::Lost;
    return KorFailure::of(connection, error.nativeErrorCode(), error.text(), {}, KorServerCall::lastHolders()).told();
}

void KorTransaction::end()
{
    openTransactions -= m_ended ? 0 : 1;
    m_ended = true;
    m_open = false;
}
