#pragma once

#include <QString>

struct ConnectionSettings;

/**
 * Opens the database of the settings instead of the current one. If that fails, it reopens the former connection with
 * the context's values and puts the driver's error text into the reason.
 */
[[nodiscard]] bool changeDatabase(const ConnectionSettings& settings, QString* reason);
