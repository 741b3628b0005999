#include "shell/window/PageArea.h"

#include "kor/widgets/KorTab.h"
#include "shell/window/PageBoxes.h"
#include "shell/window/Pages.h"

#include <QAbstractButton>
#include <QPointer>
#include <QTabWidget>

PageArea::PageArea(QTabWidget* tabs) : QObject(tabs), m_tabs(tabs) { tabs->setTabsClosable(true); }

bool PageArea::open(const QString& className)
{
    const int index = find(className);
    if (index >= 0) {
        show(index);
        return false;
    }
    // A page loses its focus widget when it gets a new parent.
    KorTab* tab = make(className);
    QWidget* inner = tab->focusWidget();
    tab->setParent(m_tabs->window());
    add(tab);
    if (inner)
        inner->setFocus(Qt::OtherFocusReason);
    return true;
}

KorTab* PageArea::make(const QString& className)
{
    KorTab* tab = findPage(className)->make();
    connect(tab, &KorTab::onclose, this, [this, className] { removeClass(className); });
    return tab;
}

void PageArea::openReport(KorTab* report)
{
    for (int index = 0; index < m_tabs->count(); ++index) {
        if (m_tabs->widget(index)->windowTitle() == report->windowTitle()) {
            delete report;
            show(index);
            return;
        }
    }
    connect(report, &KorTab::onclose, this, &PageArea::removeReport);
    connect(report, &QWidget::windowTitleChanged, this,
            [this, report](const QString& title) { m_tabs->setTabText(m_tabs->indexOf(report), title); });
    add(report);
}

void PageArea::retranslate()
{
    for (const QWidget* page : pages()) {
        if (KorTab::putOff(page, this, [this] { retranslate(); }))
            return;
    }
    // Close buttons keep the tool tip of the language in which they were created.
    m_tabs->setTabsClosable(false);
    m_tabs->setTabsClosable(true);
    // A report retranslates itself on the same event.
    makePagesAnew();
}

void PageArea::makeAnew()
{
    for (QWidget* page : pages()) {
        if (KorTab::putOff(page, this, [this] { makeAnew(); }))
            return;
    }
    for (QWidget* page : pages()) {
        // Reports are closed; the user opens them again.
        if (!findPage(page->metaObject()->className()))
            removePage(page);
    }
    makePagesAnew();
}

void PageArea::makePagesAnew()
{
    const int shown = m_tabs->currentIndex();
    QList<QPointer<QWidget>> former;
    for (QWidget* page : pages())
        former.append(page);
    for (const QPointer<QWidget>& page : qAsConst(former)) {
        if (!page || !findPage(page->metaObject()->className()))
            continue;
        // A page has no unsaved data, and its lists must be read again anyway. An error while reading is shown in a
        // message box; while it is open, the old page may be removed or replaced.
        const QPointer<KorTab> successor = make(page->metaObject()->className());
        const int index = page ? m_tabs->indexOf(page) : -1;
        if (index < 0 || !successor) {
            delete successor;
            continue;
        }
        const bool differs = PageBoxes(*page).putInto(*successor);
        m_tabs->removeTab(index);
        m_tabs->insertTab(index, successor, successor->windowTitle());
        delete page;
        auto* search = successor->findChild<QAbstractButton*>("btnSearch");
        if (differs && search)
            search->click();
    }
    m_tabs->setCurrentIndex(shown);
    emit changed();
}

void PageArea::add(QWidget* page)
{
    show(m_tabs->addTab(page, page->windowTitle()));
    emit changed();
}

void PageArea::show(int index)
{
    m_tabs->setCurrentIndex(index);
    m_tabs->setFocus(Qt::OtherFocusReason);
    focusPage();
}

void PageArea::focusPage()
{
    // Focus the widget of the page that had the focus last.
    const QWidget* page = m_tabs->currentWidget();
    if (QWidget* inner = page ? page->focusWidget() : nullptr)
        inner->setFocus(Qt::OtherFocusReason);
}

int PageArea::find(const QString& className, const QString& title) const
{
    for (int index = 0; index < m_tabs->count(); ++index) {
        const QWidget* page = m_tabs->widget(index);
        if (className == QLatin1String(page->metaObject()->className()) &&
            (title.isNull() || title == page->windowTitle()))
            return index;
    }
    return -1;
}

void PageArea::remove(int index)
{
    if (QWidget* page = m_tabs->widget(index))
        removePage(page);
}

void PageArea::removePage(QWidget* page)
{
    if (KorTab::putOff(page, this, [this, page = QPointer<QWidget>(page)] {
            if (page)
                removePage(page);
        }))
        return;
    takeOut(page);
    page->deleteLater();
}

void PageArea::takeOut(QWidget* page)
{
    // Focus the tab bar first; otherwise the focus would move to the first field of the next page.
    m_tabs->setFocus(Qt::OtherFocusReason);
    m_tabs->removeTab(m_tabs->indexOf(page));
    emit changed();
    focusPage();
}

void PageArea::removeClass(const QString& className)
{
    const int index = find(className);
    if (index >= 0)
        remove(index);
}

void PageArea::removeReport(const QWidget* report)
{
    const QString className = report->metaObject()->className();
    const QString title = report->windowTitle();
    for (QWidget* page : pages()) {
        if (className == QLatin1String(page->metaObject()->className()) && title == page->windowTitle())
            removePage(page);
    }
}

QWidgetList PageArea::pages() const
{
    QWidgetList all;
    for (int index = 0; index < m_tabs->count(); ++index)
        all.append(m_tabs->widget(index));
    return all;
}

void PageArea::removeAll()
{
    for (QWidget* page : pages()) {
        if (KorTab::isBusy(page)) {
            removePage(page);
            continue;
        }
        takeOut(page);
        delete page;
    }
}
