#pragma once

#include "app/context/DatabaseVersion.h"

#include <QCoreApplication>
#include <QStringList>

class KorDataMapper;

/**
 * Compares the open database with what the program needs. An interrupted installation, update or restore leaves
 * something missing: tables, primary keys, foreign keys, or the permissions of services. A database updated by a newer
 * program is recognized by its version.
 */
class DatabaseCondition
{
    Q_DECLARE_TR_FUNCTIONS(DatabaseCondition)

public:
    /**
     * Reads the tables; also the permissions if the database has the program's version. For an older database, nothing
     * is missing that the update will add. With an empty version, all tables are required, but permissions are not
     * read. Uses two statements; if one fails, nothing counts as missing.
     */
    [[nodiscard]] static DatabaseCondition read(const QString& version = {});
    /** The same with the version stored in the open database. */
    [[nodiscard]] static DatabaseCondition readWithVersion();

    /** True if there is a table that a new installation would replace, or if this could not be read. */
    [[nodiscard]] bool hasTables() const { return m_hasTables; }
    [[nodiscard]] bool isWhole() const;
    /** False if working with this database would fail or damage data. */
    [[nodiscard]] bool isUsable() const;
    /** For the owner: what is missing, why, and what to do. Empty if the database is complete or has no tables. */
    [[nodiscard]] QString explanation() const;

    /**
     * The message if the update must run before the login, because it changes tables that the login reads; otherwise
     * empty.
     */
    [[nodiscard]] QString updateFirst() const;

private:
    explicit DatabaseCondition(const QString& version) : m_version(version) {}
    void readTables();
    /** The foreign keys that the mapper's table must have in a database of this version. */
    [[nodiscard]] QStringList referencesOf(const KorDataMapper& mapper) const;
    [[nodiscard]] bool isTooNew() const { return m_version.isNewerThan(DatabaseVersion::ofProgram()); }
    /** True if the pending update adds columns to the mapper's table. */
    [[nodiscard]] bool willGrow(const KorDataMapper& mapper) const;
    /** True if this version is newer than that of a database to be updated. */
    [[nodiscard]] bool isLater(double version) const;
    void readRights();
    /** The first names and the number of the others, to keep the message short. */
    [[nodiscard]] static QString some(const QStringList& names);
    [[nodiscard]] static QString restoreAgain();

    DatabaseVersion m_version;
    bool m_hasTables = false;
    QStringList m_missingTables;
    QStringList m_tablesWithoutKey;
    QStringList m_missingReferences;
    QStringList m_incompleteServices;
    bool m_anyRights = true;
};
