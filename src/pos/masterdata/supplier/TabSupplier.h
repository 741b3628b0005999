#pragma once

#include "app/widgets/AppListTab.h"
#include "pos/masterdata/supplier/BusinessSupplier.h"
#include "pos/masterdata/supplier/DialogSupplier.h"
#include "pos/masterdata/supplier/TableModelSupplier.h"

/** The list of the suppliers. */
class TabSupplier final : public AppFamilyTab<BusinessSupplier, TableModelSupplier, DialogSupplier>
{
    Q_OBJECT

public:
    explicit TabSupplier(QWidget* parent = nullptr);

protected:
    [[nodiscard]] QString deleteQuestion(const KorEntity* entity) const override;
};
