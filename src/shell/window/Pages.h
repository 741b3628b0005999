#pragma once

#include <QList>
#include <QString>

class KorDialog;
class KorTab;

/** A menu entry of the main window for a page that has none in MainWindow.ui. */
struct MenuEntry
{
    /** The object name of the menu; null for no entry. */
    const char* menu = nullptr;
    /** Marked with QT_TRANSLATE_NOOP("Pages", ...). */
    const char* text = nullptr;
    /** A shortcut such as "Alt+9", or null. */
    const char* key = nullptr;
};

/** A page that the main window can open. */
struct Page
{
    QString className;
    /** The manual's topic for the page and its form; empty: the start of the owner's chapter. */
    QString topic;
    MenuEntry entry;
    KorTab* (*make)();
    // Only for list pages with a form; empty or null for other pages.
    QString formName;
    KorDialog* (*makeForm)();
    const QMetaObject* service;
};

[[nodiscard]] const QList<Page>& allPages();
/** Null if there is no page of this class. */
[[nodiscard]] const Page* findPage(const QString& className);
