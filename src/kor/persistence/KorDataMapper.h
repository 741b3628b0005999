#pragma once

#include "kor/persistence/KorConditions.h"
#include "kor/persistence/KorQuery.h"

#include <QHash>
#include <QObject>
#include <QVariant>

#include <memory>
#include <type_traits>

class KorBatch;
class KorColumnMap;
class KorEntity;
class KorJoinMapper;
class KorMetaDataMap;
class KorMigration;

/**
 * Builds and runs the SQL of one table from its metadata. There is one mapper per table for the whole run. No operation
 * throws: each returns false or null and sets an error text, which takeError() returns once.
 */
class KorDataMapper : public QObject
{
    Q_OBJECT

public:
    explicit KorDataMapper(QObject* parent = nullptr);

    /** Null with an empty error text means that the row does not exist. */
    virtual KorEntity* findById(int id);
    virtual KorEntity* findByColumn(const QString& column, const QString& value);
    virtual KorEntity* findByColumn(const QString& column, int value);
    /** All rows that match the paging; a null paging reads the whole table. */
    virtual QList<KorEntity*> find(KorPaging* paging);
    virtual bool execPaging(KorQuery& query, KorPaging* paging);
    virtual bool insert(KorEntity* entity);
    /** Fails if the row's version differs from the record's. After success the record still has its old version. */
    virtual bool update(KorEntity* entity);
    virtual bool remove(KorEntity* entity);
    // The same for many records: the statements are added to the batch, which reports errors. Values come from
    // bindInsert() and bindUpdate() and appear in the SQL text, so do not use these in a mapper with secrets.
    /** One INSERT for all records; sets their ids in the same order. */
    virtual void insertWith(KorBatch& batch, const QList<KorEntity*>& entities);
    virtual void updateWith(KorBatch& batch, KorEntity* entity);
    virtual void removeWith(KorBatch& batch, KorEntity* entity);
    /** The record of the query's current row; null if the row has no id (the empty side of an outer join). */
    virtual KorEntity* fromRow(KorQuery& query);
    virtual KorEntity* fromRow(KorQuery& query, const QString& alias);
    /** Fills all fields including nested records; used with the table's own name. */
    virtual KorEntity* fillFromRow(KorQuery& query, KorEntity* entity);
    /** Fills plain fields only; used with an alias. */
    virtual KorEntity* fillFromRow(KorQuery& query, KorEntity* entity, const QString& alias);
    virtual void bindInsert(KorQuery& query, KorEntity* entity);
    virtual void bindUpdate(KorQuery& query, KorEntity* entity);
    /** Mode 1 drops the table first; mode 2 creates it only if it does not exist. */
    virtual bool createTable(int mode);
    virtual KorEntity* createEntity() = 0;
    [[nodiscard]] virtual QString selectStatement() const;
    virtual void explainFailedWrite(KorEntity* entity);
    /** New objects on each call; the caller deletes them. */
    [[nodiscard]] virtual QList<KorMigration*> migrations();
    /** CREATE INDEX statements, safe to run again on a table that has the indexes. */
    [[nodiscard]] virtual QStringList indexStatements() const { return {}; }
    /** The mappers of the line tables that this mapper creates with its own table; they are in no registry. */
    [[nodiscard]] virtual QList<KorDataMapper*> lineMappers() const { return {}; }

    [[nodiscard]] const QString& tableName() const;
    [[nodiscard]] KorMetaDataMap* metaData() const { return m_metaData; }
    [[nodiscard]] const QString& name() const { return m_name; }
    void setName(const QString& name) { m_name = name; }
    [[nodiscard]] const QList<KorJoinMapper*>& joins() const { return m_joins; }

    [[nodiscard]] bool hasError() const { return !m_errorText.isEmpty(); }
    void clearError() { m_errorText.clear(); }
    QString takeError();

    void addJoin(const QString& propertyName, KorDataMapper* mapper, const QString& joinType,
                 const QString& localColumn, const QString& remoteColumn, const QString& alias = QString());
    bool truncate(bool cascade);
    bool migrate(double fromVersion, double toVersion);
    /**
     * Creates what was added after the first version up to the second: the whole table, or columns. Safe to run again
     * after an interruption; leaves existing tables and columns alone.
     */
    bool grow(double installedVersion, double toVersion);
    /** The version that added the table; 0 for a table of the first version. */
    [[nodiscard]] double tableVersion() const { return m_tableVersion; }
    /** The version that added the column: the table's, unless columnsSince() names a later one. */
    [[nodiscard]] double columnVersion(const QString& column) const;
    /** False also if the check failed. */
    [[nodiscard]] bool hasTable() const;
    bool createIndexes();
    bool addForeignKey(const QString& table, const QString& constraintName, const QString& column,
                       const QString& referencedTable, const QString& referencedColumn);

