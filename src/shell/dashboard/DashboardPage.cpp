#include "shell/dashboard/DashboardPage.h"

#include "app/context/AppContext.h"

#include <QNetworkRequest>
#include <QUrl>

DashboardPage::DashboardPage(QObject* parent) : QWebPage(parent) {}

bool DashboardPage::acceptNavigationRequest(QWebFrame* frame, const QNetworkRequest& request, NavigationType type)
{
    Q_UNUSED(frame)
    Q_UNUSED(type)
    // Scripts on the page may open any page of the program, so only local files are loaded.
    return request.url().isLocalFile() || request.url() == QUrl("about:blank");
}

void DashboardPage::javaScriptConsoleMessage(const QString& message, int lineNumber, const QString& sourceID)
{
    AppContext::log(QString("dashboard: %1 (%2:%3)").arg(message, QUrl(sourceID).fileName()).arg(lineNumber));
}
