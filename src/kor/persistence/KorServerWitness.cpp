#include "kor/persistence/KorServerWitness.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QMap>
#include <QStringList>

#include <libpq-fe.h>
#include <poll.h>

namespace
{
using namespace std::chrono_literals;

constexpr auto answerTime = 5s;
constexpr auto betweenQuestions = 500ms;
/** How often the thread checks whether it should end. */
constexpr auto slice = 50ms;

using Result = std::unique_ptr<PGresult, void (*)(PGresult*)>;

/** The address and user of the connection, in libpq's format. */
QByteArray addressOf(const PGconn* connection)
{
    QMap<QByteArray, QByteArray> values;
    PQconninfoOption* options = PQconninfo(const_cast<PGconn*>(connection));
    for (const PQconninfoOption* option = options; option && option->keyword; ++option) {
        if (option->val && *option->val)
            values.insert(option->keyword, option->val);
    }
    PQconninfoFree(options);
    // Of several servers, the one that the program is connected to; by IP address, since name resolution may be slow.
    values["host"] = PQhost(connection);
    values["port"] = PQport(connection);
    const QByteArray number = PQhostaddr(connection);
    if (!number.isEmpty())
        values["hostaddr"] = number;
    for (const char* unwanted : {"options", "target_session_attrs"})
        values.remove(unwanted);
    values["application_name"] = "witness";
    QByteArray address;
    for (auto value = values.cbegin(); value != values.cend(); ++value) {
        QByteArray quoted = value.value();
        quoted.replace('\\', "\\\\").replace('\'', "\\'");
        address += value.key() + "='" + quoted + "' ";
    }
    return address;
}

/** A query with a row per holder; one row of NULLs without holders, no row if the session is not running. */
QByteArray questionAbout(int session)
{
    return "select holder.application_name, extract(epoch from holder.xact_start)::bigint from pg_stat_activity mine "
           "left join pg_stat_activity holder on holder.pid = any(pg_blocking_pids(mine.pid)) "
           "where mine.state = 'active' and mine.pid = " +
           QByteArray::number(session);
}

QString holderIn(const PGresult* row, int number)
{
    if (PQgetisnull(row, number, 0))
        return {};
    const QString name = QString::fromUtf8(PQgetvalue(row, number, 0));
    const QString shown = name.isEmpty() ? QCoreApplication::translate("KorServerWitness", "Another program") : name;
    if (PQgetisnull(row, number, 1))
        return shown;
    const QDateTime since = QDateTime::fromSecsSinceEpoch(QByteArray(PQgetvalue(row, number, 1)).toLongLong());
    return QCoreApplication::translate("KorServerWitness", "%1, since %2").arg(shown, since.toString("HH:mm"));
}
} // namespace

KorServerWitness::KorServerWitness(const pg_conn* connection)
    : m_address(addressOf(connection)), m_question(questionAbout(PQbackendPID(connection))), m_lastSeen(Clock::now()),
      m_thread([this] { watch(); })
{}

KorServerWitness::~KorServerWitness()
{
    m_ended = true;
    m_thread.join();
}

QString KorServerWitness::holders() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_holders;
}

void KorServerWitness::watch()
{
    Connection connection(nullptr, PQfinish);
    while (!m_ended) {
        if (!connection)
            connection = connect();
        // A connection whose query was not finished cannot be used again.
        if (connection && !ask(connection.get()))
            connection.reset();
        pause();
    }
}

void KorServerWitness::pause() const
{
    for (const auto end = Clock::now() + betweenQuestions; !m_ended && Clock::now() < end;)
        std::this_thread::sleep_for(slice);
}

KorServerWitness::Connection KorServerWitness::connect()
{
    Connection connection(PQconnectStart(m_address.constData()), PQfinish);
    const auto limit = Clock::now() + answerTime;
    PostgresPollingStatusType step = PGRES_POLLING_WRITING;
    while (step != PGRES_POLLING_OK) {
        const bool failed = step == PGRES_POLLING_FAILED || PQstatus(connection.get()) == CONNECTION_BAD;
        // A FATAL error (too many connections) also shows that the server is alive.
        if (failed && QByteArray(PQerrorMessage(connection.get())).contains("FATAL"))
            m_lastSeen = Clock::now();
        if (failed || !waitFor(connection.get(), step == PGRES_POLLING_READING ? POLLIN : POLLOUT, limit))
            return {nullptr, PQfinish};
        step = PQconnectPoll(connection.get());
    }
    return connection;
}

bool KorServerWitness::waitFor(const pg_conn* connection, short events, Clock::time_point limit) const
{
    while (!m_ended && Clock::now() < limit) {
        pollfd socket{PQsocket(connection), events, 0};
        if (poll(&socket, 1, static_cast<int>(std::chrono::milliseconds(slice).count())) > 0)
            return true;
    }
    return false;
}

bool KorServerWitness::ask(pg_conn* connection)
{
    const auto limit = Clock::now() + answerTime;
    QStringList holders;
    bool atWork = false;
    bool answered = PQsendQuery(connection, m_question.constData()) != 0;
    while (answered) {
        while (answered && PQisBusy(connection))
            answered = waitFor(connection, POLLIN, limit) && PQconsumeInput(connection);
        const Result result(answered ? PQgetResult(connection) : nullptr, PQclear);
        if (!result)
            break;
        atWork = PQntuples(result.get()) > 0;
        for (int i = 0; i < PQntuples(result.get()); ++i)
            holders.append(holderIn(result.get(), i));
    }
    if (!answered)
        return false;
    if (atWork)
        m_lastSeen = Clock::now();
    holders.removeAll(QString());
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_holders = holders.join("; ");
    return true;
}
