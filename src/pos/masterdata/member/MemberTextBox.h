#pragma once

#include "app/widgets/AppEntityTextBox.h"
#include "pos/masterdata/member/BusinessMember.h"

/** Makes a line edit find members. */
class MemberTextBox final : public AppMasterTextBox<EntityMember, BusinessMember>
{
    Q_OBJECT

public:
    MemberTextBox(QLineEdit* editor, BusinessMember* members)
        : AppMasterTextBox(editor, members, {tr("Code"), tr("Name")})
    {}
};
