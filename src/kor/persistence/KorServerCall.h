#pragma once

#include <QString>

#include <functional>

class QSqlDriver;

/** How a call to the server stands that keeps the program waiting. */
struct KorServerWait
{
    /** The waiting since the windows could last be painted freely. */
    qint64 milliseconds;
    /** Who holds what the statement waits for, "Till 3, dewi, since 14:02"; empty where nobody does. */
    QString holders;
    /** False while a connection is being made: its own limits end that. */
    bool mayStop;
};

/** Shows a person that the program waits. The application's thread is its only one. */
class KorServerWatcher
{
public:
    KorServerWatcher() = default;
    virtual ~KorServerWatcher() = default;
    Q_DISABLE_COPY(KorServerWatcher)

    /**
     * Called again and again while the server keeps the program waiting; it may paint, but must run neither timers nor
     * anything that speaks to the database. False stops the waiting.
     */
    [[nodiscard]] virtual bool goOn(const KorServerWait& wait) = 0;
    /** The answer is there, or the connection is cut; the next call may follow at once. */
    virtual void ended() = 0;
};

/**
 * The calls of the driver that wait for the server. On the application's thread they run on a thread beside it, and the
 * application's waits: for a second without a word, calls that follow each other counted together, then with the
 * watcher. A call that another connection no longer sees at work for fifteen seconds, or that the person stops, loses
 * its connection; its failure is then told like that of any lost connection. On any other thread a call runs where it
 * stands.
 */
class KorServerCall
{
public:
    /** False where another call is under way, and this one was not made. */
    static bool run(const QSqlDriver* driver, const std::function<void()>& call);

    /** Borrowed; null takes it away. */
    static void setWatcher(KorServerWatcher* watcher);
    /** True while the application's thread waits: what comes now must not speak to the database. */
    [[nodiscard]] static bool isUnderWay();
    /** Who held what the last call waited for; empty where it did not wait. */
    [[nodiscard]] static QString lastHolders();
};
