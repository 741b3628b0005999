#pragma once

#include "kor/widgets/KorTab.h"

/** A page whose grids know money and the configured dates. */
class AppTab : public KorTab
{
    Q_OBJECT

public:
    using KorTab::KorTab;

protected:
    KorSortFilterProxyModel* createProxyModel() override;
};
