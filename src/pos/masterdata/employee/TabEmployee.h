#pragma once

#include "app/widgets/AppListTab.h"
#include "pos/masterdata/employee/BusinessEmployee.h"
#include "pos/masterdata/employee/DialogEmployee.h"
#include "pos/masterdata/employee/TableModelEmployee.h"

/** The list of the employees. */
class TabEmployee final : public AppFamilyTab<BusinessEmployee, TableModelEmployee, DialogEmployee>
{
    Q_OBJECT

public:
    explicit TabEmployee(QWidget* parent = nullptr);

protected:
    [[nodiscard]] QString deleteQuestion(const KorEntity* entity) const override;
};
