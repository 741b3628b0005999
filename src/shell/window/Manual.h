#pragma once

#include <QObject>

class HelpWindow;
class QTabWidget;

/**
 * Opens the manual where the people are: at what the page or the form in front is about. Forms that hold the keys get
 * a window of their own by F1, for the main window's keys and windows rest behind them.
 */
class Manual final : public QObject
{
    Q_OBJECT

public:
    /** The pages of the window tell what is being worked at; the window of the manual lies over theirs. */
    Manual(QString folder, QTabWidget* pages);
    ~Manual() override;

    void open();
    void setLanguage(const QString& code);

    /** The place in the manual for a page or a form of this class; empty for one that has none of its own. */
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
