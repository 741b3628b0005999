#pragma once

#include <QObject>

class QThread;

/**
 * Checks on a worker thread whether the server accepts connections, so that a server that does not answer blocks no
 * window. It opens a connection with the program's settings and closes it again.
 */
class KorConnectionProbe final : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;
    /** Waits for a running check, at most for the connection timeout. */
    ~KorConnectionProbe() override;

    /** Starts a check unless one is running. */
    void ask();

signals:
    void answered(bool reachable);

private:
    void finish();

    QThread* m_thread = nullptr;
    // Written by the worker thread, read after it has ended.
    bool m_reachable = false;
};
