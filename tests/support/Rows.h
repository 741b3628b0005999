#pragma once

#include <QTest>

#include <type_traits>

/** The columns of a test's table, as QFETCH names them: addColumns<QString, bool>("code", "refused"). */
template <typename... Types>
void addColumns(const std::conditional_t<true, char, Types>*... names)
{
    (QTest::addColumn<Types>(names), ...);
}

/** A row of the table, in the order of its columns. */
template <typename... Values>
void addRow(const char* name, const Values&... values)
{
    (QTest::newRow(name) << ... << values);
}
