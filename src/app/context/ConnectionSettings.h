#pragma once

#include <QString>

/**
 * How this workstation reaches the database, and what its main window shows at start, as "settings.ini" keeps it.
 * Host, database, user and password are enciphered in the file; here they stand in clear.
 */
struct ConnectionSettings
{
    QString host;
    QString database;
    QString user;
    QString password;
    int port = 0;
    bool showSidebar = true;
    bool showDashboard = true;

    /** "settings.ini" in the data folder of the running program. */
    [[nodiscard]] static QString defaultPath();
    /** True only for a regular file, read from the disk anew. */
    [[nodiscard]] static bool exists(const QString& path);
    /** A value that is missing or damaged reads as empty; the port as 0. */
    [[nodiscard]] static ConnectionSettings read(const QString& path);
    /** False when the file could not be written. Only its owner may read it afterwards. */
    [[nodiscard]] bool write(const QString& path) const;

    /** The same with the values that a fresh installation uses, wherever there is none. */
    [[nodiscard]] ConnectionSettings withDefaults() const;
    /** What the other workstations call this one: "workstation" in the file, or else the machine's name. */
    [[nodiscard]] static QString workstation();
    /** Hands the connection's values, not the switches, to the context. */
    void putIntoContext() const;
};
