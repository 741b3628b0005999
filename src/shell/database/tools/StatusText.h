#pragma once

class QPlainTextEdit;
class QString;

/** Appends the text to a status box as it is, and scrolls to the end. */
void appendStatus(QPlainTextEdit* box, const QString& text);
/** The same on a separate line. */
void appendStatusLine(QPlainTextEdit* box, const QString& line);
