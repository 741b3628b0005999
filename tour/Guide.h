#pragma once

#include "tour/Words.h"

#include <QSize>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <functional>

/**
 * The hands and eyes of a tour. It runs on a thread of its own and drives the program with the events that a person
 * makes; every look at a widget and every event happens on the program's thread. What does not come true in time
 * ends the tour with a picture of where it stopped.
 */
class Guide
{
public:
    /** Pictures, slips and the summary go to this folder. */
    explicit Guide(const QString& folder);

    /** Says what the following is about: a heading of the summary and the name of the pictures. */
    void chapter(const QString& title);
    /** A line of the summary. */
    void note(const QString& line);
    /** Saves what is on screen as the next picture. */
    void picture(const QString& name);
    [[noreturn]] void fail(const QString& reason);

    // Looking. A window is named by its class; a widget by its name inside the active window.
    void waitForWindow(const QString& className);
    void waitUntilClosed(const QString& className);
    void waitFor(const QString& what, const std::function<bool()>& condition);
    /** A widget of the front window, visible and enabled. */
    void waitForWidget(const QString& widget);
    /** The row with the first text in some cell has the second one in another. */
    void expectRow(const QString& grid, const QString& rowText, const QString& cellText);
    [[nodiscard]] QString textOf(const QString& widget);
    void expectText(const QString& widget, const QString& text);
    /** Waits for a message box with this text in it and presses the button. */
    void answer(const QString& text, const QString& button);
    [[nodiscard]] QVariant ask(const std::function<QVariant()>& look);

    // Doing.
    /** Gives the program's main window the size of a till's screen. */
    void resizeMainWindow(const QSize& size);
    void type(const QString& text);
    void key(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    /** Puts the cursor into the field, with everything in it selected. */
    void enter(const QString& field);
    void fill(const QString& field, const QString& text);
    void click(const QString& widget);
    /** Chooses the row of the grid that has this text in some cell. */
    void chooseRow(const QString& grid, const QString& text);
    /** Chooses the entry of the combo box that has this text. */
    void choose(const QString& box, const QString& text);
    /** Types into a lookup box, waits for its list and takes the first entry. */
    void lookUp(const QString& field, const QString& text);
    /** Triggers the entry of the menu, or of the one in it, that has this object name or data, by the mouse. */
    void menu(const QString& menuName, const QString& actionName, const QString& subMenuName = {});

    /** Changes the interface to the language that the tour was asked to speak, if to any. */
    void chooseLanguage();
    /** Closes the page in front by its key. */
    void closePage();
    /** Presses OK in the front dialog's button box. */
    void pressOk();
    /** Waits for the next slip of the folder spool, which must hold these texts; it joins the summary. */
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
