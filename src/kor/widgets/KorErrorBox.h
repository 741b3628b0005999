#pragma once

#include <QMessageBox>

/**
 * Message boxes for error texts of services and mappers. A database error shows a plain sentence, then the driver's
 * message, with the statement behind "Show Details..."; any other text is shown unchanged.
 */
namespace KorErrorBox
{
/** Fills a message box that the caller shows itself. */
void fill(QMessageBox* box, const QString& text);
/** Shows an error with the title "Error"; false, and no box, for an empty text. */
bool tell(QWidget* parent, const QString& failure);
void critical(QWidget* parent, const QString& title, const QString& text);
void information(QWidget* parent, const QString& title, const QString& text);
/** Asks about an error with two buttons, one of them the default; true for the first button. */
[[nodiscard]] bool ask(QWidget* parent, const QString& title, const QString& text, const QString& details,
                       const QString& yes, const QString& no, QMessageBox::StandardButton byDefault);
} // namespace KorErrorBox
