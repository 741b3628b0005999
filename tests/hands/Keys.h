#pragma once

#include "support/Hands.h"

#include <QList>
#include <QPointer>
#include <QString>
#include <QStringList>
#include <QWidget>

class QTableView;

/** One input to a page or form: a key, or a double click on a row of its grid. */
struct Stroke
{
    QString name;
    /** 0 is the double click. */
    int key = 0;

    /** True if the input usually opens a form or message box. */
    [[nodiscard]] bool opens() const;
};

/** The inputs that the page or form handles: keys of its buttons and shortcuts, Enter, Escape and a double click. */
[[nodiscard]] QList<Stroke> strokesOf(const QWidget& page);

/** The visible grid; null if there is none. */
[[nodiscard]] QTableView* gridInFront(const QWidget& page);

/** Sends the key from the event loop: a form that it opens runs its own loop, which would block the caller's timer. */
void strikeSoon(int key);
/** Sends the input to the page's grid or to the window that has the focus. */
void strike(QWidget* page, const Stroke& stroke);

/** Sends two quick inputs to a page or form and closes what they opened. */
class Burst
{
public:
    /**
     * Sends two inputs with this delay in milliseconds, as the window system does: the second goes to the window that
     * has the focus then. Starts at the page, or at a form that is open.
     */
    void play(QWidget* page, const Stroke& first, const Stroke& second, int delay);

    /** The faults: two forms open side by side, or a form that Escape does not close. */
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
