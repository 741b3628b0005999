#pragma once

#include <QList>
#include <QString>

struct ConnectionSettings;

/** The PostgreSQL servers of this machine, as their sockets and Debian's configuration files tell of them. */
class LocalServers
{
public:
    explicit LocalServers(QString socketFolder = "/var/run/postgresql", QString configFolder = "/etc/postgresql");

    /**
     * The port of a server that listens where the connection leads to, when nobody listens on the connection's own
     * port. 0 where there is none, where somebody does, or where the host is another machine.
     */
    [[nodiscard]] int portInPlaceOf(const ConnectionSettings& connection) const;

private:
    [[nodiscard]] QList<int> configuredPorts() const;

    QString m_socketFolder;
    QString m_configFolder;
};
