#pragma once

#include "support/ModalDriver.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QTest>
#include <QWindow>

// Helpers that use a page or form as a user does and read what it shows. Boxes and buttons are found by object name.

[[nodiscard]] inline QLineEdit* box(const QWidget* form, const char* name) { return form->findChild<QLineEdit*>(name); }

[[nodiscard]] inline QString shown(const QWidget* form, const char* name) { return box(form, name)->text(); }

[[nodiscard]] inline QString labelled(const QWidget* form, const char* label)
{
    return form->findChild<QLabel*>(label)->text();
}

/** Without a window manager a form does not come back by itself when a box or another form over it is closed. */
inline void bringToFront(const QWidget* form)
{
    if (form->window()->isVisible())
        QApplication::setActiveWindow(form->window());
}

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

/** Replaces the text of the box, and leaves it with the Tab key. */
inline void typeInto(const QWidget* form, const QString& name, const QString& text)
{
    auto* field = form->findChild<QWidget*>(name);
    if (!field)
        qFatal("no field %s", qPrintable(name));
    bringToFront(form);
    field->setFocus(Qt::TabFocusReason);
    QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
    if (text.isEmpty())
        QTest::keyClick(field, Qt::Key_Delete);
    QTest::keyClicks(field, text);
}

/** Types over what stands in the box, and leaves it with the Tab key. */
inline void enter(const QWidget* form, const QString& name, const QString& text)
{
    typeInto(form, name, text);
    QTest::keyClick(form->findChild<QWidget*>(name), Qt::Key_Tab);
}

/** What is entered where, in this order. */
using Entries = QList<QPair<QByteArray, QString>>;
Q_DECLARE_METATYPE(Entries)

inline void enterAll(const QWidget* form, const Entries& entries)
{
    for (const auto& entry : entries)
        enter(form, entry.first, entry.second);
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

[[nodiscard]] inline QStringList cells(const QAbstractItemModel& model, int row)
{
    QStringList texts;
    for (int column = 0; row < model.rowCount() && column < model.columnCount(); ++column)
        texts.append(model.index(row, column).data().toString());
    return texts;
}

[[nodiscard]] inline QStringList cells(const QWidget* page, int row) { return cells(*gridOf(page)->model(), row); }

[[nodiscard]] inline QStringList columnOf(const QTableView* grid, int column)
{
    QStringList texts;
    for (int row = 0; row < grid->model()->rowCount(); ++row)
        texts.append(grid->model()->index(row, column).data().toString());
    return texts;
}

[[nodiscard]] inline QStringList headersOf(const QAbstractItemModel& model)
{
    QStringList texts;
    for (int column = 0; column < model.columnCount(); ++column)
        texts.append(model.headerData(column, Qt::Horizontal).toString());
    return texts;
}

/** Takes the first of the list below a box, as soon as it is there. */
inline void takeFirst()
{
    QTRY_VERIFY(QApplication::activePopupWidget());
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Return);
}

/** Shows the form in a window that takes the keys. */
inline void showForm(QWidget* form)
{
    form->show();
    form->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(form));
}

/** The same of a page, which is as large as its window lets it be. */
inline void showPage(QWidget* page)
{
    page->resize(1100, 600);
    showForm(page);
}

/** Clicks the button and runs the function on the form that opens; it must close the form. */
template <class Form>
void onForm(ModalDriver& people, QWidget* page, const char* button, const std::function<void(Form*)>& work)
{
    people.expect<Form>([work](Form* form) {
        bringToFront(form);
        work(form);
    });
    click(page, button);
    QVERIFY(people.finished());
}
