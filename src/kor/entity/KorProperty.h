#pragma once

#include <QtGlobal>

/** Marks "no value" in an integer field and in the id of a record not yet saved; stored as NULL. */
inline constexpr int KorNoValue = -9999;

/**
 * One field of a record: member, getter, setter and Qt property of one name.
 * The name is the contract: mappers, the JSON form and forms address fields by it.
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
 * A field that points at another record. The pointer is borrowed: records read by a mapper belong to the context's
 * pool, and null means that there is no partner. The partner's header must be included, since the meta-type system
 * needs the complete type.
 */
#define KOR_REFERENCE(type, Name)                                                                                      \
    Q_PROPERTY(type* Name READ get##Name WRITE set##Name)                                                              \
public:                                                                                                                \
    type* get##Name() const { return m_##Name; }                                                                       \
    void set##Name(type* value) { m_##Name = value; }                                                                  \
                                                                                                                       \
private:                                                                                                               \
    type* m_##Name = nullptr;
