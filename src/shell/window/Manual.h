#pragma once

#include <QObject>

class HelpWindow;
class QTabWidget;

/**
 * Opens the manual at the topic of the current page or form. For a modal form, F1 opens a separate help window, since
 * the main window's shortcuts and windows are blocked.
 */
class Manual final : public QObject
{
    Q_OBJECT

public:
    /** The current page of the tab widget decides the topic; its window is the parent of the help window. */
    Manual(QString folder, QTabWidget* pages);
    ~Manual() override;

    void open();
    void setLanguage(const QString& code);

    /** The manual's topic for a page or form class; empty if it has none. */
    [[nodiscard]] static QString topicOf(const QString& className);
    [[nodiscard]] static QStringList topics();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void openOver(QWidget* window);
    [[nodiscard]] QString topic() const;

    QString m_folder;
    QTabWidget* m_pages;
    QString m_language = "en";
};
