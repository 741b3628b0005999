#include "shell/window/Manual.h"

#include "shell/window/HelpWindow.h"

#include <QApplication>
#include <QHash>
#include <QKeyEvent>
#include <QTabWidget>

namespace
{
const QHash<QString, QString>& places()
{
    // One place a line, whatever the others are called.
    // clang-format off
    static const QHash<QString, QString> topics{
        {"TabDashboard", "index.html"},
        {"TabMakanDitempat", "waiter.html"},
        {"DialogMakanDitempat", "waiter.html#order"},
        {"DialogSelectMenu", "waiter.html#order"},
        {"DialogSelectInventory", "waiter.html#order"},
        {"DialogBayarMakanDitempat", "cashier.html#table"},
        {"DialogBayarMakanDitempatDetailSplit", "cashier.html#apart"},
        {"TabFastFood", "cashier.html#counter"},
        {"DialogFastFood", "cashier.html#counter"},
        {"TabBawaPulang", "cashier.html#takeaway"},
        {"DialogBawaPulang", "cashier.html#takeaway"},
        {"DialogBayarBawaPulang", "cashier.html#takeaway"},
        {"TabDaftarPenjualan", "cashier.html#sales"},
        {"TabPrintedSlips", "cashier.html#slips"},
        {"TabPiutang", "cashier.html#members"},
        {"DialogPiutang", "cashier.html#members"},
        {"TabPesananMasuk", "kitchen.html"},
        {"TabItem", "owner.html#begin"},
        {"DialogItem", "owner.html#begin"},
        {"TabMeja", "owner.html#begin"},
        {"TabStokAwal", "owner.html#goods"},
        {"TabInventoryAdj", "owner.html#goods"},
        {"TabKartuStok", "owner.html#goods"},
        {"TabPurchaseOrder", "owner.html#purchasing"},
        {"TabPurchases", "owner.html#purchasing"},
        {"TabCreditNote", "owner.html#purchasing"},
        {"TabPayment", "owner.html#purchasing"},
        {"TabCashFlow", "owner.html#cash"},
        {"TabTransfer", "owner.html#cash"},
        {"TabBank", "owner.html#cash"},
        {"TabAllKomisiAgen", "owner.html#cash"},
        {"TabKomisiAgen", "owner.html#cash"},
        {"TabReport", "owner.html#reports"},
        {"TabUser", "owner.html#users"},
        {"TabUserGroup", "owner.html#users"},
        {"TabUserAccess", "owner.html#users"},
        {"TabKitchenPrinter", "owner.html#printers"},
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

QString Manual::topicOf(const QString& className) { return places().value(className); }

QStringList Manual::topics() { return places().values(); }

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
    // In the main window the menu's key comes first; here are the forms that the menu can not be reached from.
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
