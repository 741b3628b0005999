#pragma once

#include "app/widgets/AppEntityTextBox.h"
#include "pos/masterdata/employee/BusinessEmployee.h"

/** A lookup box for employees. */
class EmployeeTextBox final : public AppMasterTextBox<EntityEmployee, BusinessEmployee>
{
    Q_OBJECT

public:
    EmployeeTextBox(QLineEdit* editor, BusinessEmployee* employees)
        : AppMasterTextBox(editor, employees, {tr("Code"), tr("Name")})
    {}
};
