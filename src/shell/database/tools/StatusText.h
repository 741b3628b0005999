#pragma once

class QPlainTextEdit;
class QString;

/** Writes at the end of a status box, as it stands, and keeps the end in sight. */
void appendStatus(QPlainTextEdit* box, const QString& text);
/** The same on a line of its own. */
void appendStatusLine(QPlainTextEdit* box, const QString& line);
