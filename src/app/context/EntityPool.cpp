#include "app/context/EntityPool.h"

#include "app/context/AppContext.h"

EntityPool::EntityPool() : m_parent(new QObject(AppContext::instance()->mainEntityPool())) {}

EntityPool::~EntityPool() { delete m_parent; }

void EntityPool::clear()
{
    delete m_parent;
    m_parent = new QObject(AppContext::instance()->mainEntityPool());
}

EntityPoolScope::EntityPoolScope(EntityPool& pool) : m_former(AppContext::instance()->m_scopedPool)
{
    if (!pool.parent())
        pool.clear();
    AppContext::instance()->m_scopedPool = pool.parent();
}

EntityPoolScope::~EntityPoolScope() { AppContext::instance()->m_scopedPool = m_former; }
