#include "shell/dashboard/DashboardPage.h"

#include "app/context/AppContext.h"

#include <QNetworkRequest>
#include <QUrl>

DashboardPage::DashboardPage(QObject* parent) : QWebPage(parent) {}

bool DashboardPage::acceptNavigationRequest(QWebFrame* frame, const QNetworkRequest& request, NavigationType type)
{
    Q_UNUSED(frame)
    Q_UNUSED(type)
    // The script may open any screen of the program: only files of the program get to be that script.
    return request.url().isLocalFile() || request.url() == QUrl("about:blank");
}

void DashboardPage::javaScriptConsoleMessage(const QString& message, int lineNumber, const QString& sourceID)
{
    AppContext::log(QString("dashboard: %1 (%2:%3)").arg(message, QUrl(sourceID).fileName()).arg(lineNumber));
}
