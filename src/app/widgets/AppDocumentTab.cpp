#include "app/widgets/AppDocumentTab.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

AppDocumentTab::AppDocumentTab(const Page& page, int filtersPerRow, QWidget* parent)
    : AppListTab(page, parent), m_filters(new AppFilterBar(filtersPerRow, this))
{
    replaceTextFilter(m_filters);
}
