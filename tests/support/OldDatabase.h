#pragma once

#include <QMap>
#include <QSet>
#include <QString>

class TestDatabase;

/** Makes the installed database what version 1.0 left behind after a month of trade, with rows in it. */
void takeBackToVersion10(TestDatabase& database);

/** Every row of every table, as text, by table. */
[[nodiscard]] QMap<QString, QSet<QString>> allRows(TestDatabase& database);
/** Every column, constraint and index, as text. */
[[nodiscard]] QSet<QString> schemaOf(TestDatabase& database);
