#include "support/WholeDatabase.h"

#include "support/LedgerRows.h"
#include "support/SalesRows.h"
#include "support/ShopRows.h"
#include "support/TestCluster.h"
#include "support/TestDatabase.h"

#include <QSqlError>
#include <QSqlQuery>

namespace
{
QStringList column(const QSqlDatabase& database, const QString& statement)
{
    QSqlQuery query(database);
    if (!query.exec(statement))
        qFatal("%s: %s", qPrintable(statement), qPrintable(query.lastError().text()));
    QStringList values;
    while (query.next())
        values.append(query.value(0).toString());
    return values;
}
} // namespace

void fillEveryTable(TestDatabase& database)
{
    insertShop(database);
    insertSeller(database, 7, "Ann");
    for (const char* kind : {"TRD", "TRF", "TRP"})
        insertSale(database, {kind, kind});
    insertLedgerYears(database, 1, 5, 2);
    QString bytes;
    for (int byte = 0; byte < 256; ++byte)
        bytes += QString("%1").arg(byte, 2, 16, QChar('0'));
    database.run("INSERT INTO images (image_name, image_data, version) VALUES ('every byte', '\\x" + bytes + "', 1)");
    database.run(QString::fromUtf8("INSERT INTO member (kode, nama, alamat, telp, discount_percentage, version) "
                                   "VALUES ('O''Brien', 'Zoë \"日本\"', E'first\\nsecond\\tline\\\\', '', 5, 1)"));
    database.run("INSERT INTO entities_history (class_name, data_json, item_id, operation_id, sha1_hash, user_id, "
                 "version_id) VALUES ('EntityMeja', '{\"kode\":\"T1\"}', 1, 1, '', 1, 1)");
    insertRows(database, "stock_take", "source_acct_code='1-100'");
    // Tables that are still empty get one neutral row.
    const QMap<QString, QStringList> tables = allRows(database.name());
    for (auto table = tables.cbegin(); table != tables.cend(); ++table) {
        if (table->isEmpty())
            insertRows(database, table.key(), "");
    }
}

QMap<QString, QStringList> allRows(const QString& databaseName)
{
    const QString name = "whole database";
    QMap<QString, QStringList> rows;
    {
        QSqlDatabase database = QSqlDatabase::addDatabase("QPSQL", name);
        database.setHostName(TestDatabase::host());
        database.setPort(TestDatabase::port());
        database.setUserName(TestDatabase::user());
        database.setDatabaseName(databaseName);
        if (!database.open())
            qFatal("%s: %s", qPrintable(databaseName), qPrintable(database.lastError().text()));
        for (const QString& table : column(database, "SELECT tablename FROM pg_tables WHERE schemaname = 'public'"))
            rows[table] = column(database, "SELECT t::text FROM " + table + " t ORDER BY 1");
        for (const QString& sequence :
             column(database, "SELECT sequencename FROM pg_sequences WHERE schemaname = 'public'"))
            rows[sequence] = column(database, "SELECT last_value::text || is_called FROM " + sequence);
    }
    QSqlDatabase::removeDatabase(name);
    return rows;
}

QString schemaOf(const QString& databaseName)
{
    QString quoted = databaseName;
    quoted.replace('\\', "\\\\").replace('\'', "\\'");
    QProcess dump;
    dump.start("pg_dump", {"-h", TestDatabase::host(), "-p", QString::number(TestDatabase::port()), "-U",
                           TestDatabase::user(), "--schema-only", "dbname='" + quoted + "'"});
    if (!dump.waitForFinished() || dump.exitCode() != 0)
        qFatal("%s: %s", qPrintable(databaseName), dump.readAllStandardError().constData());
    QStringList lines = QString::fromUtf8(dump.readAllStandardOutput()).split('\n');
    // Two lines contain a random word.
    lines.erase(std::remove_if(lines.begin(), lines.end(), [](const QString& line) { return line.startsWith('\\'); }),
                lines.end());
    return lines.join('\n');
}
