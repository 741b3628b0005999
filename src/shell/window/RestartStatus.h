#pragma once

/** The exit status of a deliberate end after a change of the database; whoever started the program starts it again. */
inline constexpr int restartStatus = -123456789;
