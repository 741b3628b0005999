#pragma once

#include <QString>

class KorEntity;

/**
 * May the logged-in user do this operation (the permission key of the business), on this record where there is one?
 * A grant for own records holds wherever no record is in question.
 */
[[nodiscard]] bool checkAccess(const QString& businessName, int key, const KorEntity* entity = nullptr);

/** The same, telling the user about a refusal and the permission that is missing. */
[[nodiscard]] bool hasAccess(const QString& businessName, int key, const KorEntity* entity = nullptr);
