#include "pos/purchasing/document/SelectDocumentTab.h"

#include "app/widgets/AppFilterBar.h"
#include "kor/business/KorBusinessLogic.h"
#include "kor/business/KorErrorScope.h"
#include "kor/entity/KorEntity.h"
#include "kor/widgets/KorDialog.h"
#include "kor/widgets/KorEntityModel.h"
#include "kor/widgets/KorErrorBox.h"

#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>

SelectDocumentTab::SelectDocumentTab(const QString& gridName, KorBusinessLogic* documents, QWidget* parent)
    : AppTab(parent), m_documents(documents), m_layout(new QVBoxLayout(this)), m_grid(new QTableView(this)),
      m_count(new QLabel(this))
{
    m_grid->setObjectName(gridName);
    m_grid->horizontalHeader()->setHighlightSections(false);
    m_grid->setWordWrap(false);
    m_count->setObjectName("lblCount");
    m_layout->setContentsMargins(8, 8, 8, 8);
    m_layout->setSpacing(8);
    m_layout->addWidget(m_grid);
    m_layout->addWidget(m_count);
    setFocusProxy(m_grid);
    connect(m_grid, &QTableView::activated, this, &SelectDocumentTab::chosen);
}

void SelectDocumentTab::addFilters(AppFilterBar* bar)
{
    auto* search = new QPushButton(QIcon(":/icons/zoom.png"), tr("Search"), this);
    search->setObjectName("btnSearch");
    // Return in a filter searches; Return in the list chooses.
    search->setDefault(true);
    connect(search, &QPushButton::clicked, this, &SelectDocumentTab::refresh);
    auto* row = new QHBoxLayout;
    row->setSpacing(8);
    row->addWidget(bar, 1);
    row->addWidget(search, 0, Qt::AlignTop);
    m_layout->insertLayout(0, row);
}

void SelectDocumentTab::refresh()
{
    KorErrorScope errors(m_documents);
    EntityPool read;
    QList<KorEntity*> rows;
    {
        const EntityPoolScope scope(read);
        rows = readRows();
    }
    KorErrorBox::tell(this, errors.take());
    const KorEntityModel* former = m_model;
    m_model = createModel(rows);
    applyModel(m_grid, m_model);
    m_grid->setSelectionMode(QAbstractItemView::SingleSelection);
    setColumnWidths(m_grid, columnWidths());
    restoreColumns(m_grid);
    delete former;
    m_rows.swap(read);
    m_grid->selectRow(0);
    m_grid->setFocus();
    m_count->setText(tr("%1 Items").arg(rows.size()));
}

int SelectDocumentTab::selectedId() const { return selectedEntityIds(m_grid, m_model).value(0, KorNoValue); }
