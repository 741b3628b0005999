#pragma once

#include <QString>

/** True if the whole text is an e-mail address with a top-level domain of two to four letters. */
[[nodiscard]] bool isEmailAddress(const QString& text);
