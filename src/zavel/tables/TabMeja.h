#pragma once

#include "app/widgets/AppListTab.h"
#include "zavel/tables/BusinessMeja.h"
#include "zavel/tables/DialogMeja.h"
#include "zavel/tables/TableModelMeja.h"

/** The list of the restaurant's tables. */
class TabMeja final : public AppFamilyTab<BusinessMeja, TableModelMeja, DialogMeja>
{
    Q_OBJECT

public:
    explicit TabMeja(QWidget* parent = nullptr);

protected:
    [[nodiscard]] QString deleteQuestion(const KorEntity* entity) const override;
};
