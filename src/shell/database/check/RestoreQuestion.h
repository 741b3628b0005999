#pragma once

#include <QCoreApplication>

class QWidget;

/**
 * Asks before a backup takes the place of a database that holds tables. pg_restore replaces nothing: rows would come
 * beside those that are there, and all numbers jump back. So such a database is kept under another name, and the
 * backup goes into a new one.
 */
class RestoreQuestion
{
    Q_DECLARE_TR_FUNCTIONS(RestoreQuestion)

public:
    /** The statement that counts the tables which a restore would meet. */
    [[nodiscard]] static QString countingTables();
    /** The name that a database is kept under when it makes way now. */
    [[nodiscard]] static QString asideName(const QString& database);
    /** True where the person wants it replaced; the answer at hand is No. */
    [[nodiscard]] static bool ask(QWidget* parent, const QString& database, int tables, const QString& aside);

    // What is told where it did not come to that, and where it did.
    [[nodiscard]] static QString notReadable(const QString& file);
    [[nodiscard]] static QString notReplaced(const QString& database);
    [[nodiscard]] static QString kept(const QString& aside);
};
