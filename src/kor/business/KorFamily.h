#pragma once

#include "kor/business/KorMapperRegistry.h"
#include "kor/business/KorServiceDirectory.h"
#include "kor/persistence/KorDataMapper.h"

#include <functional>
#include <type_traits>

/** A constructor argument of a mapper or service, found by its type among those created already. */
template <class Part>
struct KorPart
{
    static Part* find()
    {
        QObject* found = nullptr;
        if constexpr (std::is_base_of_v<KorDataMapper, Part>)
            found = KorMapperRegistry::find(Part::staticMetaObject);
        else
            found = KorServiceDirectory::find(Part::staticMetaObject);
        if (!found)
            qFatal("%s is asked for by a family that stands before it", Part::staticMetaObject.className());
        return static_cast<Part*>(found);
    }
};

/** Several arguments in one struct: template <> struct KorPart<Struct> : KorParts<Struct, ...> {}. */
template <class Struct, class... Parts>
struct KorParts
{
    static Struct find() { return {KorPart<Parts>::find()...}; }
};

/**
 * An entry in a layer's list of families: how to create its mapper and its service. Either may be missing. The
 * registries own the objects.
 */
struct KorFamily
{
    std::function<KorDataMapper*(QObject* owner)> makeMapper;
    std::function<KorBusinessLogic*(QObject* owner)> makeService;
};

/** An entry with the mapper of a table; service() adds the service that uses it. */
template <class Mapper>
struct KorTable : KorFamily
{
    /** The service's constructor takes the parent, the mapper and the further parts. */
    template <class Service, class... Parts>
    [[nodiscard]] KorFamily service() const
    {
        return {makeMapper,
                [](QObject* owner) { return new Service(owner, KorPart<Mapper>::find(), KorPart<Parts>::find()...); }};
    }
};

/** The mapper's constructor takes the parent and the parts, mostly mappers of joined tables. */
template <class Mapper, class... Parts>
[[nodiscard]] KorTable<Mapper> table()
{
    return {{[](QObject* owner) { return new Mapper(owner, KorPart<Parts>::find()...); }, {}}};
}

/** An entry without a table. */
template <class Service, class... Parts>
[[nodiscard]] KorFamily serviceAlone()
{
    return {{}, [](QObject* owner) { return new Service(owner, KorPart<Parts>::find()...); }};
}
