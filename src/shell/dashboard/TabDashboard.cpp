#include "shell/dashboard/TabDashboard.h"

#include "app/context/AppContext.h"
#include "app/context/EntityPool.h"
#include "app/context/EntityUser.h"
#include "kor/business/KorErrorScope.h"
#include "kor/business/KorServiceDirectory.h"
#include "kor/widgets/KorErrorBox.h"
#include "pos/printing/configuration/BusinessPrinterConfig.h"
#include "shell/dashboard/DashboardPage.h"
#include "zavel/list/EntitySalesSummaryInfo.h"
#include "zavel/list/EntitySoldItem.h"
#include "zavel/service/BusinessPenjualan.h"

#include "ui_TabDashboard.h"

#include <QApplication>
#include <QFile>
#include <QFontInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocale>
#include <QTimer>
#include <QWebFrame>

#include <algorithm>

namespace
{
constexpr int daysBack = 14;

/** The days of the figures, first and last included. */
struct Period
{
    QDate to = QDate::currentDate();
    QDate from = to.addDays(-daysBack);
};

// Always in English: the web page parses these.
QString dayText(const QDate& day) { return QLocale::c().toString(day, "dd MMM"); }
QString limitText(const QDate& day) { return QLocale::c().toString(day, "dd MMM yyyy"); }

QString compactText(const QJsonObject& object)
{
    return QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact));
}
} // namespace

TabDashboard::TabDashboard(QWidget* parent)
    : KorTab(parent), m_ui(std::make_unique<Ui::TabDashboard>()), m_sales(service<BusinessPenjualan>("Sales"))
{
    m_ui->setupUi(this);
    m_ui->webView->setPage(new DashboardPage(m_ui->webView));
    // The web page uses the same font as the program.
    m_ui->webView->settings()->setFontFamily(QWebSettings::StandardFont, QFontInfo(QApplication::font()).family());
    connect(m_ui->webView->page()->mainFrame(), &QWebFrame::javaScriptWindowObjectCleared, this,
            &TabDashboard::populateJavaScriptWindowObject);
    // The engine would show its own error page for a missing file.
    const QString file = QApplication::applicationDirPath() + "/html/index.html";
    if (QFile::exists(file))
        m_ui->webView->load(QUrl::fromLocalFile(file));
    else
        AppContext::log("dashboard: there is no " + file);
    m_ui->webView->setFocus();
    QTimer::singleShot(0, this, &TabDashboard::bindMainWnd);
}

TabDashboard::~TabDashboard() = default;

void TabDashboard::populateJavaScriptWindowObject()
{
    m_ui->webView->page()->mainFrame()->addToJavaScriptWindowObject("dashboard", this);
}

void TabDashboard::bindMainWnd()
{
    // Queued, so that the script's click handler returns before a dialog opens, which may stay open for long.
    if (QObject* window = AppContext::instance()->mainWindow())
        connect(this, SIGNAL(callMainWindowCmd(QString)), window, SLOT(on_callMainWindowCmd(QString)),
                Qt::QueuedConnection);
}

void TabDashboard::showEvent(QShowEvent* event)
{
    KorTab::showEvent(event);
    if (m_shownBefore)
        QTimer::singleShot(0, this, &TabDashboard::shownAgain);
    m_shownBefore = true;
}

void TabDashboard::tellErrors() { KorErrorBox::tell(this, m_sales->takeErrors()); }

QString TabDashboard::getUsername() const
{
    const EntityUser* user = AppContext::instance()->currentUser();
    if (!user)
        return QString();
    // Two empty names give one space, which is not empty: the user name is not shown in that case.
    const QString name = user->getFirstName() + ' ' + user->getLastName();
    return name.isEmpty() ? user->getUserName() : name;
}

QString TabDashboard::getSalesChartData()
{
    const Period period;
    EntityPool pool;
    const EntityPoolScope scope(pool);
    QJsonArray dates;
    QJsonArray counts;
    QJsonArray totals;
    for (const EntitySalesSummaryInfo* day :
         m_sales->getDailySales(period.from, period.to, BusinessPenjualan::AllUsers)) {
        dates.append(dayText(day->getDate()));
        counts.append(QString::number(day->getSalesCount()));
        totals.append(QString::number(day->getTotal()));
    }
    tellErrors();
    return compactText({{"dates", dates},
                        {"nsales", counts},
                        {"totalsales", totals},
                        {"fromdate", limitText(period.from)},
                        {"todate", limitText(period.to)}});
}

QString TabDashboard::getSoldItemsData()
{
    const Period period;
    EntityPool pool;
    const EntityPoolScope scope(pool);
    QJsonArray names;
    QJsonArray quantities;
    QJsonArray totals;
    for (const EntitySoldItem* item : m_sales->getSoldItems(period.from, period.to, "desc", "total_qty", "")) {
        names.append(item->getNama());
        quantities.append(QString::number(item->getTotalQty()));
        totals.append(QString::number(item->getTotalPrice()));
    }
    tellErrors();
    return compactText({{"items", names},
                        {"nsales", quantities},
                        {"totalsales", totals},
                        {"fromdate", limitText(period.from)},
                        {"todate", limitText(period.to)}});
}

QString TabDashboard::getLocalization() const
{
    const QLocale locale(AppContext::instance()->locale());
    // The position of the currency symbol, taken from a sample without decimals: amounts are whole units.
    QString money = locale.toCurrencyString(1, locale.currencySymbol());
    money.replace(locale.toString(1), "%1");
    return compactText({{"currency", locale.currencySymbol()},
                        {"money", money},
                        {"group", locale.toString(1000).size() > 4 ? QString(locale.groupSeparator()) : QString()}});
}

QString TabDashboard::getOpenSteps()
{
    EntityPool pool;
    const EntityPoolScope scope(pool);
    auto* printers = service<BusinessPrinterConfig>("Printer Config");
    // The sales figures, which are read next, report a lost connection.
    const KorErrorScope errors(printers);
    QJsonArray steps;
    const auto* cashier = printers->getCashierPrinterConfig();
    if (cashier && cashier->isAsInstalled())
        steps.append("cashierprinter");
    const QList<EntityConfigKitchenPrinter*> kitchens = printers->getAllKitchenPrinterConfig();
    const auto isOpen = [](const EntityConfigKitchenPrinter* kitchen) { return kitchen->isAsInstalled(); };
    if (std::all_of(kitchens.cbegin(), kitchens.cend(), isOpen))
        steps.append("kitchenprinter");
    return QString::fromUtf8(QJsonDocument(steps).toJson(QJsonDocument::Compact));
}

QString TabDashboard::translated(const QString& text) const
{
    // "dashboard" is the context of the page's texts in the translation files.
    return QCoreApplication::translate("dashboard", text.toUtf8().constData());
}
