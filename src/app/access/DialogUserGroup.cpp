#include "app/access/DialogUserGroup.h"

#include "app/access/BusinessUserGroup.h"
#include "app/context/EntityUserGroup.h"
#include "kor/business/KorServiceDirectory.h"

#include "ui_DialogUserGroup.h"

DialogUserGroup::DialogUserGroup(QWidget* parent) : KorDialog(parent), m_ui(std::make_unique<Ui::DialogUserGroup>())
{
    m_ui->setupUi(this);
    edits<EntityUserGroup>({{m_ui->lblGroupID, "Id"}, {m_ui->txtGroupName, "GroupName"}});
    focusLater(m_ui->txtGroupName);
}

DialogUserGroup::~DialogUserGroup() = default;

bool DialogUserGroup::validate()
{
    requireCode(
        m_ui->txtGroupName, service<BusinessUserGroup>("User Group"),
        [](BusinessUserGroup* groups, const QString& name) { return groups->findByGroupName(name); },
        tr("Enter Group Name"), tr("This group name already exists"));
    return !hasError();
}
