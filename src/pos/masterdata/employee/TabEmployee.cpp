#include "pos/masterdata/employee/TabEmployee.h"

TabEmployee::TabEmployee(QWidget* parent) : AppFamilyTab({tr("Employees"), "tblEmployee", "Employee"}, parent)
{
    refresh();
}

QString TabEmployee::deleteQuestion(const KorEntity* entity) const
{
    return tr("Are you sure you want to delete this employee: %1 ?")
        .arg(static_cast<const EntityEmployee*>(entity)->getNama());
}
