#include "app/context/AppContext.h"

#include "app/context/DatabaseManager.h"
#include "app/context/EntityPool.h"
#include "app/context/EntityUser.h"
#include "kor/persistence/KorDatabase.h"
#include "kor/system/KorLogger.h"

#include <QCoreApplication>

namespace
{
QPointer<AppContext>& theContext()
{
    static QPointer<AppContext> context;
    return context;
}
} // namespace

AppContext* AppContext::instance()
{
    if (!theContext())
        theContext() = new AppContext(QCoreApplication::instance());
    return theContext();
}

AppContext::AppContext(QObject* parent) : QObject(parent), m_entityPool(std::make_unique<QObject>()) {}

AppContext::~AppContext() { delete m_databaseManager; }

void AppContext::setCurrentUser(EntityUser* user)
{
    delete m_currentUser;
    m_currentUser = nullptr;
    if (m_databaseManager)
        m_databaseManager->tellWho(user ? user->getUserName() : QString());
    if (!user)
        return;
    m_currentUser = new EntityUser(this);
    m_currentUser->setId(user->getId());
    m_currentUser->setFirstName(user->getFirstName());
    m_currentUser->setLastName(user->getLastName());
    m_currentUser->setUserName(user->getUserName());
    m_currentUser->setCurrency(user->getCurrency());
    if (const EntityUserGroup* group = user->getGroup()) {
        // A copy: the group belongs to the entity pool, which can be cleared while the user is logged in.
        auto* own = new EntityUserGroup(m_currentUser);
        own->setId(group->getId());
        own->setGroupName(group->getGroupName());
        m_currentUser->setGroup(own);
    }
    m_userRights = std::make_unique<Rights>();
    m_accessCaptions = std::make_unique<Captions>();
}

int AppContext::currentUserId() const { return m_currentUser ? m_currentUser->getId() : KorNoValue; }

void AppContext::setDatabaseManager(DatabaseManager* manager)
{
    if (!manager)
        delete m_databaseManager;
    m_databaseManager = manager;
}

void AppContext::setLogger(KorLogger* logger) { m_logger = logger; }

void AppContext::log(const QString& message)
{
    if (KorLogger* logger = instance()->logger())
        logger->log(message);
}

QObject* AppContext::entityPool() const
{
    if (QObject* scoped = EntityPoolScope::current())
        return scoped;
    return KorDatabase::isApplicationThread() ? m_entityPool.get() : nullptr;
}

void AppContext::resetEntityPool()
{
    m_resetIsDue = EntityPoolScope::current() != nullptr;
    if (!m_resetIsDue)
        m_entityPool = std::make_unique<QObject>();
}

void AppContext::recordsAreFree()
{
    if (m_resetIsDue)
        resetEntityPool();
}

QList<KorEntity*> AppContext::liveEntities() const { return m_entityPool->findChildren<KorEntity*>(); }
