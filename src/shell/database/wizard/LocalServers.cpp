#include "shell/database/wizard/LocalServers.h"

#include "app/context/ConnectionSettings.h"

#include <QDirIterator>
#include <QHostAddress>
#include <QHostInfo>
#include <QLocalSocket>
#include <QRegularExpression>
#include <QTcpSocket>

#include <algorithm>
#include <utility>

namespace
{
constexpr int patience = 500;
const char* const socketName = ".s.PGSQL.";

/** PostgreSQL reads a host that is a folder as the folder of its sockets. */
bool isSocketFolder(const QString& host) { return host.startsWith('/'); }

bool isThisMachine(const QString& host)
{
    return host == "localhost" || host == QHostInfo::localHostName() || QHostAddress(host).isLoopback();
}

QList<int> portsOfSockets(const QString& folder)
{
    QList<int> ports;
    const QString prefix = socketName;
    const QStringList names = QDir(folder).entryList({prefix + '*'}, QDir::System | QDir::Hidden);
    for (const QString& name : names) {
        // Skips the lock files, whose names do not end with the port.
        if (const int port = name.mid(prefix.size()).toInt())
            ports.append(port);
    }
    return ports;
}

bool listens(const QString& host, int port)
{
    if (isSocketFolder(host)) {
        QLocalSocket socket;
        socket.connectToServer(QDir(host).filePath(socketName + QString::number(port)));
        return socket.waitForConnected(patience);
    }
    QTcpSocket socket;
    socket.connectToHost(host, static_cast<quint16>(port));
    return socket.waitForConnected(patience);
}
} // namespace

LocalServers::LocalServers(QString socketFolder, QString configFolder)
    : m_socketFolder(std::move(socketFolder)), m_configFolder(std::move(configFolder))
{}

int LocalServers::portInPlaceOf(const ConnectionSettings& connection) const
{
    const bool bySocket = isSocketFolder(connection.host);
    if ((!bySocket && !isThisMachine(connection.host)) || listens(connection.host, connection.port))
        return 0;
    QList<int> ports = bySocket ? portsOfSockets(connection.host) : portsOfSockets(m_socketFolder) + configuredPorts();
    std::sort(ports.begin(), ports.end());
    const auto found =
        std::find_if(ports.cbegin(), ports.cend(), [&connection](int port) { return listens(connection.host, port); });
    return found == ports.cend() ? 0 : *found;
}

QList<int> LocalServers::configuredPorts() const
{
    static const QRegularExpression line(R"(^\s*port\s*=?\s*'?(\d+))", QRegularExpression::MultilineOption);
    QList<int> ports;
    // One folder per version, and in it one per cluster.
    QDirIterator files(m_configFolder, {"postgresql.conf"}, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        QFile file(files.next());
        if (!file.open(QIODevice::ReadOnly))
            continue;
        constexpr int usual = 5432;
        // The last entry is used, as the server does.
        int port = usual;
        QRegularExpressionMatchIterator matches = line.globalMatch(QString::fromUtf8(file.readAll()));
        while (matches.hasNext())
            port = matches.next().captured(1).toInt();
        ports.append(port);
    }
    return ports;
}
