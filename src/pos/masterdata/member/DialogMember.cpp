#include "pos/masterdata/member/DialogMember.h"

#include "app/context/AppContext.h"
#include "pos/masterdata/member/BusinessMember.h"

#include "ui_DialogMember.h"

DialogMember::DialogMember(QWidget* parent) : ContactDialog(parent), m_ui(std::make_unique<Ui::DialogMember>())
{
    m_ui->setupUi(this);
    useContactFields<EntityMember>(*m_ui, m_ui->lblMemberID);
    edits<EntityMember>({{m_ui->dateExpired, "ExpiredDate"}, {m_ui->txtDiscPerc, "DiscountPercentage"}});
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
