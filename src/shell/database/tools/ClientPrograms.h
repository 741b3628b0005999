#pragma once

#include <QStringList>

struct ConnectionSettings;

/** One call of a PostgreSQL client program. The password is never passed as an argument. */
struct ClientCommand
{
    /** The name without the path, such as "pg_dump". */
    QString name;
    QStringList arguments;
    QString password;
};

/**
 * Finds PostgreSQL's client programs and builds their command lines. They are searched in the folder of ZAVEL_PG_BIN,
 * then in PATH, then in Debian's version folders, newest first.
 */
namespace ClientPrograms
{
/** The folder of this program; empty if not found. */
[[nodiscard]] QString folder(const QString& name);
/** The full path of the program; only its name if not found, so that starting it fails with an error. */
[[nodiscard]] QString path(const QString& name);

// Relative files are resolved against the program's working directory, since the tool runs in another one.
[[nodiscard]] ClientCommand backup(const ConnectionSettings& connection, const QString& outputFile);
[[nodiscard]] ClientCommand createDatabase(const ConnectionSettings& connection);
[[nodiscard]] ClientCommand restore(const ConnectionSettings& connection, const QString& inputFile);
[[nodiscard]] ClientCommand vacuum(const ConnectionSettings& connection);
[[nodiscard]] ClientCommand reindex(const ConnectionSettings& connection);
/** Prints the statement's values, one row per line. */
[[nodiscard]] ClientCommand query(const ConnectionSettings& connection, const QString& statement);
/** Prints the table of contents of a backup; fails if the file is not a backup. */
[[nodiscard]] ClientCommand contents(const QString& inputFile);
} // namespace ClientPrograms
