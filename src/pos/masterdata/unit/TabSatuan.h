#pragma once

#include "app/widgets/AppListTab.h"
#include "pos/masterdata/unit/BusinessSatuan.h"
#include "pos/masterdata/unit/DialogSatuan.h"
#include "pos/masterdata/unit/TableModelSatuan.h"

/** The list of the units. */
class TabSatuan final : public AppFamilyTab<BusinessSatuan, TableModelSatuan, DialogSatuan>
{
    Q_OBJECT

public:
    explicit TabSatuan(QWidget* parent = nullptr);

protected:
    // One right covers adding, editing and deleting.
    [[nodiscard]] int editKey() const override { return 0; }
    [[nodiscard]] int deleteKey() const override { return 0; }
    [[nodiscard]] QString deleteQuestion(const KorEntity* entity) const override;
};
