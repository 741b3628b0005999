#pragma once

#include "support/Hands.h"

#include <QList>
#include <QPointer>
#include <QString>
#include <QStringList>
#include <QWidget>

class QTableView;

/** Something that a hand does to a page or a form: a key, or a double click on a row of its grid. */
struct Stroke
{
    QString name;
    /** 0 is the double click. */
    int key = 0;

    /** What such a key usually does is to open a form or a question. */
    [[nodiscard]] bool opens() const;
};

/** What the page or form answers to: the keys of its buttons and shortcuts, Enter, Escape and a double click. */
[[nodiscard]] QList<Stroke> strokesOf(const QWidget& page);

/** The grid that is in front; null where there is none. */
[[nodiscard]] QTableView* gridInFront(const QWidget& page);

/** Strikes the key from the loop: what it opens runs a loop of its own, in which the caller's timer would stand still.
 */
void strikeSoon(int key);
/** Sends the stroke as a person at this moment would: to the page's grid, or to the window that has the keys. */
void strike(QWidget* page, const Stroke& stroke);

/** Sees a page or a form through two quick strokes, and closes what they opened. */
class Burst
{
public:
    /**
     * Two strokes, one so many milliseconds after the other, as the window system delivers them: the second goes to
     * whatever window has the keys by then. They begin at the page, or at a form that is open.
     */
    void play(QWidget* page, const Stroke& first, const Stroke& second, int delay);

    /** What was wrong: two forms open side by side, or one that Escape does not close. */
    [[nodiscard]] QStringList faults() const { return m_faults; }

private:
    void look();
    void closeOne();
    [[nodiscard]] bool isAtRest() const;

    QPointer<QWidget> m_page;
    bool m_through = false;
    int m_closed = 0;
    QStringList m_faults;
};
