#pragma once

#include <QCoreApplication>
#include <QStringList>

/**
 * What the open database has of what the program needs. An installation, an update or a restore that was cut short is
 * known by what it had not come to: tables, their primary keys, their references, the rights of the services.
 */
class DatabaseCondition
{
    Q_DECLARE_TR_FUNCTIONS(DatabaseCondition)

public:
    /**
     * Reads the tables, and the rights too where the version that the database bears is the program's own: an older
     * one is offered an update anyway. Two statements; one that fails finds nothing wrong.
     */
    [[nodiscard]] static DatabaseCondition read(const QString& version = {});

    /** Any table that a fresh installation would make anew; also where that could not be found out. */
    [[nodiscard]] bool hasTables() const { return m_hasTables; }
    [[nodiscard]] bool isWhole() const;
    /** False where working with it would fail or do harm. */
    [[nodiscard]] bool isUsable() const;
    /** What is missing, how that comes about and what to do, for the owner; empty where it is whole or has no tables.
     */
    [[nodiscard]] QString explanation() const;

private:
    void readTables();
    void readRights();
    /** A few of the names: enough to search for, not so many that nobody reads them. */
    [[nodiscard]] static QString some(const QStringList& names);
    [[nodiscard]] static QString restoreAgain();

    bool m_hasTables = false;
    QStringList m_missingTables;
    QStringList m_tablesWithoutKey;
    QStringList m_missingReferences;
    QStringList m_incompleteServices;
    bool m_anyRights = true;
};
