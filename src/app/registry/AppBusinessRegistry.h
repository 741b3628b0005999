#pragma once

#include "kor/business/KorBusinessRegistry.h"

class BusinessConfiguration;
class BusinessKey;
class BusinessPermission;
class BusinessUser;
class BusinessUserAccess;
class BusinessUserGroup;

/** The services of any business program. */
class AppBusinessRegistry final : public KorBusinessRegistry
{
    Q_OBJECT

public:
    static AppBusinessRegistry* instance();

    [[nodiscard]] BusinessConfiguration* configuration() const;
    [[nodiscard]] BusinessPermission* permission() const;
    [[nodiscard]] BusinessUserAccess* userAccess() const;
    [[nodiscard]] BusinessUser* user() const;
    [[nodiscard]] BusinessKey* keyTable() const;
    [[nodiscard]] BusinessUserGroup* userGroup() const;

private:
    explicit AppBusinessRegistry(QObject* parent);
};
