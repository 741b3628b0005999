#pragma once

#include <QDir>
#include <QStringList>

class KorPluginTabInterface;

/** Finds the plug-in with the report pages. */
class ReportPlugins
{
public:
    /** The folder "plugins" beside the program, or in the parent folder if the program is in "debug" or "release". */
    [[nodiscard]] static QDir folder(QDir applicationFolder);

    /** Loads the plug-ins of the folder. Always true: the program also works without reports. */
    bool load(const QDir& pluginFolder);
    /** The plug-in that implements the interface, or null. The plug-in loader owns it until the program ends. */
    [[nodiscard]] KorPluginTabInterface* plugin() const { return m_plugin; }
    /** Why files could not be loaded, one text per file. */
    [[nodiscard]] const QStringList& errors() const { return m_errors; }

    /** Passes the current connection and formats to the plug-in; load() does it too. */
    void handOverSettings() const;

private:
    KorPluginTabInterface* m_plugin = nullptr;
    QStringList m_errors;
};
