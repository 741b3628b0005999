#pragma once

#include <QList>
#include <QString>

struct ConnectionSettings;

/** Finds the PostgreSQL servers of this machine by their sockets and Debian's configuration files. */
class LocalServers
{
public:
    explicit LocalServers(QString socketFolder = "/var/run/postgresql", QString configFolder = "/etc/postgresql");

    /**
     * The port of another server on this host if nothing listens on the connection's port. 0 if there is none, if
     * something listens there, or if the host is another machine.
     */
    [[nodiscard]] int portInPlaceOf(const ConnectionSettings& connection) const;

private:
    [[nodiscard]] QList<int> configuredPorts() const;

    QString m_socketFolder;
    QString m_configFolder;
};
