#pragma once

#include "app/context/DatabaseVersion.h"

#include <QCoreApplication>
#include <QStringList>

class KorDataMapper;

/**
 * What the open database has of what the program needs. An installation, an update or a restore that was cut short is
 * known by what it had not come to: tables, their primary keys, their references, the rights of the services.
 * A database that a newer program has updated is known by its version.
 */
class DatabaseCondition
{
    Q_DECLARE_TR_FUNCTIONS(DatabaseCondition)

public:
    /**
     * Reads the tables, and the rights too where the version that the database bears is the program's own: an older
     * one is offered an update anyway, and does not miss what that will bring. Two statements; one that fails finds
     * nothing wrong. Without a version everything is missed that a new database has, but no rights.
     */
    [[nodiscard]] static DatabaseCondition read(const QString& version = {});
    /** The same with the version that the open database bears. */
    [[nodiscard]] static DatabaseCondition readWithVersion();

    /** Any table that a fresh installation would make anew; also where that could not be found out. */
    [[nodiscard]] bool hasTables() const { return m_hasTables; }
    [[nodiscard]] bool isWhole() const;
    /** False where working with it would fail or do harm. */
    [[nodiscard]] bool isUsable() const;
    /** What is missing, how that comes about and what to do, for the owner; empty where it is whole or has no tables.
     */
    [[nodiscard]] QString explanation() const;

    /**
     * What to tell where the update that is due has to come before the login, which reads tables that it changes;
     * empty elsewhere.
     */
    [[nodiscard]] QString updateFirst() const;

private:
    explicit DatabaseCondition(const QString& version) : m_version(version) {}
    void readTables();
    /** The references that the table of a mapper has to have in a database of this version. */
    [[nodiscard]] QStringList referencesOf(const KorDataMapper& mapper) const;
    [[nodiscard]] bool isTooNew() const { return m_version.isNewerThan(DatabaseVersion::ofProgram()); }
    /** Whether the update that is due changes the mapper's table. */
    [[nodiscard]] bool willGrow(const KorDataMapper& mapper) const;
    /** Whether it came with a version that the database is yet to be updated to. */
    [[nodiscard]] bool isLater(double version) const;
    void readRights();
    /** A few of the names: enough to search for, not so many that nobody reads them. */
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
