#pragma once

#include <QString>

class KorEntity;

/**
 * True if the logged-in user may do this operation (the permission key of the business) on this record. Without a
 * record, a grant for own records is enough.
 */
[[nodiscard]] bool checkAccess(const QString& businessName, int key, const KorEntity* entity = nullptr);

/** The same; if the right is missing, a message box names the required permission. */
[[nodiscard]] bool hasAccess(const QString& businessName, int key, const KorEntity* entity = nullptr);
