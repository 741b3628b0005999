#pragma once

#include <QString>

#include <functional>

class QSqlDriver;

/** The state of a server call that the program is waiting for. */
struct KorServerWait
{
    /** How long the windows could not repaint freely. */
    qint64 milliseconds;
    /** Who holds the lock that the statement waits for, "Till 3, dewi, since 14:02"; empty if nobody does. */
    QString holders;
    /** False while connecting: the connect timeout ends that. */
    bool mayStop;
};

/** Shows the user that the program waits. Used only on the application's thread. */
class KorServerWatcher
{
public:
    KorServerWatcher() = default;
    virtual ~KorServerWatcher() = default;
    Q_DISABLE_COPY(KorServerWatcher)

    /**
     * Called repeatedly while waiting. It may repaint, but must not run timers or use the database. Returning false
     * stops the waiting.
     */
    [[nodiscard]] virtual bool goOn(const KorServerWait& wait) = 0;
    /** The call has returned or the connection was cut; another call may follow at once. */
    virtual void ended() = 0;
};

/**
 * Runs the driver's blocking calls. On the application's thread a call runs on a helper thread while the application's
 * thread waits: the first second silently (calls in a row are added up), then with the watcher. The connection is cut
 * if no second connection has seen the call at work for fifteen seconds, or if the user stops it; the call then fails
 * like with any lost connection. On any other thread the call runs directly.
 */
class KorServerCall
{
public:
    /** False if another call is running; this one was then not made. */
    static bool run(const QSqlDriver* driver, const std::function<void()>& call);

    /** Borrowed; null removes it. */
    static void setWatcher(KorServerWatcher* watcher);
    /** True while the application's thread waits: code that runs meanwhile must not use the database. */
    [[nodiscard]] static bool isUnderWay();
    /** Who held the lock that the last call waited for; empty if it did not wait. */
    [[nodiscard]] static QString lastHolders();
};
