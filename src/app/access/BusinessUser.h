#pragma once

#include "kor/business/KorBusinessLogic.h"

#include <functional>

class BusinessUserAccess;
class DataMapperUser;
class EntityUser;

/** The service of the users, and the login. */
class BusinessUser final : public KorBusinessLogic
{
    Q_OBJECT

public:
    enum PERMISSIONS { INSERT_USER, UPDATE_USER, DELETE_USER };
    Q_ENUM(PERMISSIONS)

    BusinessUser(QObject* parent, DataMapperUser* mapper, BusinessUserAccess* access);

    [[nodiscard]] QList<KorPermission> getPermissions() const override;

    /** Makes the user the current one and loads the rights; false for a wrong name or password. */
    [[nodiscard]] bool login(const QString& username, const QString& password);
    /** Gives the user the currency of the configured locale. */
    bool insert(KorEntity* user) override;
    bool update(KorEntity* user) override;
    [[nodiscard]] EntityUser* findByUsername(const QString& username);
    [[nodiscard]] QList<KorEntity*> findByGroup(int groupId);
    [[nodiscard]] QList<KorEntity*> findAll(const QString& filter);
    [[nodiscard]] QList<KorEntity*> search(const QString& filter);

private:
    /** Saves while no other workstation can give the login away; false, with the reason, where it is taken. */
    bool saveAlone(const EntityUser& user, const QString& operation, const std::function<bool()>& save);

    DataMapperUser* m_users;
    BusinessUserAccess* m_access;
};
