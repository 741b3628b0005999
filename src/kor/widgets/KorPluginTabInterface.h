#pragma once

#include <QtPlugin>

class KorTab;

/**
 * What a plug-in with report pages offers. The program loads it from its folder "plugins", tells it the connection
 * and the formats, and asks it for pages by the reports' names.
 */
class KorPluginTabInterface
{
public:
    virtual ~KorPluginTabInterface() = default;

    /** A new page for the caller to own; its window title tells it from other reports. Null for an unknown name. */
    virtual KorTab* createTab(const QString& reportName) = 0;
    /** Keys: "date_format", "app_path", "db_host", "db_port", "db_name", "db_username", "db_password". */
    virtual void set(const QString& key, const QString& value) = 0;
};

Q_DECLARE_INTERFACE(KorPluginTabInterface, "core.kor.KorPluginTabInterface")
