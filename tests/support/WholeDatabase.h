#pragma once

#include <QMap>
#include <QStringList>

class TestDatabase;

/** Inserts rows into every table of an installed database: a shop with a year of trade, an image, a journal. */
void fillEveryTable(TestDatabase& database);

/** All rows of a database of the test cluster as sorted texts, by table. */
[[nodiscard]] QMap<QString, QStringList> allRows(const QString& databaseName);

/** The tables, indexes, keys and sequences of the database as statements. */
[[nodiscard]] QString schemaOf(const QString& databaseName);
