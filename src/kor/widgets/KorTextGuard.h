#pragma once

#include <QObject>

/**
 * Drops the character NUL wherever a text is typed or pasted: in every line, editable list and note of the program at
 * once. The database can not store it, and a statement would end at it. One object watches over the whole program.
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
