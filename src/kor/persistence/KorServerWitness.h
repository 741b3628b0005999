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
 * A second connection that asks the server, once a second and on a thread of its own, whether it still works on what
 * the first one has asked, and who holds what that waits for.
 */
class KorServerWitness
{
public:
    using Clock = std::chrono::steady_clock;

    /** The witness of this connection, which may be in the middle of a call. */
    explicit KorServerWitness(const pg_conn* connection);
    ~KorServerWitness();
    KorServerWitness(const KorServerWitness&) = delete;
    KorServerWitness& operator=(const KorServerWitness&) = delete;

    /** When the server last said that the statement runs; the witness' own beginning at first. */
    [[nodiscard]] Clock::time_point lastSeenAtWork() const { return m_lastSeen; }
    [[nodiscard]] QString holders() const;

private:
    using Connection = std::unique_ptr<pg_conn, void (*)(pg_conn*)>;

    void watch();
    [[nodiscard]] Connection connect();
    /** False where no answer came. */
    [[nodiscard]] bool ask(pg_conn* connection);
    /** False where the program wants no more answers, or this one takes too long. */
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
