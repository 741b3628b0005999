#pragma once

#include <QObject>
#include <QWidget>

class KorTab;
class QTabWidget;

/** The open pages of the main window: each class at most once, reports told apart by their titles as well. */
class PageArea final : public QObject
{
    Q_OBJECT

public:
    explicit PageArea(QTabWidget* tabs);

    /** True when a new page was opened; an open page of that class is only shown. The class has to be known. */
    bool open(const QString& className);
    /** Shows a new report, or the open one of that title, and the new one goes. Takes the report over. */
    void openReport(KorTab* report);
    /** The first page of that class and, where one is given, of that title; -1 for none. */
    [[nodiscard]] int find(const QString& className, const QString& title = QString()) const;

    /** A page with a form or a question open stays until that is closed. */
    void remove(int index);
    /** Removes the page of that class, if there is one. */
    void removeClass(const QString& className);
    void removeReport(const QWidget* report);
    /** At once, and not only when the program comes to rest: their records may be about to go. */
    void removeAll();
    /** Makes every page anew in the language in use; what stands in its boxes stays. */
    void retranslate();
    /** Makes every page anew on the database in use; what stands in its boxes stays, and reports go. */
    void makeAnew();

signals:
    /** A page has come or gone. */
    void changed();

private:
    [[nodiscard]] KorTab* make(const QString& className);
    /** Removes the page unless it is busy; then it goes when it is free. */
    void removePage(QWidget* page);
    void takeOut(QWidget* page);
    void makePagesAnew();
    void add(QWidget* page);
    void show(int index);
    [[nodiscard]] QWidgetList pages() const;
    void focusPage();

    QTabWidget* m_tabs;
};
