#pragma once

#include <QCoreApplication>
#include <QString>

class QWidget;
struct ConnectionEdits;
struct ConnectionSettings;

/** What the wizard's pages do with the connection that a person has entered. */
class WizardConnection
{
    Q_DECLARE_TR_FUNCTIONS(WizardConnection)

public:
    /** The settings file of this workstation; its folder is made where there is none. */
    [[nodiscard]] static QString settingsPath();
    /** Opens it as the program's connection; where that fails, says so and why. */
    [[nodiscard]] static bool open(QWidget* parent, const ConnectionSettings& connection);
    /**
     * The same with what the boxes hold, and with an offer where the reason can be helped: to create the database
     * that the server does not have, or to go to the port on which the server of this machine listens.
     */
    [[nodiscard]] static bool openOrHelp(QWidget* parent, const ConnectionEdits& edits);
    /** Opens it without a word. */
    [[nodiscard]] static bool tryOpen(const ConnectionSettings& connection);
    /** The tables of the database that is open; 0 where that can not be found out. */
    [[nodiscard]] static int countTables();
    /** Leaves it behind for the program's next start; says so where that fails. */
    [[nodiscard]] static bool save(QWidget* parent, const ConnectionSettings& connection, const QString& path);
    /** Where the server of this machine listens. */
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
