#pragma once

#include <QtGlobal>

/** Means "no value" in an integer field, and "not saved yet" in an id; stored as NULL. */
inline constexpr int KorNoValue = -9999;

/**
 * One field of a record: member, getter, setter and Qt property with the same name. Mappers, JSON and forms use this
 * name, so renaming a field breaks them.
 */
#define KOR_PROPERTY(type, Name, initial)                                                                              \
    Q_PROPERTY(type Name READ get##Name WRITE set##Name)                                                               \
public:                                                                                                                \
    type get##Name() const { return m_##Name; }                                                                        \
    void set##Name(const type& value) { m_##Name = value; }                                                            \
                                                                                                                       \
private:                                                                                                               \
    type m_##Name = initial;

/**
 * A field that points to another record. The pointer is borrowed: the entity pool owns records that a mapper reads.
 * Null means no record. Include the other record's header, since the meta-type system needs the complete type.
 */
#define KOR_REFERENCE(type, Name)                                                                                      \
    Q_PROPERTY(type* Name READ get##Name WRITE set##Name)                                                              \
public:                                                                                                                \
    type* get##Name() const { return m_##Name; }                                                                       \
    void set##Name(type* value) { m_##Name = value; }                                                                  \
                                                                                                                       \
private:                                                                                                               \
    type* m_##Name = nullptr;
