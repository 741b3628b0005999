#pragma once

#include "app/widgets/AppFilterBar.h"
#include "app/widgets/AppListTab.h"

/**
 * A list page of documents, such as sales or payments: several filters instead of one text, which the page makes with
 * filters() and reads itself.
 */
class AppDocumentTab : public AppListTab
{
    Q_OBJECT

public:
    AppDocumentTab(const Page& page, int filtersPerRow, QWidget* parent);

protected:
    [[nodiscard]] AppFilterBar* filters() const { return m_filters; }

private:
    AppFilterBar* m_filters;
};
