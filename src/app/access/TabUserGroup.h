#pragma once

#include "app/access/BusinessUserGroup.h"
#include "app/access/DialogUserGroup.h"
#include "app/access/UserGroupTableModel.h"
#include "app/widgets/AppListTab.h"

/** The list of the user groups. */
class TabUserGroup final : public AppFamilyTab<BusinessUserGroup, UserGroupTableModel, DialogUserGroup>
{
    Q_OBJECT

public:
    explicit TabUserGroup(QWidget* parent = nullptr);

protected:
    [[nodiscard]] QString deleteQuestion(const KorEntity* entity) const override;
    [[nodiscard]] bool asksOnce(int key) const override;
    bool mayDelete(KorEntity* entity) override;
};
