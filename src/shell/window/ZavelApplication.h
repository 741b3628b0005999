#pragma once

#include <QApplication>
#include <QDir>

/** The application: data folder, log, settings, connection, and the sequence of the first windows. */
class ZavelApplication final : public QApplication
{
    Q_OBJECT

public:
    ZavelApplication(int& argc, char** argv);

    /** True only for a regular file. */
    [[nodiscard]] bool hasSettingsFile();
    /** Opens the database of the settings and reads the shared formats; errors are shown to the user. */
    [[nodiscard]] bool openDatabase();
    /** True if the open database is completely installed; otherwise the user sees what is missing. */
    [[nodiscard]] static bool checkDatabase();
    /** Reconnects after a change of the settings and shows a message on success. */
    void reconnect();
    /** Shows the first windows, then runs the event loop; returns the exit status. */
    int run();

private:
    QDir m_dataDir;
    QString m_settingsPath;
    bool m_connected = false;
};
