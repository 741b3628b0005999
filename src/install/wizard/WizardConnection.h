#pragma once

class QString;
class QWidget;
struct ConnectionSettings;

/** What the wizard's pages do with the connection that a person has entered. */
namespace WizardConnection
{
/** The settings file of this workstation; its folder is made where there is none. */
[[nodiscard]] QString settingsPath();
/** Opens it as the program's connection; where that fails, says so and why. */
[[nodiscard]] bool open(QWidget* parent, const ConnectionSettings& connection);
/** Leaves it behind for the program's next start; says so where that fails. */
[[nodiscard]] bool save(QWidget* parent, const ConnectionSettings& connection, const QString& path);
} // namespace WizardConnection
