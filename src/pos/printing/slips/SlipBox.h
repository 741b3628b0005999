#pragma once

#include <QString>

namespace SlipBox
{
/**
 * Tells in a box of the title "Error" what went wrong with a slip. What stands all the same is read first, on a line of
 * its own above; the box's text is the told one alone.
 */
void tell(const QString& standing, const QString& told);
} // namespace SlipBox
