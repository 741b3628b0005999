#pragma once

#include <QString>

class Guide;

// Steps that all tours share.

/** Logs in as the administrator, after a wrong password. */
void logIn(Guide& guide);
/** Fills in an item and a quantity in the picker of this class; the caller confirms. */
void pick(Guide& guide, const QString& window, const QString& code, const QString& quantity, const QString& notes = {});
/** Cancels the picker of this class and waits for the form. */
void endRound(Guide& guide, const QString& picker, const QString& form);

/** Opens the page of the menu entry and waits for the widget. */
void openPage(Guide& guide, const QString& menu, const QString& action, const QString& widget);
/** Opens the form of this class for a new record of the current page. */
void openForm(Guide& guide, const QString& form);
/** Presses OK in the form of this class and waits until it closes. */
void confirm(Guide& guide, const QString& form);
