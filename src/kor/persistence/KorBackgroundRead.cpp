#include "kor/persistence/KorBackgroundRead.h"

#include "kor/persistence/KorDatabase.h"

#include <QSqlQuery>

KorBackgroundRead::KorBackgroundRead(std::function<void()> read, QObject* parent)
    : QThread(parent), m_read(std::move(read))
{}

KorBackgroundRead::~KorBackgroundRead()
{
    disconnect();
    cancel();
    wait();
    if (m_teller)
        m_teller->wait();
}

void KorBackgroundRead::cancel()
{
    if (m_cancelled.exchange(true) || !isRunning())
        return;
    // Cancelling needs another connection; the window must not wait for that.
    m_teller.reset(QThread::create([this] {
        QSqlQuery query(KorDatabase::current());
        // Repeated, because the statement may not have reached the server yet.
        do {
            if (const int backend = m_backend)
                query.exec(QString("select pg_cancel_backend(%1)").arg(backend));
        } while (!wait(50));
    }));
    m_teller->start();
}

void KorBackgroundRead::run()
{
    {
        // A compiled plan costs a big database more than it saves.
        QSqlQuery session("select pg_backend_pid(), set_config('jit', 'off', false), "
                          "set_config('default_transaction_read_only', 'on', false)",
                          KorDatabase::current());
        if (session.next())
            m_backend = session.value(0).toInt();
    }
    if (!m_cancelled)
        m_read();
    m_backend = 0;
}
