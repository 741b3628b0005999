#pragma once

#include "app/context/DatabaseVersion.h"
#include "setup/SetupOptions.h"

#include <QTextStream>

class DatabaseManager;

/** Runs the requested command on the database of the options. A Result is the exit status of the process. */
class DatabaseSetup
{
    Q_DECLARE_TR_FUNCTIONS(DatabaseSetup)

public:
    enum Result { Done = 0, Failed = 1, NotInstalled = 3, TooNew = 4 };

    explicit DatabaseSetup(const SetupOptions& options);

    [[nodiscard]] Result run();

private:
    [[nodiscard]] Result status();
    [[nodiscard]] Result install();
    [[nodiscard]] Result update();
    [[nodiscard]] Result sampleTrade();

    /** Prints the reason on failure. */
    [[nodiscard]] bool connectToDatabase();
    /** True if the server accepts these credentials but has no database of this name. */
    [[nodiscard]] bool isDatabaseMissing();
    [[nodiscard]] bool createDatabase();
    [[nodiscard]] int tableCount() const;
    [[nodiscard]] DatabaseVersion installedVersion() const;
    [[nodiscard]] bool runInstaller(int type);
    [[nodiscard]] bool writeSettings();

    void say(const QString& line);
    void tellStep(int percent, const QString& step);
    Result fail(const QString& line);

    SetupOptions m_options;
    DatabaseManager* m_manager;
    QTextStream m_out;
    QTextStream m_err;
};
