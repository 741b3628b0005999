#include "app/install/AppInstaller.h"

#include "app/access/BusinessPermission.h"
#include "app/access/BusinessUser.h"
#include "app/access/BusinessUserAccess.h"
#include "app/access/BusinessUserGroup.h"
#include "app/access/EntityAccess.h"
#include "app/configuration/BusinessConfiguration.h"
#include "app/context/AppContext.h"
#include "app/context/DatabaseVersion.h"
#include "app/context/EntityPool.h"
#include "app/context/EntityUser.h"
#include "app/registry/AppBusinessRegistry.h"
#include "app/registry/AppMapperRegistry.h"
#include "kor/business/KorErrorScope.h"
#include "kor/persistence/KorDataMapper.h"

#include <QMetaEnum>
#include <QRandomGenerator>

#include <array>

namespace
{
constexpr auto adminGroup = "admin";
constexpr auto defaultPassword = "Qx7!Rm2z";

QString textOr(const QString& text, const QString& otherwise) { return text.isEmpty() ? otherwise : text; }

/** A random password that nobody knows: the administrator must set a new one before the user can log in. */
QString randomPassword()
{
    std::array<quint32, 6> words{};
    QRandomGenerator::system()->fillRange(words.data(), words.size());
    return QByteArray(reinterpret_cast<const char*>(words.data()), sizeof words).toBase64();
}
} // namespace

AppInstaller::AppInstaller(QObject* parent)
    : KorInstaller(parent), m_configuration(AppBusinessRegistry::instance()->configuration()),
      m_permissions(AppBusinessRegistry::instance()->permission()),
      m_access(AppBusinessRegistry::instance()->userAccess()), m_users(AppBusinessRegistry::instance()->user()),
      m_groups(AppBusinessRegistry::instance()->userGroup())
{
    // Without a locale there is no currency, and prices could not be inserted.
    if (AppContext::instance()->locale().isEmpty())
        AppContext::instance()->setLocale(BusinessConfiguration::defaultLocale());
}

void AppInstaller::setLocale(const QString& locale)
{
    m_locale = locale;
    if (!locale.isEmpty())
        AppContext::instance()->setLocale(locale);
}

QString AppInstaller::versionText() const { return QString::number(getAppVersion()); }

bool AppInstaller::isUpdateNeeded() { return DatabaseVersion::read().isOlderThan(getAppVersion()); }

double AppInstaller::installedVersion() const { return DatabaseVersion::read().number(); }

QString AppInstaller::objection() const
{
    const DatabaseVersion version = DatabaseVersion::read();
    return version.isNewerThan(getAppVersion()) ? version.tooNew() : QString();
}

// --- tables and rows -----------------------------------------------------------------------------------------------

void AppInstaller::addMappers()
{
    KorInstaller::addMappers();
    addAll(AppMapperRegistry::instance()->all());
}

void AppInstaller::addAll(const QList<KorDataMapper*>& mappers)
{
    for (KorDataMapper* mapper : mappers) {
        log("installing: " + mapper->name());
        addMapper(mapper);
    }
}

void AppInstaller::insertInitialData()
{
    KorInstaller::insertInitialData();
    if (!isFresh())
        return;
    setStatus(tr("App Data"));

    EntityUserGroup admins;
    EntityUserGroup operators;
    EntityUserGroup cashiers;
    insertGroup(admins, adminGroup);
    insertGroup(operators, "operator");
    insertGroup(cashiers, "kasir");
    insertUser("admin", "pos", textOr(m_adminUserName, "admin"), textOr(m_adminPassword, defaultPassword), admins);
    // Someone who chose a password does not want a second user with a well-known one.
    const bool isOwn = !m_adminPassword.isEmpty() && m_adminPassword != defaultPassword;
    insertUser("operator", "dewi", "dewi", isOwn ? randomPassword() : defaultPassword, operators);

    if (!m_configuration->insertInitialData(m_dateFormat, m_locale))
        reportFailure(m_configuration->takeErrors());
}

