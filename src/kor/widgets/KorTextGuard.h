#pragma once

#include <QObject>

/**
 * Removes the character NUL from typed and pasted text in all line edits, editable lists and notes. The database cannot
 * store it, and a statement would end at it. One event filter serves the whole program.
 */
class KorTextGuard final : public QObject
{
    Q_OBJECT

public:
    static void watch();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    using QObject::QObject;
};
