#include "app/registry/AppFamilies.h"

#include "app/access/BusinessPermission.h"
#include "app/access/BusinessUser.h"
#include "app/access/BusinessUserAccess.h"
#include "app/access/BusinessUserGroup.h"
#include "app/access/DataMapperAccess.h"
#include "app/access/DataMapperBusiness.h"
#include "app/access/DataMapperPermission.h"
#include "app/access/DataMapperUser.h"
#include "app/access/DataMapperUserGroup.h"
#include "app/configuration/BusinessConfiguration.h"
#include "app/configuration/DataMapperAppConfig.h"
#include "app/history/DataMapperHistory.h"
#include "app/numbers/BusinessKey.h"
#include "app/numbers/DataMapperKey.h"

QList<KorFamily> appFamilies()
{
    return {
        table<DataMapperAppConfig>().service<BusinessConfiguration>(),
        table<DataMapperHistory>(),
        table<DataMapperKey>().service<BusinessKey>(),
        table<DataMapperUserGroup>().service<BusinessUserGroup>(),
        table<DataMapperBusiness>(),
        table<DataMapperPermission, DataMapperBusiness>().service<BusinessPermission, DataMapperBusiness>(),
        table<DataMapperAccess, DataMapperUserGroup, DataMapperPermission, DataMapperBusiness>()
            .service<BusinessUserAccess>(),
        table<DataMapperUser, DataMapperUserGroup>().service<BusinessUser, BusinessUserAccess>(),
    };
}
