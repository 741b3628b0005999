#pragma once

#include <QList>
#include <QString>

class KorDialog;
class KorTab;

/** A line in a menu of the main window, for a page that MainWindow.ui has none for. */
struct MenuEntry
{
    /** The object name of the menu; null for a page without a line. */
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
    /** The place in the manual that tells about the page and its form; empty for the beginning of the owner's part. */
    QString topic;
    MenuEntry entry;
    KorTab* (*make)();
    // Of a family's list; empty and null for other pages.
    QString formName;
    KorDialog* (*makeForm)();
    const QMetaObject* service;
};

[[nodiscard]] const QList<Page>& allPages();
/** Null for a class that no page has. */
[[nodiscard]] const Page* findPage(const QString& className);
