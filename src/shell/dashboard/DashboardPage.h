#pragma once

#include <QWebPage>

/** The web page inside the dashboard. It refuses links to other sites and logs the errors of its script. */
class DashboardPage final : public QWebPage
{
    Q_OBJECT

public:
    explicit DashboardPage(QObject* parent);

    /** A script call may open a message box and so run for a long time; do not offer to stop the script. */
    bool shouldInterruptJavaScript() override { return false; }

protected:
    bool acceptNavigationRequest(QWebFrame* frame, const QNetworkRequest& request, NavigationType type) override;
    void javaScriptConsoleMessage(const QString& message, int lineNumber, const QString& sourceID) override;
};
