#pragma once

#include <QMap>
#include <QSet>
#include <QString>

class TestDatabase;

/** Changes the installed database to what version 1.0 left after a month of trade, with rows in it. */
void takeBackToVersion10(TestDatabase& database);

/** All rows as text, by table. */
[[nodiscard]] QMap<QString, QSet<QString>> allRows(TestDatabase& database);
/** Every column, constraint and index, as text. */
[[nodiscard]] QSet<QString> schemaOf(TestDatabase& database);
