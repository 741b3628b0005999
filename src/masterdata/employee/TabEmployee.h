#pragma once

#include "app/widgets/AppListTab.h"
#include "masterdata/employee/BusinessEmployee.h"
#include "masterdata/employee/DialogEmployee.h"
#include "masterdata/employee/TableModelEmployee.h"

/** The list of the people who work here. */
class TabEmployee final : public AppFamilyTab<BusinessEmployee, TableModelEmployee, DialogEmployee>
{
    Q_OBJECT

public:
    explicit TabEmployee(QWidget* parent = nullptr);

protected:
    [[nodiscard]] QString deleteQuestion(const KorEntity* entity) const override;
};
