#include "shell/database/check/DatabaseCondition.h"

#include "app/context/ConnectionSettings.h"
#include "app/registry/AppBusinessRegistry.h"
#include "app/registry/AppMapperRegistry.h"
#include "kor/business/KorBusinessLogic.h"
#include "kor/entity/KorColumnMap.h"
#include "kor/entity/KorMetaDataMap.h"
#include "kor/persistence/KorDataMapper.h"
#include "kor/persistence/KorJoinMapper.h"
#include "kor/persistence/KorQuery.h"
#include "pos/registry/PosBusinessRegistry.h"
#include "pos/registry/PosMapperRegistry.h"
#include "zavel/registry/ZavelBusinessRegistry.h"
#include "zavel/registry/ZavelMapperRegistry.h"

#include <QDir>
#include <QHash>
#include <QSet>

#include <algorithm>

namespace
{
struct WantedTable
{
    const KorDataMapper* mapper;
    /** The version that added the table. A line table is at least as new as its document's. */
    double version;
};

QList<WantedTable> allTables()
{
    QList<WantedTable> tables;
    for (const KorDataMapper* mapper : AppMapperRegistry::instance()->all() + PosMapperRegistry::instance()->all() +
                                           ZavelMapperRegistry::instance()->all()) {
        tables.append({mapper, mapper->tableVersion()});
        for (const KorDataMapper* lines : mapper->lineMappers())
            tables.append({lines, qMax(mapper->tableVersion(), lines->tableVersion())});
    }
    return tables;
}

QList<KorBusinessLogic*> allServices()
{
    return AppBusinessRegistry::instance()->all() + PosBusinessRegistry::instance()->all() +
           ZavelBusinessRegistry::instance()->all();
}

QString reference(const QString& table, const QString& column) { return table + '.' + column; }

} // namespace

DatabaseCondition DatabaseCondition::read(const QString& version)
{
    DatabaseCondition condition(version);
    condition.readTables();
    const bool isCurrent =
        condition.m_version.isKnown() && !condition.m_version.isOlderThan(DatabaseVersion::ofProgram());
    if (isCurrent && !condition.isTooNew() && condition.m_missingTables.isEmpty())
        condition.readRights();
    return condition;
}

DatabaseCondition DatabaseCondition::readWithVersion() { return read(DatabaseVersion::read().text()); }

bool DatabaseCondition::isLater(double version) const
{
    return m_version.isOlderThan(DatabaseVersion::ofProgram()) && version > m_version.number();
}

bool DatabaseCondition::willGrow(const KorDataMapper& mapper) const
{
    const QList<KorColumnMap*>& columns = mapper.metaData()->columns();
    return std::any_of(columns.begin(), columns.end(),
                       [&](const KorColumnMap* column) { return isLater(mapper.columnVersion(column->columnName())); });
}

QString DatabaseCondition::updateFirst() const
{
    const QList<KorDataMapper*>& mappers = AppMapperRegistry::instance()->all();
    // The tables of users, groups, permissions and settings, which the login reads.
    if (std::none_of(mappers.begin(), mappers.end(), [this](const KorDataMapper* mapper) { return willGrow(*mapper); }))
        return {};
    return tr("The database has to be updated to version %1 before anybody can log in. Close the program on the other "
              "workstations and back up the database with the older program. Then run \"Update\" under \"Setup\" in "
              "the window that opens next, and start the program again.")
        .arg(DatabaseVersion::ofProgramText());
}

QStringList DatabaseCondition::referencesOf(const KorDataMapper& mapper) const
{
    // No update adds these to databases of the first version.
    static const QSet<QString> later{"acquisition.po_id", "acquisition_detail.po_detail_id",
                                     "purchase_order_detail.purchase_order_id"};
    QSet<QString> columns;
    for (const KorColumnMap* column : mapper.metaData()->columns()) {
        if (!isLater(mapper.columnVersion(column->columnName())))
            columns.insert(column->columnName());
    }
    QStringList references;
    for (const KorJoinMapper* join : mapper.joins()) {
        const QString found = reference(mapper.tableName(), join->localColumn());
        if (columns.contains(join->localColumn()) && !later.contains(found))
            references.append(found);
    }
    return references;
}

