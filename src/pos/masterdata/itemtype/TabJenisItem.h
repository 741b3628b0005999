#pragma once

#include "app/widgets/AppListTab.h"
#include "pos/masterdata/itemtype/BusinessJenisItem.h"
#include "pos/masterdata/itemtype/DialogJenisItem.h"
#include "pos/masterdata/itemtype/TableModelJenisItem.h"

/** The list of the item types. */
class TabJenisItem final : public AppFamilyTab<BusinessJenisItem, TableModelJenisItem, DialogJenisItem>
{
    Q_OBJECT

public:
    explicit TabJenisItem(QWidget* parent = nullptr);

protected:
    // One right covers adding, editing and deleting.
    [[nodiscard]] int editKey() const override { return 0; }
    [[nodiscard]] int deleteKey() const override { return 0; }
    [[nodiscard]] QString deleteQuestion(const KorEntity* entity) const override;
};
