#pragma once

#include <QStringList>

struct ConnectionSettings;

/** One call of a program that comes with PostgreSQL; the password never stands among the arguments. */
struct ClientCommand
{
    /** The bare name, "pg_dump" for one. */
    QString name;
    QStringList arguments;
    QString password;
};

/**
 * The programs that come with PostgreSQL, and what the maintenance screens call them with. They are looked for in the
 * folder that ZAVEL_PG_BIN names, then in the PATH, then where Debian keeps the versions, the newest first.
 */
namespace ClientPrograms
{
/** The folder of that program; empty where there is none. */
[[nodiscard]] QString folder(const QString& name);
/** The program with its folder; without one where it was not found, so that starting it fails with the reason. */
[[nodiscard]] QString path(const QString& name);

// A file that is not absolute is taken from the program's own folder, since the tool runs in another one.
[[nodiscard]] ClientCommand backup(const ConnectionSettings& connection, const QString& outputFile);
[[nodiscard]] ClientCommand createDatabase(const ConnectionSettings& connection);
[[nodiscard]] ClientCommand restore(const ConnectionSettings& connection, const QString& inputFile);
[[nodiscard]] ClientCommand vacuum(const ConnectionSettings& connection);
[[nodiscard]] ClientCommand reindex(const ConnectionSettings& connection);
/** Writes the statement's values, one row a line. */
[[nodiscard]] ClientCommand query(const ConnectionSettings& connection, const QString& statement);
/** Writes the table of contents of a backup, and fails on what is none. */
[[nodiscard]] ClientCommand contents(const QString& inputFile);
} // namespace ClientPrograms
