#pragma once

#include "kor/business/KorMapperRegistry.h"

class DataMapperAccess;
class DataMapperAppConfig;
class DataMapperBusiness;
class DataMapperHistory;
class DataMapperKey;
class DataMapperPermission;
class DataMapperUser;
class DataMapperUserGroup;

/** The mappers of any business program, in the order in which their tables are created. */
class AppMapperRegistry final : public KorMapperRegistry
{
    Q_OBJECT

public:
    static AppMapperRegistry* instance();

    [[nodiscard]] DataMapperAppConfig* appConfigMapper() const;
    [[nodiscard]] DataMapperHistory* historyMapper() const;
    [[nodiscard]] DataMapperKey* keyMapper() const;
    [[nodiscard]] DataMapperUserGroup* userGroupMapper() const;
    [[nodiscard]] DataMapperBusiness* businessMapper() const;
    [[nodiscard]] DataMapperPermission* permissionMapper() const;
    [[nodiscard]] DataMapperAccess* accessMapper() const;
    [[nodiscard]] DataMapperUser* userMapper() const;

private:
    explicit AppMapperRegistry(QObject* parent);
};
