#include "pos/purchasing/document/SelectDocumentDialog.h"

#include "pos/purchasing/document/SelectDocumentTab.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

SelectDocumentDialog::SelectDocumentDialog(const QString& title, SelectDocumentTab* page, const QString& pageTitle,
                                           QWidget* parent)
    : QDialog(parent), m_page(page)
{
    setWindowTitle(title);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    resize(940, 460);
    auto* pages = new QTabWidget(this);
    pages->addTab(page, pageTitle);
    // Inside the page the tab order is a ring, in which the list already follows the search button.
    if (auto* search = page->findChild<QPushButton*>("btnSearch"))
        setTabOrder(search, page->focusProxy());
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    auto* layout = new QVBoxLayout(this);
    layout->setSpacing(12);
    layout->addWidget(pages);
    layout->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &SelectDocumentDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &SelectDocumentDialog::reject);
    connect(page, &SelectDocumentTab::chosen, this, &SelectDocumentDialog::accept);
    page->setFocus();
}

void SelectDocumentDialog::accept()
{
    // Stay open if no document is selected.
    m_selectedId = m_page->selectedId();
    if (m_selectedId != KorNoValue)
        QDialog::accept();
}
