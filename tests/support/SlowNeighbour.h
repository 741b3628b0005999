#pragma once

#include "support/TestDatabase.h"

#include <QSqlError>
#include <QSqlQuery>

#include <future>
#include <thread>

/**
 * Another workstation in the middle of a transaction: the constructor returns when its statements are done; a separate
 * thread commits them a moment later.
 */
class SlowNeighbour
{
public:
    SlowNeighbour(const TestDatabase& database, const QStringList& statements)
    {
        std::promise<void> written;
        std::future<void> isWritten = written.get_future();
        m_thread = std::thread([name = database.name(), statements, written = std::move(written)]() mutable {
            const QString connection = "neighbour-" + name;
            {
                QSqlDatabase other = QSqlDatabase::addDatabase("QPSQL", connection);
                other.setHostName(TestDatabase::host());
                other.setPort(TestDatabase::port());
                other.setUserName(TestDatabase::user());
                other.setDatabaseName(name);
                if (!other.open() || !other.transaction())
                    qFatal("neighbour: %s", qPrintable(other.lastError().text()));
                QSqlQuery query(other);
                for (const QString& statement : statements) {
                    if (!query.exec(statement))
                        qFatal("neighbour: %s", qPrintable(query.lastError().text()));
                }
                written.set_value();
                std::this_thread::sleep_for(std::chrono::milliseconds(300));
                other.commit();
            }
            QSqlDatabase::removeDatabase(connection);
        });
        isWritten.wait();
    }
    ~SlowNeighbour() { m_thread.join(); }
    Q_DISABLE_COPY(SlowNeighbour)

private:
    std::thread m_thread;
};
