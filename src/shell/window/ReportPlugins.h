#pragma once

#include <QDir>
#include <QStringList>

class KorPluginTabInterface;

/** Finds the plug-in with the report pages. */
class ReportPlugins
{
public:
    /** The folder "plugins" beside the program, or one up where the program stands in "debug" or "release". */
    [[nodiscard]] static QDir folder(QDir applicationFolder);

    /** Loads what the folder holds; true always, for a program without reports still sells. */
    bool load(const QDir& pluginFolder);
    /** Null until a plug-in has answered to the interface; the loader owns it, for the rest of the run. */
    [[nodiscard]] KorPluginTabInterface* plugin() const { return m_plugin; }
    /** Why files could not be loaded, one text a file. */
    [[nodiscard]] const QStringList& errors() const { return m_errors; }

    /** Tells the plug-in the connection and the formats in use; load() does it too. */
    void handOverSettings() const;

private:
    KorPluginTabInterface* m_plugin = nullptr;
    QStringList m_errors;
};
