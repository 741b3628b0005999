#pragma once

#include "support/ModalDriver.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QTest>
#include <QWindow>

// Helpers that use a page or form as a user does and read what it shows. Boxes and buttons are found by object name.

[[nodiscard]] inline QLineEdit* box(const QWidget* form, const char* name) { return form->findChild<QLineEdit*>(name); }

[[nodiscard]] inline QString shown(const QWidget* form, const char* name) { return box(form, name)->text(); }

/** The visible widget of this name, if several pages of a form have one; null matches any name. */
template <class Widget>
[[nodiscard]] Widget* inFront(const QWidget* page, const char* name)
{
    const QList<Widget*> all = page->findChildren<Widget*>(name);
    for (Widget* one : all) {
        if (one->isVisible())
            return one;
    }
    return all.value(0);
}

/** Replaces the text of the box, and leaves it with the Tab key. */
inline void enter(QWidget* form, const char* name, const QString& text)
{
    box(form, name)->setFocus(Qt::TabFocusReason);
    box(form, name)->selectAll();
    if (text.isEmpty())
        QTest::keyClick(box(form, name), Qt::Key_Backspace);
    QTest::keyClicks(box(form, name), text);
    QTest::keyClick(box(form, name), Qt::Key_Tab);
}

inline void click(QWidget* page, const char* button)
{
    QTest::mouseClick(inFront<QPushButton>(page, button), Qt::LeftButton);
}

/** Confirms the form with the Return key in this box. */
inline void confirm(QWidget* form, const char* inBox) { QTest::keyClick(box(form, inBox), Qt::Key_Return); }

/** Confirms the form by its button. */
inline void press(const QWidget* form, QDialogButtonBox::StandardButton button)
{
    QTest::mouseClick(form->findChild<QDialogButtonBox*>()->button(button), Qt::LeftButton);
}

/** The open popup, form or message box that gets the keys; null if there is only a page. */
[[nodiscard]] inline QWidget* openForm()
{
    QWidget* popup = QApplication::activePopupWidget();
    return popup ? popup : QApplication::activeModalWidget();
}

/** Sends the key and its text to the window that has the focus, as the window system does. */
inline void strikeKey(int key, const QString& text = {}, Qt::KeyboardModifiers modifiers = {})
{
    QWidget* form = openForm();
    QPointer<QWindow> window = form ? form->windowHandle() : QGuiApplication::focusWindow();
    // After a form has closed, no window has the focus until a window manager sets it.
    if (!window && QApplication::activeWindow())
        window = QApplication::activeWindow()->windowHandle();
    // Uses the window system directly: QTest's functions process other events in between.
    if (window)
        qt_handleKeyEvent(window, QEvent::KeyPress, key, modifiers, text);
    if (window)
        qt_handleKeyEvent(window, QEvent::KeyRelease, key, modifiers, text);
}

/** A click at the position in the window; the time is in milliseconds of the window system's clock. */
inline void tap(QWindow* window, const QPoint& place, int time)
{
    const QPointer<QWindow> alive(window);
    const QPoint global = window->mapToGlobal(place);
    qt_handleMouseEvent(window, place, global, Qt::LeftButton, Qt::LeftButton, QEvent::MouseButtonPress, {}, time);
    if (alive)
        qt_handleMouseEvent(window, place, global, {}, Qt::LeftButton, QEvent::MouseButtonRelease, {}, time + 10);
}

inline void giveUp(QWidget* form) { QTest::keyClick(form, Qt::Key_Escape); }

// The page's only or visible grid.
[[nodiscard]] inline QTableView* gridOf(const QWidget* page) { return inFront<QTableView>(page, nullptr); }

inline void choose(const QWidget* page, int row) { gridOf(page)->selectRow(row); }

[[nodiscard]] inline int rowsOf(const QWidget* page) { return gridOf(page)->model()->rowCount(); }

[[nodiscard]] inline QStringList cells(const QWidget* page, int row)
{
    const QAbstractItemModel* model = gridOf(page)->model();
    QStringList texts;
    for (int column = 0; row < model->rowCount() && column < model->columnCount(); ++column)
        texts.append(model->index(row, column).data().toString());
    return texts;
}

/** Shows the page in an active window. */
inline void showPage(QWidget* page)
{
    page->resize(1100, 600);
    page->show();
    QVERIFY(QTest::qWaitForWindowActive(page));
}

/** Clicks the button and runs the function on the form that opens; it must close the form. */
template <class Form>
void onForm(ModalDriver& people, QWidget* page, const char* button, const std::function<void(Form*)>& work)
{
    people.expect<Form>([work](Form* form) {
        QApplication::setActiveWindow(form);
        work(form);
    });
    click(page, button);
    QVERIFY(people.finished());
}
