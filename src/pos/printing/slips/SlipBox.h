#pragma once

#include <QString>

namespace SlipBox
{
/** Shows an error box about a slip. "standing" says what is saved all the same; it is shown above the text. */
void tell(const QString& standing, const QString& told);
} // namespace SlipBox
