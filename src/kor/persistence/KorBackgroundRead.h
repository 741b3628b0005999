#pragma once

#include <QThread>

#include <atomic>
#include <functional>
#include <memory>

/**
 * A long read on a thread and a read-only connection of its own, while the windows go on. The function must not touch
 * widgets, records or services' errors. finished() is emitted also after cancel(). The destructor cancels and waits.
 */
class KorBackgroundRead final : public QThread
{
    Q_OBJECT

public:
    explicit KorBackgroundRead(std::function<void()> read, QObject* parent = nullptr);
    ~KorBackgroundRead() override;

    /** Cancels the statement on the server too; the function then sees it fail. Returns at once. */
    void cancel();

protected:
    void run() override;

private:
    std::function<void()> m_read;
    std::atomic_bool m_cancelled{false};
    // The server's process; 0 while there is no statement to cancel.
    std::atomic_int m_backend{0};
    // Cancels the statement on the server.
    std::unique_ptr<QThread> m_teller;
};
