#pragma once

#include "app/context/ConnectionSettings.h"
#include "shell/database/converter/LegacyRow.h"

#include <QSqlDatabase>
#include <QSqlQuery>

#include <functional>
#include <memory>

/**
 * The database of the former system, which is only read, and a few hundred rows at a time. To be used on the thread
 * that opens it; the connection goes with it.
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
    /** What the database said of the last statement that failed. */
    [[nodiscard]] const QString& failure() const { return m_failure; }

    /** Hands every row over until the function returns false; itself false where the rows could not be read. */
    [[nodiscard]] bool read(const QString& statement, const std::function<bool(const LegacyRow&)>& take);
    /** The rows that belong to a key, within read(); a failure ends the reading. */
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
