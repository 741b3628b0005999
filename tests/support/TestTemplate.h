#pragma once

#include <QString>

/** The name of the database from which installed test databases are cloned. */
[[nodiscard]] QString installedTemplateName();
/** Installs the template unless another test program of this run has. */
void ensureInstalledTemplate();
