#pragma once

#include <QString>

/**
 * The database connection of this workstation and what its main window shows at start, stored in "settings.ini". Host,
 * database, user and password are encrypted in the file and plain text here.
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

    /** "settings.ini" in the program's data folder. */
    [[nodiscard]] static QString defaultPath();
    /** True only for a regular file; never answered from a cache. */
    [[nodiscard]] static bool exists(const QString& path);
    /** A missing or damaged value is read as empty, or 0 for the port. */
    [[nodiscard]] static ConnectionSettings read(const QString& path);
    /** False if the file could not be written. Afterwards only its owner may read it. */
    [[nodiscard]] bool write(const QString& path) const;

    /** The same settings with the defaults of a new installation for missing values. */
    [[nodiscard]] ConnectionSettings withDefaults() const;
    /** The name of this workstation that others see: "workstation" in the file, or else the machine's host name. */
    [[nodiscard]] static QString workstation();
    /** Copies the connection's values, but not the switches, to the context. */
    void putIntoContext() const;
};
