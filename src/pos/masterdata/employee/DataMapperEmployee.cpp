#include "pos/masterdata/employee/DataMapperEmployee.h"

#include "pos/masterdata/employee/DataMapperEmployeeMigration11.h"
#include "pos/masterdata/employee/EntityEmployee.h"

DataMapperEmployee::DataMapperEmployee(QObject* parent) : ContactMapper(parent)
{
    contactColumns("employee", "varchar(255) not null");
}

KorEntity* DataMapperEmployee::createEntity() { return new EntityEmployee(entityParent()); }

QList<KorMigration*> DataMapperEmployee::migrations()
{
    return {new DataMapperEmployeeMigration11({widenCodeStatement()})};
}
