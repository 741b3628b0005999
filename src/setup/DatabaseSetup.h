#pragma once

#include "app/context/DatabaseVersion.h"
#include "setup/SetupOptions.h"

#include <QTextStream>

class DatabaseManager;

/** Carries out what was asked for on the database that the options name. Its results are exit statuses. */
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

    /** Tells why not. */
    [[nodiscard]] bool connectToDatabase();
    /** True when the server answers under these credentials and has no database of that name. */
    [[nodiscard]] bool isDatabaseMissing();
    [[nodiscard]] bool createDatabase();
    [[nodiscard]] int tableCount() const;
    [[nodiscard]] DatabaseVersion installedVersion() const;
    [[nodiscard]] bool runInstaller(int type);
    [[nodiscard]] bool writeSettings();

    void say(const QString& line);
    Result fail(const QString& line);

    SetupOptions m_options;
    DatabaseManager* m_manager;
    QTextStream m_out;
    QTextStream m_err;
};
