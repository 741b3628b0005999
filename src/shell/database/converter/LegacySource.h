#pragma once

#include "app/context/ConnectionSettings.h"
#include "shell/database/converter/LegacyRow.h"

#include <QSqlDatabase>
#include <QSqlQuery>

#include <functional>
#include <memory>

/**
 * The database of the former system, read-only; rows are fetched in batches. Use it only on the thread that opens it.
 * The destructor closes the connection.
 */
class LegacySource
{
public:
    explicit LegacySource(const ConnectionSettings& settings);
    ~LegacySource();
    Q_DISABLE_COPY(LegacySource)

    [[nodiscard]] bool open();
    /** False once the server has ended the connection. */
    [[nodiscard]] bool isOpen() const { return m_database.isOpen(); }
    /** The database's error text of the last failed statement. */
    [[nodiscard]] const QString& failure() const { return m_failure; }

    /** Calls the function for each row until it returns false. False if the rows could not be read. */
    [[nodiscard]] bool read(const QString& statement, const std::function<bool(const LegacyRow&)>& take);
    /** The rows of one key; call it only within read(). After an error, reading stops. */
    [[nodiscard]] QList<LegacyRow> lines(const QString& statement, const QVariant& key);
    [[nodiscard]] bool linesFailed() const { return m_linesFailed; }

private:
    bool run(QSqlQuery& query, const QString& statement);
    bool fetch(const QString& statement, const std::function<bool(const LegacyRow&)>& take);

    ConnectionSettings m_settings;
    QSqlDatabase m_database;
    std::unique_ptr<QSqlQuery> m_lines;
    QString m_linesStatement;
    bool m_linesFailed = false;
    QString m_failure;
};
