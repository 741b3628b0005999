#pragma once

#include "kor/widgets/KorTab.h"

/** A page whose grids sort money by amount and dates in the configured format. */
class AppTab : public KorTab
{
    Q_OBJECT

public:
    using KorTab::KorTab;

protected:
    KorSortFilterProxyModel* createProxyModel() override;
};
