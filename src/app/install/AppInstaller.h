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
    /** An older program makes and updates nothing in the database of a newer one. */
    [[nodiscard]] QString objection() const override;

    /** Whether the database is of an older version than the program; false where it has no version at all. */
    [[nodiscard]] bool isUpdateNeeded();

    // What a fresh installation asks the user for; what is left empty takes its default. With a password of the
    // administrator's own the sample user's is a random one that nobody knows.
    void setAdminUserName(const QString& name) { m_adminUserName = name; }
    void setAdminPassword(const QString& password) { m_adminPassword = password; }
    void setDateFormat(const QString& dateFormat) { m_dateFormat = dateFormat; }
    /** The program speaks it from now on, so that the first prices get its currency. */
    void setLocale(const QString& locale);

protected:
    void addAll(const QList<KorDataMapper*>& mappers);
    void registerAll(const QList<KorBusinessLogic*>& services);
    /** The version as the row "app_version" holds it. */
    [[nodiscard]] QString versionText() const;

    BusinessConfiguration* const m_configuration;

private:
    void insertGroup(EntityUserGroup& group, const QString& name);
    void insertUser(const QString& firstName, const QString& lastName, const QString& userName, const QString& password,
                    EntityUserGroup& group);
    void registerFresh(KorBusinessLogic* service, EntityUserGroup* admins);
    void registerMissing(KorBusinessLogic* service, EntityUserGroup* admins);
    /** Of a table that could not be made nobody gets a right; the next update brings both. */
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
