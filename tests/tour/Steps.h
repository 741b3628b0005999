#pragma once

#include <QString>

class Guide;

// What every tour does.

/** Logs in as the administrator, after a wrong password. */
void logIn(Guide& guide);
/** Fills the picker of this class with an item and a quantity; confirming it is the caller's. */
void pick(Guide& guide, const QString& window, const QString& code, const QString& quantity, const QString& notes = {});
