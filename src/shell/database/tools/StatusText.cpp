#include "shell/database/tools/StatusText.h"

#include <QPlainTextEdit>
#include <QTextCursor>

void appendStatus(QPlainTextEdit* box, const QString& text)
{
    box->moveCursor(QTextCursor::End);
    box->insertPlainText(text);
    box->ensureCursorVisible();
}

void appendStatusLine(QPlainTextEdit* box, const QString& line)
{
    box->moveCursor(QTextCursor::End);
    const bool begun = box->textCursor().positionInBlock() > 0;
    appendStatus(box, (begun ? "\n" : "") + line + "\n");
}
