#pragma once

#include "support/ModalDriver.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QTest>
#include <QWindow>

// What a person does at a page or a form, and sees of it. Boxes and buttons go by their names.

[[nodiscard]] inline QLineEdit* box(const QWidget* form, const char* name) { return form->findChild<QLineEdit*>(name); }

[[nodiscard]] inline QString shown(const QWidget* form, const char* name) { return box(form, name)->text(); }

/** The one that is in front, where every page of a form has one; null stands for any name. */
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

/** Types over what stands in the box, and leaves it with the Tab key. */
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

/** Confirms the form by the Return key in one of its boxes. */
inline void confirm(QWidget* form, const char* inBox) { QTest::keyClick(box(form, inBox), Qt::Key_Return); }

/** Confirms the form by its button. */
inline void press(const QWidget* form, QDialogButtonBox::StandardButton button)
{
    QTest::mouseClick(form->findChild<QDialogButtonBox*>()->button(button), Qt::LeftButton);
}

/** The list, form or question that takes the keys; null where only a page is there. */
[[nodiscard]] inline QWidget* openForm()
{
    QWidget* popup = QApplication::activePopupWidget();
    return popup ? popup : QApplication::activeModalWidget();
}

/** Sends the key, and the text that it writes, to the window that has the keys, as the window system does. */
inline void strikeKey(int key, const QString& text = {}, Qt::KeyboardModifiers modifiers = {})
{
    QWidget* form = openForm();
    QPointer<QWindow> window = form ? form->windowHandle() : QGuiApplication::focusWindow();
    // Where a form has closed nobody has the keys until a window manager gives them back.
    if (!window && QApplication::activeWindow())
        window = QApplication::activeWindow()->windowHandle();
    // Straight to the window system: what the testing library has for it lets other strokes happen in between.
    if (window)
        qt_handleKeyEvent(window, QEvent::KeyPress, key, modifiers, text);
    if (window)
        qt_handleKeyEvent(window, QEvent::KeyRelease, key, modifiers, text);
}

/** A finger on the place in the window, at that moment of the window system's clock in milliseconds. */
inline void tap(QWindow* window, const QPoint& place, int time)
{
    const QPointer<QWindow> alive(window);
    const QPoint global = window->mapToGlobal(place);
    qt_handleMouseEvent(window, place, global, Qt::LeftButton, Qt::LeftButton, QEvent::MouseButtonPress, {}, time);
    if (alive)
        qt_handleMouseEvent(window, place, global, {}, Qt::LeftButton, QEvent::MouseButtonRelease, {}, time + 10);
}

inline void giveUp(QWidget* form) { QTest::keyClick(form, Qt::Key_Escape); }

// The only grid of the page, or the one in front.
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

/** Shows the page in a window that takes the keys. */
inline void showPage(QWidget* page)
{
    page->resize(1100, 600);
    page->show();
    QVERIFY(QTest::qWaitForWindowActive(page));
}

/** Works on the form behind the button of the page, until it is closed, saved or given up. */
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
