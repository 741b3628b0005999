#pragma once

#include "tour/Words.h"

#include <QSize>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <functional>

/**
 * Drives the program with real input events and checks what it shows. It runs on a separate thread; every event and
 * every access to a widget happens on the main thread. If a condition is not met in time, it saves a picture and ends
 * the tour with an error.
 */
class Guide
{
public:
    /** The folder gets pictures, slips and the summary. */
    explicit Guide(const QString& folder);

    /** Starts a chapter: a heading in the summary, and part of the picture names. */
    void chapter(const QString& title);
    /** Adds a line to the summary. */
    void note(const QString& line);
    /** Saves what is on screen as the next picture. */
    void picture(const QString& name);
    [[noreturn]] void fail(const QString& reason);

    // Reading. Windows are found by class name, widgets by object name in the active window.
    void waitForWindow(const QString& className);
    void waitUntilClosed(const QString& className);
    void waitFor(const QString& what, const std::function<bool()>& condition);
    /** Waits until a widget of the front window is visible and enabled. */
    void waitForWidget(const QString& widget);
    /** Checks that the row with the first text in any cell has the second text in another. */
    void expectRow(const QString& grid, const QString& rowText, const QString& cellText);
    [[nodiscard]] QString textOf(const QString& widget);
    void expectText(const QString& widget, const QString& text);
    /** Waits for a message box that contains this text and presses the button. */
    void answer(const QString& text, const QString& button);
    [[nodiscard]] QVariant ask(const std::function<QVariant()>& look);

    // Acting.
    /** Resizes the main window, for example to the size of a till's screen. */
    void resizeMainWindow(const QSize& size);
    void type(const QString& text);
    void key(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    /** Focuses the field and selects its text. */
    void enter(const QString& field);
    void fill(const QString& field, const QString& text);
    void click(const QString& widget);
    /** Selects the row that has this text in any cell. */
    void chooseRow(const QString& grid, const QString& text);
    /** Selects the entry with this text in the combo box. */
    void choose(const QString& box, const QString& text);
    /** Types into a lookup box, waits for its list and selects the first entry. */
    void lookUp(const QString& field, const QString& text);
    /** Clicks the entry with this object name or data in the menu or sub-menu. */
    void menu(const QString& menuName, const QString& actionName, const QString& subMenuName = {});

    /** Changes to the language that was requested for the tour, if any. */
    void chooseLanguage();
    /** Closes the current page by its shortcut. */
    void closePage();
    /** Presses OK in the front dialog's button box. */
    void pressOk();
    /** Waits for the next slip in the spool folder, which must contain these texts, and adds it to the summary. */
    void expectSlip(const QStringList& texts);

    [[nodiscard]] const QString& folder() const { return m_folder; }

private:
    void act(const std::function<void()>& action);
    QString nextSlip();
    [[nodiscard]] bool isAmong(const QStringList& texts, const QString& expected) const;

    QString m_folder;
    QString m_language;
    Words m_words;
    QString m_chapter;
    int m_pictures = 0;
    int m_slips = 0;
};