    // Row lock statements for KorTransaction, held until the transaction ends.
    /** Blocks other writers of the row; rows that reference it can still be added and removed. */
    [[nodiscard]] QString lockOf(int id) const;
    /** Also blocks new rows that reference it: for removing the row together with dependent rows. */
    [[nodiscard]] QString removalLockOf(int id) const;

    [[nodiscard]] static QString foreignKeyStatement(const QString& table, const QString& constraintName,
                                                     const QString& column, const QString& referencedTable,
                                                     const QString& referencedColumn);
    [[nodiscard]] static QString lastQueryWithValues(const QSqlQuery& query);
    [[nodiscard]] static QString dateToSql(const QDate& date) { return date.toString("yyyy/M/d"); }
    /** Ids as an array literal, for "= ANY(:ids)". */
    [[nodiscard]] static QString idList(const QList<int>& ids);
    [[nodiscard]] static QString aliasOf(const QString& alias, const QString& column);

protected:
    using Bindings = QVector<QPair<QString, QVariant>>;

    // Called in the constructor: the version whose update adds the table or the columns.
    void tableSince(double version) { m_tableVersion = version; }
    /** These columns must be declared. A "not null" column needs a default for existing rows. */
    void columnsSince(double version, const QStringList& columns);
    bool createTableBase(int mode);
    /** The mapper's base and own columns under this alias, as the column list of a SELECT. */
    [[nodiscard]] static QString columnList(const KorDataMapper& mapper, const QString& alias);
    /** Only the id and these columns, for a list that shows no more. Do not save a record that was read like this. */
    [[nodiscard]] static QString columnList(const QString& alias, const QStringList& columns);
    /** The joins as they follow the table's name in a SELECT. */
    [[nodiscard]] QString joinClauses() const;
    /** Runs custom SQL with named values; on failure keeps and logs the database's message. */
    bool execute(KorQuery& query, const QString& statement, const Bindings& values = {});
    /** The same, planned for its values: for sums over a period. */
    bool executePlanned(KorQuery& query, const QString& statement, const Bindings& values);
    /** The same, with the conditions appended to the statement. */
    bool execute(KorQuery& query, const QString& statement, const KorConditions& conditions,
                 const Bindings& values = {});
    /**
     * Lets the statement begin with the first of these queries that finds few ids, see KorConditions::among(). What
     * they find must follow from the other conditions: this changes the way to the rows, not the rows. If all find
     * many, reading backwards from the latest row meets the wanted ones soon.
     */
    void startWith(KorConditions& conditions, const QString& column, const QStringList& queries);
    /** The first matching record, or null. */
    KorEntity* findOne(const KorConditions& conditions);
    QList<KorEntity*> findMany(const KorConditions& conditions);
    QList<KorEntity*> readAll(KorQuery& query);
    /** The rows that match, still without records; null after a failure. */
    std::unique_ptr<KorQuery> findRows(const QString& statement, const KorConditions& conditions);
    void setError(const QString& text);

private:
    static bool run(KorQuery& query, const QString& statement, const KorPaging& paging, const Bindings& values = {});
    bool noted(bool done, const KorQuery& query);
    bool addColumn(const KorColumnMap& column);
    bool failWrite(const KorQuery& query);
    bool failUpdate(KorEntity* entity, const QString& statement);
    bool failRemove(KorEntity* entity);
    [[nodiscard]] static QStringList columnsAs(const QList<KorColumnMap*>& columns, const QString& alias);

    KorMetaDataMap* m_metaData;
    QString m_errorText;
    QList<KorJoinMapper*> m_joins;
    QString m_name;
    double m_tableVersion = 0;
    QHash<QString, double> m_columnVersions;
};

/** Casts the records that a mapper returned to their type. */
template <class Entity>
[[nodiscard]] QList<Entity*> castAll(const QList<KorEntity*>& entities)
{
    QList<Entity*> result;
    result.reserve(entities.size());
    for (KorEntity* entity : entities)
        result.append(static_cast<Entity*>(entity));
    return result;
}
