#pragma once

#include <QApplication>
#include <QDir>

/** The program's entry: its data folder, log, settings and connection, and the order of the first windows. */
class ZavelApplication final : public QApplication
{
    Q_OBJECT

public:
    ZavelApplication(int& argc, char** argv);

    /** A folder or anything else of that name is no settings file. */
    [[nodiscard]] bool hasSettingsFile();
    /** Opens the database that the settings name and reads the shared formats; the user is told what fails. */
    [[nodiscard]] bool openDatabase();
    /** Whether the open database is installed and whole; the user is told what is missing. */
    [[nodiscard]] static bool checkDatabase();
    /** Opens the database again after the settings were changed, and tells of success. */
    void reconnect();
    /** The first windows in their order, then the event loop; the result is the process's exit status. */
    int run();

private:
    QDir m_dataDir;
    QString m_settingsPath;
    bool m_connected = false;
};
