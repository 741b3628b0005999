#pragma once

#include <QMap>
#include <QStringList>

class TestDatabase;

/** Puts rows into every table of an installed database: a shop with a year of trade, a picture, a journal. */
void fillEveryTable(TestDatabase& database);

/** All rows of a database of the test cluster as sorted texts, by table. */
[[nodiscard]] QMap<QString, QStringList> allRows(const QString& databaseName);

/** Its tables, indexes, keys and sequences as statements. */
[[nodiscard]] QString schemaOf(const QString& databaseName);
