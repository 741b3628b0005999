#include "app/access/DialogUserAccess.h"

#include "app/access/EntityAccess.h"

#include "ui_DialogUserAccess.h"

DialogUserAccess::DialogUserAccess(QWidget* parent) : KorDialog(parent), m_ui(std::make_unique<Ui::DialogUserAccess>())
{
    m_ui->setupUi(this);
}

DialogUserAccess::~DialogUserAccess() = default;

bool DialogUserAccess::validate() { return !hasError(); }

KorEntity* DialogUserAccess::getEntity()
{
    auto* access = heldOrNew<EntityAccess>();
    if (m_ui->rbNone->isChecked())
        access->setGrant(EntityAccess::None);
    else if (m_ui->rbAll->isChecked())
        access->setGrant(EntityAccess::All);
    else if (m_ui->rbOwner->isChecked())
        access->setGrant(EntityAccess::Owner);
    return access;
}

void DialogUserAccess::setEntity(KorEntity* entity)
{
    hold(entity);
    const auto* access = held<EntityAccess>();
    m_ui->lblGroup->setText(access->getGroup()->getGroupName());
    m_ui->lblBusiness->setText(access->getPermission()->getBusiness()->getName());
    m_ui->lblPermission->setText(access->getPermission()->getPermissionName());
    // A right that was never granted means none.
    QRadioButton* chosen = access->getGrant() == EntityAccess::All     ? m_ui->rbAll
                           : access->getGrant() == EntityAccess::Owner ? m_ui->rbOwner
                                                                       : m_ui->rbNone;
    chosen->setChecked(true);
    focusLater(chosen);
}
