#pragma once

#include "app/persistence/AppMasterService.h"
#include "pos/masterdata/employee/EntityEmployee.h"

class DataMapperEmployee;

/** The service of the employees. */
class BusinessEmployee final : public AppMasterService<EntityEmployee>
{
    Q_OBJECT

public:
    enum PERMISSIONS { INSERT_EMPLOYEE, UPDATE_EMPLOYEE, DELETE_EMPLOYEE };
    Q_ENUM(PERMISSIONS)

    BusinessEmployee(QObject* parent, DataMapperEmployee* mapper);

    [[nodiscard]] QList<KorPermission> getPermissions() const override;
};
