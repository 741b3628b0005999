#include "kor/persistence/KorConnectionProbe.h"

#include "kor/persistence/KorServerCall.h"

#include <QSqlDatabase>
#include <QThread>
#include <QTimer>
#include <QUuid>

namespace
{
bool canConnect()
{
    const QString name = "probe-" + QUuid::createUuid().toString(QUuid::WithoutBraces);
    bool opened = false;
    {
        QSqlDatabase probe = QSqlDatabase::cloneDatabase(QString::fromLatin1(QSqlDatabase::defaultConnection), name);
        opened = probe.open();
        probe.close();
    }
    QSqlDatabase::removeDatabase(name);
    return opened;
}
} // namespace

KorConnectionProbe::~KorConnectionProbe()
{
    if (m_thread)
        m_thread->wait();
    delete m_thread;
}

void KorConnectionProbe::ask()
{
    if (m_thread)
        return;
    m_thread = QThread::create([this] { m_reachable = canConnect(); });
    connect(m_thread, &QThread::finished, this, &KorConnectionProbe::finish);
    m_thread->start();
}

void KorConnectionProbe::finish()
{
    // The receiver reads from the database, which must not happen while a statement is running.
    if (KorServerCall::isUnderWay()) {
        QTimer::singleShot(0, this, [this] { finish(); });
        return;
    }
    m_thread->wait();
    delete m_thread;
    m_thread = nullptr;
    emit answered(m_reachable);
}
