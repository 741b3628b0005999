#include "app/access/BusinessUser.h"

#include "app/access/BusinessUserAccess.h"
#include "app/access/DataMapperUser.h"
#include "app/context/AppContext.h"
#include "app/context/EntityPool.h"
#include "app/context/EntityUser.h"
#include "kor/business/KorServiceTransaction.h"

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
    // Without loaded rights every button would refuse the user and not say why.
    if (!m_access->loadAccess(user)) {
        addError("username", m_access->takeErrors());
        return false;
    }
    return true;
}

bool BusinessUser::insert(KorEntity* user)
{
    const QString symbol = QLocale(AppContext::instance()->locale()).currencySymbol(QLocale::CurrencySymbol);
    // A locale without a country has no currency symbol (null), but the column is NOT NULL.
    static_cast<EntityUser*>(user)->setCurrency(symbol.isNull() ? QString("") : symbol);
    return saveAlone(*static_cast<EntityUser*>(user), "insert", [=] { return KorBusinessLogic::insert(user); });
}

bool BusinessUser::update(KorEntity* user)
{
    return saveAlone(*static_cast<EntityUser*>(user), "update", [=] { return KorBusinessLogic::update(user); });
}

bool BusinessUser::saveAlone(const EntityUser& user, const QString& operation, const std::function<bool()>& save)
{
    return inOneTransaction(*this, operation, [&] {
        // Two forms may have found the same login free at the same time: the second one waits here and then finds it
        // used.
        EntityPool pool;
        const EntityPoolScope scope(pool);
        if (!written(m_users->lockTable(), m_users, operation))
            return false;
        const EntityUser* other = findByUsername(user.getUserName());
        const auto* stored = user.isSaved() ? static_cast<EntityUser*>(find(user.getId())) : nullptr;
        if (hasError())
            return false;
        // Old databases can contain the same login twice. Such users can still be edited.
        const bool isNew = !stored || stored->getUserName() != user.getUserName();
        if (isNew && other && other->getId() != user.getId()) {
            addError(operation, tr("Username already exists"));
            return false;
        }
        return save();
    });
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
