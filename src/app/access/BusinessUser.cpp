#include "app/access/BusinessUser.h"

#include "app/access/BusinessUserAccess.h"
#include "app/access/DataMapperUser.h"
#include "app/context/AppContext.h"
#include "app/context/EntityUser.h"

#include <QLocale>

BusinessUser::BusinessUser(QObject* parent, DataMapperUser* mapper, BusinessUserAccess* access)
    : KorBusinessLogic("User", mapper, parent), m_users(mapper), m_access(access)
{}

QList<KorPermission> BusinessUser::getPermissions() const
{
    return {{INSERT_USER, tr("Create a new user")}, {UPDATE_USER, tr("Update user")}, {DELETE_USER, tr("Delete user")}};
}

bool BusinessUser::login(const QString& username, const QString& password)
{
    clearErrors();
    EntityUser* user = findByUsername(username);
    if (!user || user->getPassword() != DataMapperUser::digest(password))
        return false;

    AppContext::instance()->setCurrentUser(user);
    // Without its rights the user would meet a refusal at every button and no word of why.
    if (!m_access->loadAccess(user)) {
        addError("username", m_access->takeErrors());
        return false;
    }
    return true;
}

bool BusinessUser::insert(KorEntity* user)
{
    const QString symbol = QLocale(AppContext::instance()->locale()).currencySymbol(QLocale::CurrencySymbol);
    // A locale without a country has none at all, which the table would not take.
    static_cast<EntityUser*>(user)->setCurrency(symbol.isNull() ? QString("") : symbol);
    return KorBusinessLogic::insert(user);
}

EntityUser* BusinessUser::findByUsername(const QString& username)
{
    return read(m_users->findByUsername(username), m_users, "username");
}

QList<KorEntity*> BusinessUser::findByGroup(int groupId)
{
    return read(m_users->findByGroup(groupId), m_users, "username");
}

QList<KorEntity*> BusinessUser::findAll(const QString& filter)
{
    return read(m_users->findAll(filter), m_users, "username");
}

QList<KorEntity*> BusinessUser::search(const QString& filter)
{
    return read(m_users->search(filter), m_users, "username");
}
