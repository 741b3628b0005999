#pragma once

#include <QString>

struct ConnectionSettings;

/**
 * Opens the database that the settings name in place of the one in use. Where that fails, the former connection is
 * opened again from the context's values and the reason holds the driver's words.
 */
[[nodiscard]] bool changeDatabase(const ConnectionSettings& settings, QString* reason);
