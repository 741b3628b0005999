#pragma once

#include "kor/business/KorBusinessLogic.h"
#include "kor/install/KorInstaller.h"

class BusinessConfiguration;
class BusinessPermission;
class BusinessUser;
class BusinessUserAccess;
class BusinessUserGroup;
class EntityBusiness;
class EntityUserGroup;

/** Installs what any business program needs: users, groups, the shared settings and the rights of all services. */
class AppInstaller : public KorInstaller
{
    Q_OBJECT

public:
    explicit AppInstaller(QObject* parent = nullptr);

    void addMappers() override;
    void insertInitialData() override;
    void registerPermissions() override;
    [[nodiscard]] double installedVersion() const override;
    /** Not empty if the database is of a newer version: an older program must not change it. */
    [[nodiscard]] QString objection() const override;

    /** True if the database has an older version than the program; false if it has no version. */
    [[nodiscard]] bool isUpdateNeeded();

    // What a new installation asks the user for; an empty value means the default. If the administrator gets an own
    // password, the sample user gets a random one that nobody knows.
    void setAdminUserName(const QString& name) { m_adminUserName = name; }
    void setAdminPassword(const QString& password) { m_adminPassword = password; }
    void setDateFormat(const QString& dateFormat) { m_dateFormat = dateFormat; }
    /** Sets the program's locale at once, so that the first prices get its currency. */
    void setLocale(const QString& locale);

protected:
    void addAll(const QList<KorDataMapper*>& mappers);
    void registerAll(const QList<KorBusinessLogic*>& services);
    /** The version as the row "app_version" stores it. */
    [[nodiscard]] QString versionText() const;

    BusinessConfiguration* const m_configuration;

private:
    void insertGroup(EntityUserGroup& group, const QString& name);
    void insertUser(const QString& firstName, const QString& lastName, const QString& userName, const QString& password,
                    EntityUserGroup& group);
    void registerFresh(KorBusinessLogic* service, EntityUserGroup* admins);
    void registerMissing(KorBusinessLogic* service, EntityUserGroup* admins);
    /** No permissions are registered for a table that could not be created; the next update adds both. */
    [[nodiscard]] static bool hasTable(const KorBusinessLogic* service);
    bool insertBusiness(EntityBusiness* business);
    bool insertPermission(EntityBusiness* business, const KorPermission& permission);
    void grantAll(EntityUserGroup* admins, EntityBusiness* business, int key);

    BusinessPermission* const m_permissions;
    BusinessUserAccess* const m_access;
    BusinessUser* const m_users;
    BusinessUserGroup* const m_groups;
    QString m_adminUserName;
    QString m_adminPassword;
    QString m_dateFormat;
    QString m_locale;
};
