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

    [[nodiscard]] DataMapperAppConfig* appConfig() const;
    [[nodiscard]] DataMapperHistory* history() const;
    [[nodiscard]] DataMapperKey* key() const;
    [[nodiscard]] DataMapperUserGroup* userGroup() const;
    [[nodiscard]] DataMapperBusiness* business() const;
    [[nodiscard]] DataMapperPermission* permission() const;
    [[nodiscard]] DataMapperAccess* access() const;
    [[nodiscard]] DataMapperUser* user() const;

private:
    explicit AppMapperRegistry(QObject* parent);
};
