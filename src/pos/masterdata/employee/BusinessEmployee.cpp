#include "pos/masterdata/employee/BusinessEmployee.h"

#include "pos/masterdata/employee/DataMapperEmployee.h"

BusinessEmployee::BusinessEmployee(QObject* parent, DataMapperEmployee* mapper)
    : AppMasterService("Employee", mapper, parent)
{}

QList<KorPermission> BusinessEmployee::getPermissions() const
{
    return {{INSERT_EMPLOYEE, tr("Insert Employee")},
            {UPDATE_EMPLOYEE, tr("Update Employee")},
            {DELETE_EMPLOYEE, tr("Delete Employee")}};
}
