#include "kor/persistence/KorServerCall.h"

#include "kor/persistence/KorDatabase.h"
#include "kor/persistence/KorServerWitness.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QDebug>
#include <QElapsedTimer>
#include <QPointer>
#include <QSemaphore>
#include <QSqlDriver>
#include <QVariant>

#include <fcntl.h>
#include <libpq-fe.h>
#include <sys/socket.h>
#include <unistd.h>

#include <memory>
#include <thread>

namespace
{
using namespace std::chrono_literals;
using Clock = KorServerWitness::Clock;

constexpr int unsaidMilliseconds = 1000;
constexpr int stepMilliseconds = 40;
/** Longer than a short network interruption; while the server works the witness sees it every half second. */
constexpr auto silenceThatCuts = 15s;

KorServerWatcher* watcher = nullptr;
QString holdersOfLast;

/** A thread that runs the driver's blocking calls for the application's thread. */
class Caller
{
public:
    static Caller& instance()
    {
        static Caller caller;
        return caller;
    }

    void start(const std::function<void()>& call)
    {
        if (!m_thread.joinable()) {
            m_ended = false;
            m_thread = std::thread([this] { work(); });
            qAddPostRoutine([] { instance().end(); });
        }
        m_call = &call;
        m_begin.release();
    }
    bool isDone(int milliseconds) { return m_done.tryAcquire(1, milliseconds); }

private:
    Caller() = default;
    ~Caller() { end(); }
    Q_DISABLE_COPY(Caller)

    void work()
    {
        for (;;) {
            m_begin.acquire();
            if (m_ended)
                return;
            (*m_call)();
            m_done.release();
        }
    }

    void end()
    {
        if (!m_thread.joinable())
            return;
        m_ended = true;
        m_begin.release();
        m_thread.join();
    }

    QSemaphore m_begin;
    QSemaphore m_done;
    const std::function<void()>* m_call = nullptr;
    bool m_ended = false;
    std::thread m_thread;
};

PGconn* connectionOf(const QSqlDriver* driver)
{
    const QVariant handle = driver && driver->isOpen() ? driver->handle() : QVariant();
    return qstrcmp(handle.typeName(), "PGconn*") == 0 ? *static_cast<PGconn* const*>(handle.constData()) : nullptr;
}

/**
 * A duplicate of the connection's socket descriptor. The driver may close its own while we shut it down, and the number
 * could then belong to another file.
 */
class Line
{
public:
    explicit Line(const PGconn* connection)
        : m_socket(connection ? fcntl(PQsocket(connection), F_DUPFD_CLOEXEC, 0) : -1)
    {}
    ~Line()
    {
        if (m_socket >= 0)
            close(m_socket);
    }
    Q_DISABLE_COPY(Line)

    void cut() const
    {
        if (m_socket >= 0)
            shutdown(m_socket, SHUT_RDWR);
    }

private:
    int m_socket;
};

/** Adds up the time that windows could not repaint: calls in a row look like one wait to the user. */
class Stretch : public QObject
{
public:
    static Stretch& instance()
    {
        static QPointer<Stretch> stretch;
        if (!stretch)
            stretch = new Stretch;
        return *stretch;
    }

    /** The milliseconds of the calls before this one. */
    [[nodiscard]] qint64 callBegins()
    {
        if (m_turned)
            m_waited = 0;
        m_turned = false;
        return m_waited;
    }
    void callEnds(qint64 milliseconds) { m_waited += milliseconds; }

private:
    Stretch() : QObject(QCoreApplication::instance())
    {
        const QAbstractEventDispatcher* loop = QAbstractEventDispatcher::instance();
        for (const auto turn : {&QAbstractEventDispatcher::aboutToBlock, &QAbstractEventDispatcher::awake})
            connect(loop, turn, this, [this] { m_turned = m_turned || !KorServerCall::isUnderWay(); });
    }

    qint64 m_waited = 0;
    bool m_turned = false;
};

/** One call for which the application's thread waits. */
class Waiting
{
public:
    Waiting(Caller& caller, const PGconn* connection)
        : m_caller(caller), m_connection(connection), m_line(connection), m_before(Stretch::instance().callBegins())
    {
        m_clock.start();
    }
    ~Waiting() { Stretch::instance().callEnds(m_clock.elapsed()); }
    Q_DISABLE_COPY(Waiting)

    void run(const std::function<void()>& call)
    {
        if (m_before > unsaidMilliseconds)
            show();
        m_caller.start(call);
        if (!m_caller.isDone(static_cast<int>(qMax<qint64>(stepMilliseconds, unsaidMilliseconds - m_before)))) {
            while (!m_caller.isDone(stepMilliseconds))
                step();
        }
        if (m_clock.elapsed() > unsaidMilliseconds)
            qWarning() << "Waited for the server" << m_clock.elapsed() << "ms.";
        if (m_shown)
            watcher->ended();
    }

private:
    /** False if the user wants to stop waiting. */
    bool show()
    {
        m_shown = watcher != nullptr;
        const bool mayStop = m_connection && !m_cut;
        return !watcher || watcher->goOn({m_before + m_clock.elapsed(), holdersOfLast, mayStop});
    }

    void step()
    {
        if (m_connection && !m_witness && m_clock.elapsed() > unsaidMilliseconds)
            m_witness = std::make_unique<KorServerWitness>(m_connection);
        if (m_witness)
            holdersOfLast = m_witness->holders();
        const bool stopped = !show();
        const bool isSilent = m_witness && Clock::now() - m_witness->lastSeenAtWork() > silenceThatCuts;
        if (m_cut || !m_connection || (!stopped && !isSilent))
            return;
        qWarning() << (stopped ? "Stopped waiting for the server after" : "The server was silent; waited")
                   << m_clock.elapsed() << "ms. The connection is cut.";
        m_cut = true;
        m_line.cut();
    }

    Caller& m_caller;
    const PGconn* m_connection;
    const Line m_line;
    const qint64 m_before;
    QElapsedTimer m_clock;
    std::unique_ptr<KorServerWitness> m_witness;
    bool m_cut = false;
    bool m_shown = false;
};

bool underWay = false;
} // namespace

bool KorServerCall::run(const QSqlDriver* driver, const std::function<void()>& call)
{
    if (!KorDatabase::isApplicationThread() || !QCoreApplication::instance()) {
        call();
        return true;
    }
    if (underWay) {
        qCritical() << "A statement in the middle of another one is refused.";
        return false;
    }
    holdersOfLast.clear();
    underWay = true;
    Waiting(Caller::instance(), connectionOf(driver)).run(call);
    underWay = false;
    return true;
}

void KorServerCall::setWatcher(KorServerWatcher* newWatcher) { watcher = newWatcher; }

bool KorServerCall::isUnderWay() { return underWay; }

QString KorServerCall::lastHolders() { return holdersOfLast; }
