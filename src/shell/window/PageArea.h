#pragma once

#include <QObject>
#include <QWidget>

class KorTab;
class QTabWidget;

/** The open pages of the main window: one per class; for reports, one per class and title. */
class PageArea final : public QObject
{
    Q_OBJECT

public:
    explicit PageArea(QTabWidget* tabs);

    /**
     * True if a new page was opened; a page of this class that is already open becomes current. The class must be
     * known.
     */
    bool open(const QString& className);
    /**
     * Shows a new report. If one with this title is open, it shows that one and deletes the new one. Takes ownership.
     */
    void openReport(KorTab* report);
    /** The first page of this class and, if given, of this title; -1 if there is none. */
    [[nodiscard]] int find(const QString& className, const QString& title = QString()) const;

    /** A page with an open form or message box is removed only after that is closed. */
    void remove(int index);
    /** Removes the page of that class, if there is one. */
    void removeClass(const QString& className);
    void removeReport(const QWidget* report);
    /**
     * Deletes the pages at once, not with deleteLater(), since their records may be deleted next. Busy pages are
     * removed as soon as they are free.
     */
    void removeAll();
    /** Creates every page again in the current language; inputs in its boxes are kept. */
    void retranslate();
    /** Creates every page again on the current database; inputs in its boxes are kept, reports are closed. */
    void makeAnew();

signals:
    /** A page was added or removed. */
    void changed();

private:
    [[nodiscard]] KorTab* make(const QString& className);
    /** Removes the page; if it is busy, as soon as it is free. */
    void removePage(QWidget* page);
    void takeOut(QWidget* page);
    void makePagesAnew();
    void add(QWidget* page);
    void show(int index);
    [[nodiscard]] QWidgetList pages() const;
    void focusPage();

    QTabWidget* m_tabs;
};
