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

/** "Till 3, dewi", without the marks that mean something among the connection's options. */
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
    // The session takes the workstation's time zone: a time stamp bound as a date-time would otherwise be stored as
    // the server's wall clock, and so on another day around midnight. As options, all of this holds after a reconnect
    // too. What the server is told lets a workstation that has stopped, or died, go before the others have waited in
    // vain for what it holds.
    const QStringList settings{"TimeZone=" + sessionTimeZone(),
                               "lock_timeout=10s",
                               "idle_in_transaction_session_timeout=8s",
                               "client_connection_check_interval=2s",
                               "tcp_keepalives_idle=5",
                               "tcp_keepalives_interval=2",
                               "tcp_keepalives_count=5",
                               "tcp_user_timeout=15s"};
    // A line that is dead is given up after fifteen seconds instead of the kernel's quarter of an hour, also while
    // nothing but an answer is awaited. A standby that has not been promoted can not be sold on: it is passed over
    // where the host names several servers, and refused otherwise.
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
    // No copy may be alive when the connection is taken out.
    m_database = QSqlDatabase();
    QSqlDatabase::removeDatabase(name);
}

QString DatabaseManager::lastErrorText() const { return m_database.lastError().text(); }
