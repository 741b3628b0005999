#pragma once

#include <QtPlugin>

class KorTab;

/**
 * A plug-in with report pages. The program loads it from its folder "plugins", passes the connection and formats to
 * set(), and asks for pages by report name.
 */
class KorPluginTabInterface
{
public:
    virtual ~KorPluginTabInterface() = default;

    /** A new page owned by the caller; its window title identifies the report. Null for an unknown name. */
    virtual KorTab* createTab(const QString& reportName) = 0;
    /** Keys: "date_format", "app_path", "db_host", "db_port", "db_name", "db_username", "db_password". */
    virtual void set(const QString& key, const QString& value) = 0;
};

Q_DECLARE_INTERFACE(KorPluginTabInterface, "core.kor.KorPluginTabInterface")
