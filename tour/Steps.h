#pragma once

#include <QString>

class Guide;

// What every tour does.

/** Logs in as the administrator, after a wrong password. */
void logIn(Guide& guide);
/** Fills the picker of this class with an item and a quantity; confirming it is the caller's. */
void pick(Guide& guide, const QString& window, const QString& code, const QString& quantity, const QString& notes = {});
/** Ends the round of pickers of this class and goes back to the form. */
void endRound(Guide& guide, const QString& picker, const QString& form);

/** Opens the page behind the menu's entry; it stands when the widget does. */
void openPage(Guide& guide, const QString& menu, const QString& action, const QString& widget);
/** Opens the form of this class for a new record of the page in front. */
void openForm(Guide& guide, const QString& form);
/** Confirms the form of this class, which has to close. */
void confirm(Guide& guide, const QString& form);
