#include "app/context/EntityPool.h"

#include "app/context/AppContext.h"
#include "kor/persistence/KorDatabase.h"

namespace
{
thread_local QPointer<QObject> innermost;

// A parent must be on the same thread. So a worker's pool has no parent, and only its EntityPool deletes it.
QObject* newPool()
{
    return new QObject(KorDatabase::isApplicationThread() ? AppContext::instance()->mainEntityPool() : nullptr);
}
} // namespace

EntityPool::EntityPool() : m_parent(newPool()) {}

EntityPool::~EntityPool() { delete m_parent; }

void EntityPool::clear()
{
    delete m_parent;
    m_parent = newPool();
}

EntityPoolScope::EntityPoolScope(EntityPool& pool) : m_former(innermost)
{
    if (!pool.parent())
        pool.clear();
    innermost = pool.parent();
}

EntityPoolScope::~EntityPoolScope()
{
    innermost = m_former;
    if (!innermost && KorDatabase::isApplicationThread())
        AppContext::instance()->recordsAreFree();
}

QObject* EntityPoolScope::current() { return innermost; }
