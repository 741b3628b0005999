#pragma once

#include "kor/business/KorBusinessLogic.h"

#include <functional>

class BusinessUserAccess;
class DataMapperUser;
class EntityUser;

/** The service of the users and of the login. */
class BusinessUser final : public KorBusinessLogic
{
    Q_OBJECT

public:
    enum PERMISSIONS { INSERT_USER, UPDATE_USER, DELETE_USER };
    Q_ENUM(PERMISSIONS)

    BusinessUser(QObject* parent, DataMapperUser* mapper, BusinessUserAccess* access);

    [[nodiscard]] QList<KorPermission> getPermissions() const override;

    /**
     * Makes the user the current one and loads the rights. False for a wrong name or password, without an error text.
     */
    [[nodiscard]] bool login(const QString& username, const QString& password);
    /** Also sets the user's currency to that of the configured locale. */
    bool insert(KorEntity* user) override;
    bool update(KorEntity* user) override;
    [[nodiscard]] EntityUser* findByUsername(const QString& username);
    [[nodiscard]] QList<KorEntity*> findByGroup(int groupId);
    [[nodiscard]] QList<KorEntity*> findAll(const QString& filter);
    [[nodiscard]] QList<KorEntity*> search(const QString& filter);

private:
    /**
     * Saves with the user table locked, so that no other workstation can use the login. False with an error if it is
     * used.
     */
    bool saveAlone(const EntityUser& user, const QString& operation, const std::function<bool()>& save);

    DataMapperUser* m_users;
    BusinessUserAccess* m_access;
};
