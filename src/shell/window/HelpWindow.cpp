#include "shell/window/HelpWindow.h"

#include <QBoxLayout>
#include <QEvent>
#include <QFileInfo>
#include <QHeaderView>
#include <QIcon>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>
#include <QSplitter>
#include <QStyle>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTreeWidget>

namespace
{
constexpr int contentsWidth = 260;
constexpr int placeRole = Qt::UserRole;

struct Heading
{
    int level;
    QString text;
    QString anchor;
};

/** The headings of the document; those that links can reach have an anchor. */
QList<Heading> headingsOf(const QTextDocument* document)
{
    QList<Heading> headings;
    for (QTextBlock block = document->begin(); block.isValid(); block = block.next()) {
        const int level = block.blockFormat().headingLevel();
        if (level == 0 || block.text().trimmed().isEmpty())
            continue;
        QString anchor;
        for (auto piece = block.begin(); anchor.isEmpty() && !piece.atEnd(); ++piece)
            anchor = piece.fragment().charFormat().anchorNames().value(0);
        headings.append({level, block.text().trimmed(), anchor});
    }
    return headings;
}
} // namespace

HelpWindow::HelpWindow(QString folder, QWidget* parent)
    : QWidget(parent, Qt::Window), m_folder(std::move(folder)), m_contents(new QTreeWidget(this)),
      m_page(new QTextBrowser(this)), m_back(new QPushButton(this)), m_forward(new QPushButton(this)),
      m_home(new QPushButton(this)), m_findLabel(new QLabel(this)), m_find(new QLineEdit(this))
{
    build();
    retranslate();
    fillContents();
    resize(1130, 700);
}

HelpWindow::~HelpWindow() = default;

QStringList HelpWindow::pages() { return {"index.html", "waiter.html", "cashier.html", "kitchen.html", "owner.html"}; }

void HelpWindow::build()
{
    setWindowIcon(QIcon(":/icons/Beverage-Coffee-02.png"));
    m_contents->setObjectName("contents");
    m_contents->setHeaderHidden(true);
    m_page->setObjectName("page");
    m_page->setOpenExternalLinks(false);
    m_find->setObjectName("find");
    m_find->setMaximumWidth(240);
    m_find->setClearButtonEnabled(true);
    m_findLabel->setBuddy(m_find);
    m_back->setIcon(style()->standardIcon(QStyle::SP_ArrowBack));
    m_forward->setIcon(style()->standardIcon(QStyle::SP_ArrowForward));
    m_home->setIcon(style()->standardIcon(QStyle::SP_DirHomeIcon));
    for (QPushButton* button : {m_back, m_forward})
        button->setEnabled(false);

    auto* line = new QHBoxLayout;
    line->setSpacing(8);
    for (QPushButton* button : {m_back, m_forward, m_home})
        line->addWidget(button);
    line->addStretch();
    line->addWidget(m_findLabel);
    line->addWidget(m_find);
    auto* parts = new QSplitter(Qt::Horizontal);
    parts->addWidget(m_contents);
    parts->addWidget(m_page);
    parts->setStretchFactor(1, 1);
    parts->setSizes({contentsWidth, 1130 - contentsWidth});
    parts->setChildrenCollapsible(false);
    auto* all = new QVBoxLayout(this);
    all->setContentsMargins(12, 12, 12, 12);
    all->setSpacing(8);
    all->addLayout(line);
    all->addWidget(parts, 1);

    connect(m_back, &QPushButton::clicked, m_page, &QTextBrowser::backward);
    connect(m_forward, &QPushButton::clicked, m_page, &QTextBrowser::forward);
    connect(m_home, &QPushButton::clicked, this, [this] { showPage(pages().first()); });
    connect(m_page, &QTextBrowser::backwardAvailable, m_back, &QWidget::setEnabled);
    connect(m_page, &QTextBrowser::forwardAvailable, m_forward, &QWidget::setEnabled);
    connect(m_page, &QTextBrowser::sourceChanged, this, [this](const QUrl& place) {
        // At this time QTextBrowser::source() still returns the previous page.
        m_place = place;
        markContents();
    });
    const auto go = [this](const QTreeWidgetItem* item) { showPage(item->data(0, placeRole).toString()); };
    connect(m_contents, &QTreeWidget::itemClicked, this, go);
    connect(m_contents, &QTreeWidget::itemActivated, this, go);
    connect(m_find, &QLineEdit::textChanged, this, [this] { m_find->setStyleSheet(QString()); });
    connect(m_find, &QLineEdit::returnPressed, this, &HelpWindow::findInPage);
    const auto* search = new QShortcut(QKeySequence::Find, this);
    connect(search, &QShortcut::activated, m_find, [this] {
        m_find->setFocus(Qt::ShortcutFocusReason);
        m_find->selectAll();
    });
}

