#pragma once

#include <QObject>
#include <QPointer>

/**
 * The parent of records that live and die together: what one refresh of a list read, or what one search found.
 * Destroying the pool, or clearing it, frees them with everything nested in them.
 */
class EntityPool
{
public:
    EntityPool();
    ~EntityPool();
    Q_DISABLE_COPY(EntityPool)

    void clear();
    /** Hands the records of the other pool over to this one, in exchange for its own. */
    void swap(EntityPool& other) { std::swap(m_parent, other.m_parent); }
    [[nodiscard]] QObject* parent() const { return m_parent; }

private:
    // A child of the context's pool, so that clearing the memory of all records reaches these as well.
    QPointer<QObject> m_parent;
};

/**
 * While it lives, records that mappers make go to this pool instead of the context's. Scopes may nest, and
 * hold on the thread that opened them: a pool and its scope are the way to own what a worker thread reads.
 */
class EntityPoolScope
{
public:
    explicit EntityPoolScope(EntityPool& pool);
    ~EntityPoolScope();
    Q_DISABLE_COPY(EntityPoolScope)

    /** The parent of the innermost scope of this thread, null outside of all. */
    [[nodiscard]] static QObject* current();

private:
    QPointer<QObject> m_former;
};
