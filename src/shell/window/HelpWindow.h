#pragma once

#include <QUrl>
#include <QWidget>

class QLabel;
class QLineEdit;
class QPushButton;
class QTextBrowser;
class QTreeWidget;
class QTreeWidgetItem;

/** The manual beside the work: its contents, the page, the way back, and a search in the page. */
class HelpWindow final : public QWidget
{
    Q_OBJECT

public:
    /** The folder holds a folder a language. The window lies over its parent and goes with it. */
    HelpWindow(QString folder, QWidget* parent);
    ~HelpWindow() override;

    /** English where the manual does not speak the language. The page that is open stays open. */
    void setLanguage(const QString& code);
    /** "waiter.html", or "owner.html#reports" for a part of it. */
    void showPage(const QString& page);

    /** The pages as they stand in the contents. */
    [[nodiscard]] static QStringList pages();

protected:
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void build();
    void retranslate();
    void fillContents();
    void findInPage();
    void markContents();
    void tellMissing();
    [[nodiscard]] QString pathOf(const QString& page) const;

    QString m_folder;
    QString m_language = "en";
    QUrl m_place;
    QTreeWidget* m_contents;
    QTextBrowser* m_page;
    QPushButton* m_back;
    QPushButton* m_forward;
    QPushButton* m_home;
    QLabel* m_findLabel;
    QLineEdit* m_find;
};
