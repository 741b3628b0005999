#pragma once

#include <QObject>

class QThread;

/**
 * Asks on a thread of its own whether the server would let the program in, so that a server that does not answer holds
 * up no screen. It opens a connection like the program's and closes it again.
 */
class KorConnectionProbe final : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;
    /** Waits for a question that is on its way: at most as long as the connection's own time limit. */
    ~KorConnectionProbe() override;

    /** Asks, unless a question is on its way already. */
    void ask();

signals:
    void answered(bool reachable);

private:
    void finish();

    QThread* m_thread = nullptr;
    // Written by the thread, read after its end.
    bool m_reachable = false;
};
