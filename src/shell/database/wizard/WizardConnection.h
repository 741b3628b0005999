#pragma once

#include <QCoreApplication>
#include <QString>

class QWidget;
struct ConnectionEdits;
struct ConnectionSettings;

/** Opens and saves the connection that the user enters in the wizard. */
class WizardConnection
{
    Q_DECLARE_TR_FUNCTIONS(WizardConnection)

public:
    /** The path of this workstation's settings file; its folder is created if missing. */
    [[nodiscard]] static QString settingsPath();
    /** Opens it as the program's connection; on failure shows the reason. */
    [[nodiscard]] static bool open(QWidget* parent, const ConnectionSettings& connection);
    /**
     * The same with the values of the boxes. On failure it can offer to create a missing database, or to use the port
     * on which this machine's server listens.
     */
    [[nodiscard]] static bool openOrHelp(QWidget* parent, const ConnectionEdits& edits);
    /** Opens it without a message. */
    [[nodiscard]] static bool tryOpen(const ConnectionSettings& connection);
    /** The number of tables in the open database; 0 if it cannot be read. */
    [[nodiscard]] static int countTables();
    /** Writes it to the settings file for the next start; on failure shows a message. */
    [[nodiscard]] static bool save(QWidget* parent, const ConnectionSettings& connection, const QString& path);
    /** The message on which port this machine's server listens. */
    [[nodiscard]] static QString listensOn(int port);

private:
    struct Help
    {
        int port;
        bool isMissing;
    };

    [[nodiscard]] static QString noConnection();
    [[nodiscard]] static Help helpFor(const ConnectionSettings& connection);
    [[nodiscard]] static bool create(QWidget* parent, const ConnectionSettings& connection);
};
