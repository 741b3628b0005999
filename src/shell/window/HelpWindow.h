#pragma once

#include <QUrl>
#include <QWidget>

class QLabel;
class QLineEdit;
class QPushButton;
class QTextBrowser;
class QTreeWidget;
class QTreeWidgetItem;

/** The window of the manual: contents, page, back and forward, and a search in the page. */
class HelpWindow final : public QWidget
{
    Q_OBJECT

public:
    /** The folder has one subfolder per language. The window stays above its parent, which owns it. */
    HelpWindow(QString folder, QWidget* parent);
    ~HelpWindow() override;

    /** Falls back to English if there is no manual in this language. The open page stays open. */
    void setLanguage(const QString& code);
    /** "waiter.html", or "owner.html#reports" for a section. */
    void showPage(const QString& page);

    /** All pages in the order of the contents. */
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
