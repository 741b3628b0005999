#include "shell/database/tools/ClientPrograms.h"

#include "app/context/ConnectionSettings.h"

#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QVersionNumber>

#include <algorithm>

namespace
{
QStringList versionFolders()
{
    const QDir versions("/usr/lib/postgresql");
    QStringList names = versions.entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    std::sort(names.begin(), names.end(), [](const QString& left, const QString& right) {
        return QVersionNumber::fromString(left) > QVersionNumber::fromString(right);
    });
    QStringList folders;
    for (const QString& name : names)
        folders.append(versions.filePath(name + "/bin"));
    return folders;
}

/** Only versions before 9.5 accept the option that ignores a version mismatch; later ones fail on it. */
QStringList ignoreVersion(const QString& name)
{
    QProcess process;
    process.start(ClientPrograms::path(name), {"--version"}, QIODevice::ReadOnly);
    process.waitForFinished(5000);
    const QRegularExpressionMatch match =
        QRegularExpression(R"((\d+(\.\d+)*))").match(QString::fromLocal8Bit(process.readAllStandardOutput()));
    if (!match.hasMatch() || QVersionNumber::fromString(match.captured(1)) >= QVersionNumber(9, 5))
        return {};
    return {"-i"};
}

QStringList server(const ConnectionSettings& connection)
{
    return {"-h", connection.host, "-p", QString::number(connection.port), "-U", connection.user};
}

/** The database name, escaped so that it is not read as connection parameters, a URI or an option. */
QString databaseName(const QString& name)
{
    if (!name.contains('=') && !name.startsWith('-') && !name.startsWith("postgres://") &&
        !name.startsWith("postgresql://"))
        return name;
    QString quoted = name;
    return "dbname='" + quoted.replace('\\', "\\\\").replace('\'', "\\'") + "'";
}

QString absolute(const QString& file) { return QFileInfo(file).absoluteFilePath(); }
} // namespace

namespace ClientPrograms
{
QString folder(const QString& name)
{
    const QString chosen = qEnvironmentVariable("ZAVEL_PG_BIN");
    QString found;
    if (!chosen.isEmpty())
        found = QStandardPaths::findExecutable(name, {chosen});
    if (found.isEmpty())
        found = QStandardPaths::findExecutable(name);
    if (found.isEmpty())
        found = QStandardPaths::findExecutable(name, versionFolders());
    return found.isEmpty() ? QString() : QFileInfo(found).absolutePath();
}

QString path(const QString& name)
{
    const QString found = folder(name);
    return found.isEmpty() ? name : QDir(found).filePath(name);
}

ClientCommand backup(const ConnectionSettings& connection, const QString& outputFile)
{
    return {"pg_dump",
            ignoreVersion("pg_dump") + server(connection) +
                QStringList{"-F", "c", "-b", "-v", "-f", absolute(outputFile), databaseName(connection.database)},
            connection.password};
}

ClientCommand createDatabase(const ConnectionSettings& connection)
{
    return {"createdb", server(connection) + QStringList{connection.database}, connection.password};
}

ClientCommand restore(const ConnectionSettings& connection, const QString& inputFile)
{
    return {"pg_restore",
            ignoreVersion("pg_restore") + server(connection) +
                QStringList{"-F", "c", "-v", "-d", databaseName(connection.database), absolute(inputFile)},
            connection.password};
}

ClientCommand vacuum(const ConnectionSettings& connection)
{
    return {"vacuumdb", server(connection) + QStringList{"-v", "-d", databaseName(connection.database)},
            connection.password};
}

ClientCommand reindex(const ConnectionSettings& connection)
{
    return {"reindexdb", server(connection) + QStringList{"-d", databaseName(connection.database)},
            connection.password};
}

ClientCommand query(const ConnectionSettings& connection, const QString& statement)
{
    return {"psql",
            server(connection) +
                QStringList{"-X", "-q", "-A", "-t", "-d", databaseName(connection.database), "-c", statement},
            connection.password};
}

ClientCommand contents(const QString& inputFile) { return {"pg_restore", {"-l", absolute(inputFile)}, QString()}; }
} // namespace ClientPrograms
