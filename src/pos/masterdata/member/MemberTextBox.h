#pragma once

#include "app/widgets/AppEntityTextBox.h"
#include "pos/masterdata/member/BusinessMember.h"

/** A lookup box for members. */
class MemberTextBox final : public AppMasterTextBox<EntityMember, BusinessMember>
{
    Q_OBJECT

public:
    MemberTextBox(QLineEdit* editor, BusinessMember* members)
        : AppMasterTextBox(editor, members, {tr("Code"), tr("Name")})
    {}
};
