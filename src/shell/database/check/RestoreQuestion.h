#pragma once

#include <QCoreApplication>

class QWidget;

/**
 * Asks before a backup replaces a database that has tables. pg_restore would add rows to the existing ones and set all
 * sequences back. So the existing database is renamed, and the backup goes into a new one.
 */
class RestoreQuestion
{
    Q_DECLARE_TR_FUNCTIONS(RestoreQuestion)

public:
    /** The statement that counts the existing tables. */
    [[nodiscard]] static QString countingTables();
    /** The new name for a database that is replaced now. */
    [[nodiscard]] static QString asideName(const QString& database);
    /** True if the user wants to replace it; the default button is No. */
    [[nodiscard]] static bool ask(QWidget* parent, const QString& database, int tables, const QString& aside);

    // Messages for both outcomes.
    [[nodiscard]] static QString notReadable(const QString& file);
    [[nodiscard]] static QString notReplaced(const QString& database);
    [[nodiscard]] static QString kept(const QString& aside);
};
