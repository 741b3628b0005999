#include "reports/engine/ReportRun.h"

#include "kor/system/KorFailure.h"

#include <QRegularExpression>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QTimeZone>
#include <QUuid>

namespace
{
/** The error on one line: a plain explanation first, without the part of the statement that the server quotes. */
QString told(const QSqlError& error, const QSqlDatabase& database)
{
    const KorFailure::Connection connection = database.isOpen() ? KorFailure::Kept : KorFailure::Lost;
    const QString whole = KorFailure::of(connection, error.nativeErrorCode(), error.text(), {}).told();
    return KorToldFailure::in(whole).text().simplified();
}

constexpr int batchSize = 2000;

QString newName() { return "report-" + QUuid::createUuid().toString(QUuid::WithoutBraces); }

/** A connection for the calling thread, closed by the destructor; its queries must be destroyed before. */
class OwnConnection
{
public:
    explicit OwnConnection(const ReportConnection& to) : m_name(newName())
    {
        QSqlDatabase database = QSqlDatabase::addDatabase("QPSQL", m_name);
        database.setHostName(to.host);
        database.setPort(to.port);
        database.setDatabaseName(to.database);
        database.setUserName(to.user);
        database.setPassword(to.password);
        // Few parallel workers, so that a report does not slow down the tills; enough memory for sums over years; no
        // compiled plans, which take longer to make than they save; read-only.
        database.setConnectOptions(
            "connect_timeout=5;tcp_user_timeout=10000;application_name=zavelpos-reports;"
            "options=-c\\ default_transaction_read_only=on\\ "
            "-c\\ max_parallel_workers_per_gather=1\\ -c\\ work_mem=64MB\\ -c\\ jit=off\\ -c\\ TimeZone=" +
            QString::fromLatin1(QTimeZone::systemTimeZoneId()));
        database.open();
    }
    ~OwnConnection()
    {
        QSqlDatabase::database(m_name, false).close();
        QSqlDatabase::removeDatabase(m_name);
    }
    Q_DISABLE_COPY(OwnConnection)

    [[nodiscard]] QSqlDatabase database() const { return QSqlDatabase::database(m_name, false); }

private:
    QString m_name;
};

bool uses(const QString& text, const QString& name)
{
    return text.contains(QRegularExpression("(?<!:):" + QRegularExpression::escape(name) + "\\b"));
}
} // namespace

ReportRun::ReportRun(ReportConnection connection, QList<ReportStatement> statements, QObject* parent)
    : QThread(parent), m_connection(std::move(connection)), m_statements(std::move(statements))
{
    qRegisterMetaType<QVector<ReportRow>>("QVector<ReportRow>");
}

ReportRun::~ReportRun()
{
    disconnect();
    cancel();
    wait();
    if (m_teller)
        m_teller->wait();
}

void ReportRun::cancel()
{
    if (m_cancelled.exchange(true) || !isRunning())
        return;
    // Cancelling needs another connection; the window must not wait for that.
    m_teller.reset(QThread::create([to = m_connection, backend = m_backend.load()] {
        if (backend == 0)
            return;
        const OwnConnection connection(to);
        QSqlQuery query(connection.database());
        query.exec(QString("select pg_cancel_backend(%1)").arg(backend));
    }));
    m_teller->start();
}

void ReportRun::run()
{
    QString error;
    bool cutOff = false;
    {
        const OwnConnection connection(m_connection);
        const QSqlDatabase database = connection.database();
        m_name = database.connectionName();
        if (!database.isOpen())
            error = told(database.lastError(), database);
        if (error.isEmpty()) {
            QSqlQuery query("select pg_backend_pid()", database);
            if (query.next())
                m_backend = query.value(0).toInt();
        }
        for (int i = 0; i < m_statements.size() && error.isEmpty() && !m_cancelled; ++i) {
            if (!read(i, &error, &cutOff))
                break;
        }
        m_backend = 0;
    }
    if (m_cancelled)
        emit stopped();
    else if (!error.isEmpty())
        emit failed(error);
    else
        emit done(cutOff);
}

bool ReportRun::read(int index, QString* error, bool* cutOff)
{
    const ReportStatement& statement = m_statements.at(index);
    QSqlQuery query(QSqlDatabase::database(m_name, false));
    // Fetch rows as they arrive, instead of storing all in the driver first.
    query.setForwardOnly(true);
    bool good = query.prepare(statement.text);
    for (auto value = statement.values.cbegin(); good && value != statement.values.cend(); ++value) {
        if (uses(statement.text, value.key()))
            query.bindValue(':' + value.key(), value.value());
    }
    good = good && query.exec();
    if (!good) {
        *error = told(query.lastError(), QSqlDatabase::database(m_name, false));
        return false;
    }
    QStringList names;
    const QSqlRecord record = query.record();
    for (int i = 0; i < record.count(); ++i)
        names.append(record.fieldName(i));
    emit fields(index, names);

    QVector<ReportRow> batch;
    int count = 0;
    while (!m_cancelled && query.next()) {
        if (++count > maximalRows) {
            *cutOff = true;
            break;
        }
        ReportRow row(names.size());
        for (int i = 0; i < names.size(); ++i)
            row[i] = query.value(i);
        batch.append(row);
        if (batch.size() == batchSize) {
            emit rows(index, batch);
            batch.clear();
        }
    }
    if (!m_cancelled && query.lastError().isValid()) {
        *error = told(query.lastError(), QSqlDatabase::database(m_name, false));
        return false;
    }
    if (!batch.isEmpty())
        emit rows(index, batch);
    return true;
}
