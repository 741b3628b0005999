#include "pos/masterdata/member/DialogMember.h"

#include "app/context/AppContext.h"
#include "pos/masterdata/member/BusinessMember.h"

#include "ui_DialogMember.h"

DialogMember::DialogMember(QWidget* parent) : ContactDialog(parent), m_ui(std::make_unique<Ui::DialogMember>())
{
    m_ui->setupUi(this);
    useContactFields(*m_ui, m_ui->lblMemberID);
    m_ui->dateExpired->setDisplayFormat(AppContext::instance()->dateFormat());
    m_ui->dateExpired->setDateTime(QDateTime::currentDateTime().addYears(1));
    m_ui->txtDiscPerc->setValue(0.0);
    m_ui->txtDiscPerc->askBeyondHundred();
}

DialogMember::~DialogMember() = default;

bool DialogMember::validate()
{
    validateContact<BusinessMember>("Member", {tr("Enter the member code"),
                                               tr("This member code is already used please use another code"),
                                               tr("Enter the member name"), tr("Enter the address"),
                                               tr("enter the telp no."), tr("Enter the valid email address")});
    return !hasError();
}

KorEntity* DialogMember::getEntity()
{
    auto* member = heldOrNew<EntityMember>();
    readContact(*member);
    member->setExpiredDate(m_ui->dateExpired->date());
    member->setDiscountPercentage(m_ui->txtDiscPerc->value());
    return member;
}

void DialogMember::setEntity(KorEntity* entity)
{
    hold(entity);
    const auto* member = held<EntityMember>();
    showContact(*member);
    m_ui->dateExpired->setDate(member->getExpiredDate());
    m_ui->txtDiscPerc->setValue(member->getDiscountPercentage());
}
