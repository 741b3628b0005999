#pragma once

#include "app/widgets/AppListTab.h"
#include "pos/masterdata/member/BusinessMember.h"
#include "pos/masterdata/member/DialogMember.h"
#include "pos/masterdata/member/TableModelMember.h"

/** The list of the members. */
class TabMember final : public AppFamilyTab<BusinessMember, TableModelMember, DialogMember>
{
    Q_OBJECT

public:
    explicit TabMember(QWidget* parent = nullptr);

protected:
    [[nodiscard]] QString deleteQuestion(const KorEntity* entity) const override;
};
