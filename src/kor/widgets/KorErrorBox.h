#pragma once

#include <QMessageBox>

/**
 * The boxes for what a service or a mapper says of a failure. A failure of the database begins with a plain sentence,
 * goes on with the driver's words, and keeps the statement behind "Show Details..."; any other text stands as it is.
 */
namespace KorErrorBox
{
/** Gives a box these words; for boxes that their pages show themselves. */
void fill(QMessageBox* box, const QString& text);
/** Tells a failure under the title "Error"; false for an empty text, which shows nothing. */
bool tell(QWidget* parent, const QString& failure);
void critical(QWidget* parent, const QString& title, const QString& text);
void information(QWidget* parent, const QString& title, const QString& text);
/** A question about a failure, with these two buttons, the default among them; true for the first one. */
[[nodiscard]] bool ask(QWidget* parent, const QString& title, const QString& text, const QString& details,
                       const QString& yes, const QString& no, QMessageBox::StandardButton byDefault);
} // namespace KorErrorBox
