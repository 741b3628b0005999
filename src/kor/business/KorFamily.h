#pragma once

#include "kor/business/KorMapperRegistry.h"
#include "kor/business/KorServiceDirectory.h"
#include "kor/persistence/KorDataMapper.h"

#include <functional>
#include <type_traits>

/** What a mapper or a service asks for in its constructor, found by its type among those that are made already. */
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

/** Several parts that a constructor takes in one struct: template <> struct KorPart<Struct> : KorParts<Struct, ...> {}.
 */
template <class Struct, class... Parts>
struct KorParts
{
    static Struct find() { return {KorPart<Parts>::find()...}; }
};

/**
 * A row of a floor's list of families: how its mapper and its service are made. Either may be missing. The registries
 * own what is made.
 */
struct KorFamily
{
    std::function<KorDataMapper*(QObject* owner)> makeMapper;
    std::function<KorBusinessLogic*(QObject* owner)> makeService;
};

/** A row with the mapper of a table; service() adds the service that works with it. */
template <class Mapper>
struct KorTable : KorFamily
{
    /** The constructor takes the owner, the mapper and the further parts. */
    template <class Service, class... Parts>
    [[nodiscard]] KorFamily service() const
    {
        return {makeMapper,
                [](QObject* owner) { return new Service(owner, KorPart<Mapper>::find(), KorPart<Parts>::find()...); }};
    }
};

/** The constructor of the mapper takes the owner and the parts, mostly the mappers of the tables that it joins. */
template <class Mapper, class... Parts>
[[nodiscard]] KorTable<Mapper> table()
{
    return {{[](QObject* owner) { return new Mapper(owner, KorPart<Parts>::find()...); }, {}}};
}

/** A row without a table of its own. */
template <class Service, class... Parts>
[[nodiscard]] KorFamily serviceAlone()
{
    return {{}, [](QObject* owner) { return new Service(owner, KorPart<Parts>::find()...); }};
}
