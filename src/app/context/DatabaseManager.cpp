#include "app/context/DatabaseManager.h"

#include "app/context/AppContext.h"
#include "app/context/ConnectionSettings.h"
#include "kor/persistence/KorDatabase.h"
#include "kor/persistence/KorQuery.h"

#include <QDateTime>
#include <QRegularExpression>
#include <QSqlError>
#include <QTimeZone>

namespace
{
/** The workstation's time zone under a name that the server accepts; for an unknown name it refuses the connection. */
QString sessionTimeZone()
{
    // The system can give the zone as the path of a zoneinfo file.
    const QString id = QString::fromLatin1(QTimeZone::systemTimeZoneId()).section("zoneinfo/", -1);
    if (QTimeZone(id.toLatin1()).isValid())
        return id;
    const int offset = QDateTime::currentDateTime().offsetFromUtc();
    // POSIX has the opposite sign: zones east of Greenwich are negative.
    const QString hours = QTime(0, 0).addSecs(qAbs(offset)).toString("HH:mm");
    return offset < 0 ? QString("<-%1>%1").arg(hours) : QString("<+%1>-%1").arg(hours);
}

/** "Till 3, dewi", without characters that have a meaning in the connection options. */
QString nameOf(const QString& userName)
{
    static const QRegularExpression marks("[;'\\\\]");
    const QString station = ConnectionSettings::workstation();
    QString name = userName.isEmpty() ? station : station + ", " + userName;
    return name.remove(marks);
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
    if (m_sessionName.isEmpty())
        m_sessionName = nameOf({});
    m_database.setConnectOptions(connectOptions());
    return KorDatabase::open(m_database);
}

QString DatabaseManager::connectOptions() const
{
    // The session uses the workstation's time zone. Otherwise a bound date-time would be stored in the server's local
    // time, and around midnight on another day. As connection options, all settings also apply after a reconnect. The
    // timeouts make the server end the session of a workstation that froze or died before others give up waiting for
    // its locks.
    const QStringList settings{"TimeZone=" + sessionTimeZone(),
                               "lock_timeout=10s",
                               "idle_in_transaction_session_timeout=8s",
                               "client_connection_check_interval=2s",
                               "tcp_keepalives_idle=5",
                               "tcp_keepalives_interval=2",
                               "tcp_keepalives_count=5",
                               "tcp_user_timeout=15s"};
    // A dead connection is given up after 15 seconds, even while waiting for an answer; the kernel would take a quarter
    // of an hour. A standby server that is not promoted cannot store sales: it is skipped if the host names several
    // servers, and otherwise refused.
    return "connect_timeout=5;tcp_user_timeout=15000;keepalives_idle=5;keepalives_interval=2;keepalives_count=5;"
           "target_session_attrs=read-write;application_name='" +
           m_sessionName + "';options=-c\\ " + settings.join("\\ -c\\ ");
}

void DatabaseManager::tellWho(const QString& userName)
{
    m_sessionName = nameOf(userName);
    if (!m_database.isValid())
        return;
    m_database.setConnectOptions(connectOptions());
    KorQuery query;
    if (m_database.isOpen() && !query.exec("set application_name to '" + m_sessionName + '\''))
        AppContext::log(query.failure());
}

void DatabaseManager::close()
{
    if (!m_database.isOpen() || !m_database.isValid())
        return;
    const QString name = m_database.connectionName();
    m_database.close();
    // No copy of the connection may exist when it is removed.
    m_database = QSqlDatabase();
    QSqlDatabase::removeDatabase(name);
}

QString DatabaseManager::lastErrorText() const { return m_database.lastError().text(); }
