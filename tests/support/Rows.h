#pragma once

#include <QTest>

#include <type_traits>

/** Adds rows to a test's table, in the order of its columns. */
template <typename... Types>
struct RowsOf
{
    void operator()(const char* name, const Types&... values) const { (QTest::newRow(name) << ... << values); }
};

/**
 * Adds the columns of a test's table, with the names for QFETCH: addColumns<QString, bool>("code", "refused"). The
 * result adds rows of these types.
 */
template <typename... Types>
RowsOf<Types...> addColumns(const std::conditional_t<true, char, Types>*... names)
{
    (QTest::addColumn<Types>(names), ...);
    return {};
}

/** A row of the table, in the order of its columns. */
template <typename... Values>
void addRow(const char* name, const Values&... values)
{
    (QTest::newRow(name) << ... << values);
}

/** A table of one column: addRows<bool>("isNew", {{"a new one", true}, {"an old one", false}}). */
template <typename Type>
void addRows(const char* column, std::initializer_list<std::pair<const char*, Type>> rows)
{
    QTest::addColumn<Type>(column);
    for (const auto& row : rows)
        QTest::newRow(row.first) << row.second;
}

/** A table of one column of texts that say themselves what they are. */
inline void addNames(const char* column, std::initializer_list<const char*> names)
{
    QTest::addColumn<QString>(column);
    for (const char* name : names)
        QTest::newRow(name) << QString(name);
}

/** Beginnings of chance, in the column "seed". */
inline void addSeeds(std::initializer_list<quint32> seeds)
{
    QTest::addColumn<quint32>("seed");
    for (const quint32 seed : seeds)
        QTest::addRow("seed %u", seed) << seed;
}

// QFETCH of several columns of one type: FETCH(QString, typed, told).
#define FETCH_2(Type, a, b)                                                                                            \
    QFETCH(Type, a);                                                                                                   \
    QFETCH(Type, b)
#define FETCH_3(Type, a, b, c)                                                                                         \
    FETCH_2(Type, a, b);                                                                                               \
    QFETCH(Type, c)
#define FETCH_4(Type, a, b, c, d)                                                                                      \
    FETCH_2(Type, a, b);                                                                                               \
    FETCH_2(Type, c, d)
#define FETCH_5(Type, a, b, c, d, e)                                                                                   \
    FETCH_3(Type, a, b, c);                                                                                            \
    FETCH_2(Type, d, e)
#define FETCH_OF(a, b, c, d, e, name, ...) name
#define FETCH(Type, ...) FETCH_OF(__VA_ARGS__, FETCH_5, FETCH_4, FETCH_3, FETCH_2, QFETCH, )(Type, __VA_ARGS__)
