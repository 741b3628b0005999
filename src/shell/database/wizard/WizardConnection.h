#pragma once

#include <QCoreApplication>
#include <QString>

class QWidget;
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
    /** Leaves it behind for the program's next start; says so where that fails. */
    [[nodiscard]] static bool save(QWidget* parent, const ConnectionSettings& connection, const QString& path);
};