void HelpWindow::retranslate()
{
    setWindowTitle(tr("Manual"));
    m_page->setAccessibleName(windowTitle());
    const auto word = [](QPushButton* button, const QString& text, const QKeySequence& key) {
        button->setText(text);
        button->setShortcut(key);
        button->setToolTip(text + " (" + key.toString(QKeySequence::NativeText) + ')');
    };
    word(m_back, tr("Back"), QKeySequence("Alt+Left"));
    word(m_forward, tr("Forward"), QKeySequence("Alt+Right"));
    word(m_home, tr("Contents"), QKeySequence("Alt+Home"));
    m_findLabel->setText(tr("Find in the page:"));
    m_find->setToolTip(tr("Return goes on to the next place (Ctrl+F)"));
    m_contents->setToolTip(tr("Contents"));
}

void HelpWindow::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QWidget::changeEvent(event);
}

void HelpWindow::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape)
        close();
    else
        QWidget::keyPressEvent(event);
}

void HelpWindow::setLanguage(const QString& code)
{
    if (code == m_language)
        return;
    m_language = code;
    fillContents();
    if (!m_place.isEmpty())
        showPage(m_place.fileName() + '#' + m_place.fragment());
}

void HelpWindow::showPage(const QString& page)
{
    const QString path = pathOf(page.section('#', 0, 0));
    if (!QFileInfo::exists(path))
        return tellMissing();
    QUrl place = QUrl::fromLocalFile(path);
    if (!page.section('#', 1).isEmpty())
        place.setFragment(page.section('#', 1));
    m_page->setSource(place);
}

QString HelpWindow::pathOf(const QString& page) const
{
    const QString own = QString("%1/%2/%3").arg(m_folder, m_language, page);
    return QFileInfo::exists(own) ? own : QString("%1/en/%2").arg(m_folder, page);
}

void HelpWindow::tellMissing()
{
    m_page->setHtml(QString("<h2>%1</h2><p>%2</p>")
                        .arg(tr("The manual is not here"),
                             tr("Its pages were not installed with the program. They belong into this folder: %1")
                                 .arg(m_folder.toHtmlEscaped())));
}

void HelpWindow::fillContents()
{
    const QSignalBlocker quiet(m_contents);
    m_contents->clear();
    for (const QString& page : pages()) {
        QFile file(pathOf(page));
        if (!file.open(QIODevice::ReadOnly))
            continue;
        QTextDocument document;
        document.setHtml(QString::fromUtf8(file.readAll()));
        QTreeWidgetItem* entry = nullptr;
        for (const Heading& heading : headingsOf(&document)) {
            if (heading.level == 1) {
                entry = new QTreeWidgetItem(m_contents, {heading.text});
                entry->setData(0, placeRole, page);
            } else if (heading.level == 2 && entry && !heading.anchor.isEmpty()) {
                auto* part = new QTreeWidgetItem(entry, {heading.text});
                part->setData(0, placeRole, page + '#' + heading.anchor);
                part->setToolTip(0, heading.text);
            }
        }
    }
    markContents();
}

void HelpWindow::markContents()
{
    const QString page = m_place.fileName();
    const QString place = page + '#' + m_place.fragment();
    for (int i = 0; i < m_contents->topLevelItemCount(); ++i) {
        QTreeWidgetItem* entry = m_contents->topLevelItem(i);
        if (entry->data(0, placeRole).toString() != page)
            continue;
        entry->setExpanded(true);
        m_contents->setCurrentItem(entry);
        for (int j = 0; j < entry->childCount(); ++j) {
            if (entry->child(j)->data(0, placeRole).toString() == place)
                m_contents->setCurrentItem(entry->child(j));
        }
    }
}

void HelpWindow::findInPage()
{
    const QString text = m_find->text();
    if (text.isEmpty() || m_page->find(text))
        return;
    // Not found below the cursor: search again from the top.
    m_page->moveCursor(QTextCursor::Start);
    if (!m_page->find(text))
        m_find->setStyleSheet("background:#fbe3e4;");
}
