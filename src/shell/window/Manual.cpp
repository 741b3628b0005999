#include "shell/window/Manual.h"

#include "shell/window/HelpWindow.h"
#include "shell/window/Pages.h"

#include <QApplication>
#include <QHash>
#include <QKeyEvent>
#include <QTabWidget>

namespace
{
// Dialogs that are neither a page nor the form of a page.
const QHash<QString, QString>& places()
{
    // One entry per line.
    static const QHash<QString, QString> topics{
        {"DialogMakanDitempat", "waiter.html#order"},
        {"DialogSelectMenu", "waiter.html#order"},
        {"DialogSelectInventory", "waiter.html#order"},
        {"DialogBayarMakanDitempat", "cashier.html#table"},
        {"DialogBayarMakanDitempatDetailSplit", "cashier.html#apart"},
        {"DialogBayarBawaPulang", "cashier.html#takeaway"},
        {"TabReport", "owner.html#reports"},
        {"DialogCashierAndKitchenPrinter", "owner.html#printers"},
        {"DialogKitchenFoodPrinter", "owner.html#printers"},
        {"DialogBackupDB", "owner.html#backup"},
        {"DialogClearTransactions", "owner.html#clearing"},
        {"AppDBUpdaterWizard", "owner.html#update"},
    };
    // clang-format on
    return topics;
}
} // namespace

Manual::Manual(QString folder, QTabWidget* pages) : QObject(pages), m_folder(std::move(folder)), m_pages(pages)
{
    qApp->installEventFilter(this);
}

Manual::~Manual() = default;

QString Manual::topicOf(const QString& className)
{
    QString found = places().value(className);
    // A page and its form share a topic: DialogItem uses that of TabItem.
    const QString ofPage = className.startsWith("Dialog") ? "Tab" + className.mid(6) : className;
    const Page* page = findPage(ofPage);
    if (found.isEmpty() && page)
        found = page->topic;
    return found;
}

QStringList Manual::topics()
{
    QStringList topics = places().values();
    for (const Page& page : allPages()) {
        if (!page.topic.isEmpty())
            topics.append(page.topic);
    }
    return topics;
}

QString Manual::topic() const
{
    for (const QWidget* place : {QApplication::activeModalWidget(), m_pages->currentWidget()}) {
        QString found = place ? topicOf(place->metaObject()->className()) : QString();
        if (!found.isEmpty())
            return found;
    }
    return m_pages->currentWidget() ? "owner.html" : "index.html";
}

void Manual::open()
{
    QWidget* form = QApplication::activeModalWidget();
    openOver(form ? form : m_pages->window());
}

void Manual::openOver(QWidget* window)
{
    auto* help = window->findChild<HelpWindow*>(QString(), Qt::FindDirectChildrenOnly);
    if (!help)
        help = new HelpWindow(m_folder, window);
    help->setLanguage(m_language);
    help->showPage(topic());
    help->show();
    help->raise();
    help->activateWindow();
}

void Manual::setLanguage(const QString& code)
{
    m_language = code;
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget* window : windows) {
        if (auto* help = qobject_cast<HelpWindow*>(window))
            help->setLanguage(code);
    }
}

bool Manual::eventFilter(QObject* watched, QEvent* event)
{
    // In the main window the menu shortcut handles F1; this is for modal forms, which block the menu.
    if (event->type() == QEvent::KeyPress && QApplication::activeModalWidget() && watched->isWidgetType()) {
        const auto* key = static_cast<QKeyEvent*>(event);
        const auto* widget = static_cast<QWidget*>(watched);
        if (key->key() == Qt::Key_F1 && key->modifiers() == Qt::NoModifier &&
            !qobject_cast<HelpWindow*>(widget->window())) {
            open();
            return true;
        }
    }
    return QObject::eventFilter(watched, event);
}
