#include "app/context/DatabaseManager.h"

#include <QDateTime>
#include <QSqlError>
#include <QTimeZone>

namespace
{
/** The workstation's time zone by a name that the server knows too; it would refuse the connection for another one. */
QString sessionTimeZone()
{
    // A file of the system's zones is a way to tell it as well.
    const QString id = QString::fromLatin1(QTimeZone::systemTimeZoneId()).section("zoneinfo/", -1);
    if (QTimeZone(id.toLatin1()).isValid())
        return id;
    const int offset = QDateTime::currentDateTime().offsetFromUtc();
    // As POSIX writes it: what is east of Greenwich is behind it.
    const QString hours = QTime(0, 0).addSecs(qAbs(offset)).toString("HH:mm");
    return offset < 0 ? QString("<-%1>%1").arg(hours) : QString("<+%1>-%1").arg(hours);
}
} // namespace

DatabaseManager::DatabaseManager(QObject* parent) : QObject(parent) {}

DatabaseManager::~DatabaseManager() = default;

bool DatabaseManager::open(const QString& host, const QString& databaseName, const QString& userName,
                           const QString& password, int port)
{
    const QString name = QString::fromLatin1(QSqlDatabase::defaultConnection);
    if (QSqlDatabase::contains(name)) {
        m_database = QSqlDatabase();
        QSqlDatabase::database(name, false).close();
        QSqlDatabase::removeDatabase(name);
    }
    m_database = QSqlDatabase::addDatabase("QPSQL");
    m_database.setDatabaseName(databaseName);
    m_database.setHostName(host);
    m_database.setUserName(userName);
    m_database.setPassword(password);
    m_database.setPort(port);
    // The session takes the workstation's time zone: a time stamp bound as a date-time would otherwise be stored as
    // the server's wall clock, and so on another day around midnight. As an option it also holds after a reconnect.
    // A server that stops answering is given up after ten seconds instead of the kernel's quarter of an hour, also
    // while nothing but its answer is awaited. A standby that has not been promoted can not be sold on: it is passed
    // over where the host names several servers, and refused otherwise.
    m_database.setConnectOptions("connect_timeout=5;tcp_user_timeout=10000;keepalives_idle=5;keepalives_interval=2;"
                                 "target_session_attrs=read-write;options=-c\\ TimeZone=" +
                                 sessionTimeZone());
    return m_database.open();
}

void DatabaseManager::close()
{
    if (!m_database.isOpen() || !m_database.isValid())
        return;
    const QString name = m_database.connectionName();
    m_database.close();
    // No copy may be alive when the connection is taken out.
    m_database = QSqlDatabase();
    QSqlDatabase::removeDatabase(name);
}

QString DatabaseManager::lastErrorText() const { return m_database.lastError().text(); }
