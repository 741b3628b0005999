#pragma once

#include <QByteArray>
#include <QString>

#include <atomic>
#include <chrono>
#include <memory>
#include <mutex>
#include <thread>

struct pg_conn;

/**
 * A second connection that checks, every half second on its own thread, whether the server still works on the first
 * connection's statement, and who holds the locks that it waits for.
 */
class KorServerWitness
{
public:
    using Clock = std::chrono::steady_clock;

    /** Watches this connection, which may be in the middle of a call. */
    explicit KorServerWitness(const pg_conn* connection);
    ~KorServerWitness();
    KorServerWitness(const KorServerWitness&) = delete;
    KorServerWitness& operator=(const KorServerWitness&) = delete;

    /** When the server last confirmed that the statement runs; initially the time of construction. */
    [[nodiscard]] Clock::time_point lastSeenAtWork() const { return m_lastSeen; }
    [[nodiscard]] QString holders() const;

private:
    using Connection = std::unique_ptr<pg_conn, void (*)(pg_conn*)>;

    void watch();
    [[nodiscard]] Connection connect();
    /** False if no answer came. */
    [[nodiscard]] bool ask(pg_conn* connection);
    /** False if the program stopped waiting or the time limit has passed. */
    [[nodiscard]] bool waitFor(const pg_conn* connection, short events, Clock::time_point limit) const;
    void pause() const;

    QByteArray m_address;
    QByteArray m_question;
    std::atomic<Clock::time_point> m_lastSeen;
    std::atomic<bool> m_ended{false};
    mutable std::mutex m_mutex;
    QString m_holders;
    std::thread m_thread;
};
