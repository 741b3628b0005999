#pragma once

#include "reports/engine/ReportTable.h"

#include <QThread>

#include <atomic>
#include <memory>

/** The database connection for the reports, as set by the program. */
struct ReportConnection
{
    QString host;
    int port = 0;
    QString database;
    QString user;
    QString password;
};

/** A statement with the values of its placeholders. */
struct ReportStatement
{
    QString text;
    QVariantMap values;
};

/**
 * Runs statements one after the other on a separate thread and a read-only connection. Rows are emitted in batches
 * while the server still sends. The destructor cancels the run and waits for its end.
 */
class ReportRun final : public QThread
{
    Q_OBJECT

public:
    /** More rows than anybody reads, but few enough for the memory of a workstation. */
    static constexpr int maximalRows = 200000;

    ReportRun(ReportConnection connection, QList<ReportStatement> statements, QObject* parent = nullptr);
    ~ReportRun() override;

    /** Cancels the statement on the server too; stopped() is emitted then instead of failed(). */
    void cancel();

signals:
    void fields(int statement, const QStringList& names);
    void rows(int statement, const QVector<ReportRow>& rows);
    /** All statements are done; cutOff if one returned more than maximalRows. */
    void done(bool cutOff);
    void failed(const QString& reason);
    void stopped();

protected:
    void run() override;

private:
    [[nodiscard]] bool read(int index, QString* error, bool* cutOff);

    const ReportConnection m_connection;
    const QList<ReportStatement> m_statements;
    std::atomic_bool m_cancelled{false};
    std::atomic_int m_backend{0};
    QString m_name;
    // Cancels the statement on the server.
    std::unique_ptr<QThread> m_teller;
};
