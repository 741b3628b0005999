#include "app/widgets/AppTab.h"

#include "app/widgets/AppSortFilterProxyModel.h"

KorSortFilterProxyModel* AppTab::createProxyModel() { return new AppSortFilterProxyModel(this); }
