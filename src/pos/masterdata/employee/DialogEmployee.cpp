#include "pos/masterdata/employee/DialogEmployee.h"

#include "pos/masterdata/employee/BusinessEmployee.h"

#include "ui_DialogEmployee.h"

DialogEmployee::DialogEmployee(QWidget* parent) : ContactDialog(parent), m_ui(std::make_unique<Ui::DialogEmployee>())
{
    m_ui->setupUi(this);
    useContactFields<EntityEmployee>(*m_ui, m_ui->lblEmployeeID);
}

DialogEmployee::~DialogEmployee() = default;

bool DialogEmployee::validate()
{
    validateContact<BusinessEmployee>("Employee",
                                      {tr("Enter the employee code"),
                                       tr("This employee code is already in use, please enter another code"),
                                       tr("Enter the employee name"), tr("Enter the employee address"),
                                       tr("Enter the phone no"), tr("Enter the valid email address")});
    return !hasError();
}
