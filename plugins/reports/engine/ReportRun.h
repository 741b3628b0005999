#pragma once

#include "reports/engine/ReportTable.h"

#include <QThread>

#include <atomic>
#include <memory>

/** The database that the reports are read from, as the program told it. */
struct ReportConnection
{
    QString host;
    int port = 0;
    QString database;
    QString user;
    QString password;
};

/** A statement with the values of its names. */
struct ReportStatement
{
    QString text;
    QVariantMap values;
};

/**
 * Reads statements one after the other on a thread and a connection of its own, which may only read. The rows arrive
 * in batches while the server is still sending. Destroying a run cancels it and waits for its end.
 */
class ReportRun final : public QThread
{
    Q_OBJECT

public:
    /** More rows than anybody reads, and still within the memory of a workstation. */
    static constexpr int maximalRows = 200000;

    ReportRun(ReportConnection connection, QList<ReportStatement> statements, QObject* parent = nullptr);
    ~ReportRun() override;

    /** Ends the statement on the server too; failed() is not told then, stopped() is. */
    void cancel();

signals:
    void fields(int statement, const QStringList& names);
    void rows(int statement, const QVector<ReportRow>& rows);
    /** All statements have been read; cut off tells that one gave more than maximalRows. */
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
    // Tells the server of the cancelling.
    std::unique_ptr<QThread> m_teller;
};
