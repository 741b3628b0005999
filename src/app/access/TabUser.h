#pragma once

#include "app/access/BusinessUser.h"
#include "app/access/DialogUser.h"
#include "app/access/TableModelUser.h"
#include "app/widgets/AppListTab.h"

/** The list of the users. */
class TabUser final : public AppFamilyTab<BusinessUser, TableModelUser, DialogUser>
{
    Q_OBJECT

public:
    explicit TabUser(QWidget* parent = nullptr);

protected:
    [[nodiscard]] QString deleteQuestion(const KorEntity* entity) const override;
};