void DatabaseCondition::readTables()
{
    KorQuery query;
    if (!query.exec("SELECT c.relname, k.contype::text, a.attname FROM pg_class c "
                    "LEFT JOIN pg_constraint k ON k.conrelid = c.oid AND k.contype IN ('p', 'f') "
                    "LEFT JOIN pg_attribute a ON a.attrelid = c.oid AND a.attnum = k.conkey[1] "
                    "WHERE c.relkind IN ('r', 'p') AND pg_table_is_visible(c.oid) "
                    "AND c.relnamespace <> 'pg_catalog'::regnamespace")) {
        m_hasTables = true;
        return;
    }
    QSet<QString> tables;
    QSet<QString> withKey;
    QSet<QString> references;
    while (query.next()) {
        const QString table = query.value(0).toString();
        tables.insert(table);
        if (query.value(1).toString() == "p")
            withKey.insert(table);
        if (query.value(1).toString() == "f")
            references.insert(reference(table, query.value(2).toString()));
    }
    for (const WantedTable& wantedTable : allTables()) {
        const QString& table = wantedTable.mapper->tableName();
        m_hasTables = m_hasTables || tables.contains(table);
        if (!tables.contains(table)) {
            if (!isLater(wantedTable.version))
                m_missingTables.append(table);
            continue;
        }
        if (!withKey.contains(table))
            m_tablesWithoutKey.append(table);
        for (const QString& wanted : referencesOf(*wantedTable.mapper)) {
            if (!references.contains(wanted))
                m_missingReferences.append(wanted);
        }
    }
    // Several mappers may use the same table.
    for (QStringList* names : {&m_missingTables, &m_tablesWithoutKey, &m_missingReferences})
        names->removeDuplicates();
}

void DatabaseCondition::readRights()
{
    KorQuery query;
    if (!query.exec("SELECT business.name, permissions.permission_key FROM business "
                    "LEFT JOIN permissions ON permissions.business_id = business.id"))
        return;
    QHash<QString, QSet<int>> registered;
    while (query.next())
        registered[query.value(0).toString()].insert(query.value(1).toInt());
    m_anyRights = !registered.isEmpty();
    for (const KorBusinessLogic* service : allServices()) {
        bool complete = registered.contains(service->name());
        for (const KorPermission& permission : service->getPermissions())
            complete = complete && registered.value(service->name()).contains(permission.first);
        if (!complete)
            m_incompleteServices.append(service->name());
    }
}

bool DatabaseCondition::isUsable() const
{
    return !isTooNew() && m_missingTables.isEmpty() && m_tablesWithoutKey.isEmpty() && m_anyRights;
}

bool DatabaseCondition::isWhole() const
{
    return isUsable() && m_missingReferences.isEmpty() && m_incompleteServices.isEmpty();
}

QString DatabaseCondition::some(const QStringList& names)
{
    constexpr int shown = 5;
    const QString list = names.mid(0, shown).join(", ");
    return names.size() <= shown ? list : tr("%1 and %2 more").arg(list).arg(names.size() - shown);
}

QString DatabaseCondition::restoreAgain()
{
    return tr("Restore your last backup once more, into a new database: rename the file %1, start the program, and "
              "choose the restore in the wizard that comes up.")
        .arg(QDir::toNativeSeparators(ConnectionSettings::defaultPath()));
}

QString DatabaseCondition::explanation() const
{
    if (!m_hasTables || isWhole())
        return {};
    if (isTooNew())
        return m_version.tooNew();
    if (!m_missingTables.isEmpty())
        return tr("The database is not complete: there are tables missing (%1). An installation or the restore of a "
                  "backup was cut short.")
                   .arg(some(m_missingTables)) +
               "\n\n" + tr("If nothing was ever sold with it, install it anew under \"Setup\".") + "\n\n" +
               tr("If sales were made with it, go back to a backup.") + ' ' + restoreAgain();
    if (!m_tablesWithoutKey.isEmpty())
        return tr("The restore of a backup was cut short: there are tables without a primary key (%1), and rows may "
                  "be missing.")
                   .arg(some(m_tablesWithoutKey)) +
               "\n\n" + restoreAgain();
    if (!m_anyRights)
        return tr("The installation was cut short: nobody has any right yet. Install the database anew under "
                  "\"Setup\".");
    if (!m_missingReferences.isEmpty())
        return tr("The restore of a backup was cut short before its end: references between tables are missing (%1). "
                  "The rows are there, but the database does not watch over them: a record that others need can be "
                  "deleted.")
                   .arg(some(m_missingReferences)) +
               "\n\n" + restoreAgain();
    return tr("An installation or an update was cut short: the rights of some services are not complete (%1).")
               .arg(some(m_incompleteServices)) +
           "\n\n" +
           tr("Run \"Update\" under Configuration > General, \"Setup\"; it keeps what the tables hold. After a first "
              "installation that was cut short, with nothing entered yet, install \"Clean\" instead.");
}