void AppInstaller::insertGroup(EntityUserGroup& group, const QString& name)
{
    group.setGroupName(name);
    insertRow(m_groups, &group);
}

void AppInstaller::insertUser(const QString& firstName, const QString& lastName, const QString& userName,
                              const QString& password, EntityUserGroup& group)
{
    EntityUser user;
    user.setFirstName(firstName);
    user.setLastName(lastName);
    user.setUserName(userName);
    user.setPassword(password);
    user.setGroup(&group);
    insertRow(m_users, &user);
}

// --- permissions ---------------------------------------------------------------------------------------------------

void AppInstaller::registerPermissions()
{
    KorInstaller::registerPermissions();
    registerAll(AppBusinessRegistry::instance()->all());
}

void AppInstaller::registerAll(const QList<KorBusinessLogic*>& services)
{
    EntityPool pool;
    const EntityPoolScope scope(pool);
    // Errors that a page left in the services must not count as failures of this run.
    KorErrorScope errors({m_permissions, m_groups});
    EntityUserGroup* admins = m_groups->findByGroupName(adminGroup);
    reportAny(errors.take());
    for (KorBusinessLogic* service : services) {
        if (isFresh())
            registerFresh(service, admins);
        else if (hasTable(service))
            registerMissing(service, admins);
    }
}

void AppInstaller::registerFresh(KorBusinessLogic* service, EntityUserGroup* admins)
{
    log("installing: " + service->name());
    EntityBusiness business;
    business.setName(service->name());
    if (!insertBusiness(&business))
        return;
    for (const KorPermission& permission : service->getPermissions())
        insertPermission(&business, permission);

    const QMetaObject* type = service->metaObject();
    const int position = type->indexOfEnumerator("PERMISSIONS");
    if (position < 0)
        return;
    const QMetaEnum keys = type->enumerator(position);
    for (int i = 0; i < keys.keyCount(); ++i)
        grantAll(admins, &business, keys.value(i));
}

bool AppInstaller::hasTable(const KorBusinessLogic* service)
{
    const KorDataMapper* mapper = service->mapper();
    return !mapper || mapper->tableName().isEmpty() || mapper->hasTable();
}

void AppInstaller::registerMissing(KorBusinessLogic* service, EntityUserGroup* admins)
{
    log("checking permissions of business: " + service->name());
    EntityBusiness* business = m_permissions->getBusinessByName(service->name());
    if (reportAny(m_permissions->takeErrors()))
        return;
    EntityBusiness added;
    if (!business) {
        business = &added;
        business->setName(service->name());
        if (!insertBusiness(business))
            return;
    }
    for (const KorPermission& permission : service->getPermissions()) {
        const bool known = m_permissions->findByKey(permission.first, business->getId());
        if (!reportAny(m_permissions->takeErrors()) && !known && insertPermission(business, permission))
            grantAll(admins, business, permission.first);
    }
}

bool AppInstaller::insertBusiness(EntityBusiness* business)
{
    const bool done = m_permissions->insertBusiness(business);
    if (!done)
        reportFailure(m_permissions->takeErrors());
    return done;
}

bool AppInstaller::insertPermission(EntityBusiness* business, const KorPermission& permission)
{
    EntityPermission row;
    row.setPermissionKey(permission.first);
    row.setPermissionName(permission.second);
    row.setBusiness(business);
    return insertRow(m_permissions, &row);
}

void AppInstaller::grantAll(EntityUserGroup* admins, EntityBusiness* business, int key)
{
    if (!admins)
        return;
    EntityPermission* permission = m_permissions->findByKey(key, business->getId());
    if (!reportAny(m_permissions->takeErrors()) && permission &&
        !m_access->setGrant(admins, permission, EntityAccess::All))
        reportFailure(m_access->takeErrors());
}
