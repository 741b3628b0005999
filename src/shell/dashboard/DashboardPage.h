#pragma once

#include <QWebPage>

/** The web page inside the dashboard: it stays at its own file, and what its script complains about is logged. */
class DashboardPage final : public QWebPage
{
    Q_OBJECT

public:
    explicit DashboardPage(QObject* parent);

    /** A message box may stand in the middle of a call from the script for as long as it is not answered. */
    bool shouldInterruptJavaScript() override { return false; }

protected:
    bool acceptNavigationRequest(QWebFrame* frame, const QNetworkRequest& request, NavigationType type) override;
    void javaScriptConsoleMessage(const QString& message, int lineNumber, const QString& sourceID) override;
};
