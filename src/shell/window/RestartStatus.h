#pragma once

/** The exit status after a change of the database, which asks the caller to start the program again. */
inline constexpr int restartStatus = -123456789;
