#pragma once

#include <QString>

/** Whether the whole text has the form of an e-mail address with a top level of two to four letters. */
[[nodiscard]] bool isEmailAddress(const QString& text);
