#pragma once

#include <QObject>
#include <QPointer>

/**
 * Owns records that are deleted together, for example all that one refresh of a list read, or one search found. The
 * destructor and clear() delete them with their nested records.
 */
class EntityPool
{
public:
    EntityPool();
    ~EntityPool();
    Q_DISABLE_COPY(EntityPool)

    void clear();
    /** Exchanges the records of the two pools. */
    void swap(EntityPool& other) { std::swap(m_parent, other.m_parent); }
    [[nodiscard]] QObject* parent() const { return m_parent; }

private:
    // A child of the context's pool, so that AppContext::resetEntityPool() also deletes these records.
    QPointer<QObject> m_parent;
};

/**
 * While it exists, records that mappers create on this thread go to this pool instead of the context's. Scopes may
 * nest. On a worker thread this is the way to own what it reads.
 */
class EntityPoolScope
{
public:
    explicit EntityPoolScope(EntityPool& pool);
    ~EntityPoolScope();
    Q_DISABLE_COPY(EntityPoolScope)

    /** The parent of this thread's innermost scope; null if there is none. */
    [[nodiscard]] static QObject* current();

private:
    QPointer<QObject> m_former;
};
