#pragma once

#include <QString>

/** The database that installed test databases are cloned from. */
[[nodiscard]] QString installedTemplateName();
/** Installs the template unless another test program of this run has. */
void ensureInstalledTemplate();
