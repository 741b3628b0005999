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
 * Turns the metadata of one table into SQL and runs it. There is one mapper a table for the whole run. No operation
 * throws: each returns false or null and leaves the explanation in the error text, which takeError() hands over once.
 */
class KorDataMapper : public QObject
{
    Q_OBJECT

public:
    explicit KorDataMapper(QObject* parent = nullptr);

    /** Null with an empty error text means that there is no such row. */
    virtual KorEntity* findById(int id);
    virtual KorEntity* findByColumn(const QString& column, const QString& value);
    virtual KorEntity* findByColumn(const QString& column, int value);
    /** Every row that the paging asks for; a null paging gives the whole table. */
    virtual QList<KorEntity*> find(KorPaging* paging);
    virtual bool execPaging(KorQuery& query, KorPaging* paging);
    virtual bool insert(KorEntity* entity);
    /** Fails when the row's version is no longer the record's; the record keeps its old version after success. */
    virtual bool update(KorEntity* entity);
    virtual bool remove(KorEntity* entity);
    // The same for many records: they go with the batch, and what fails is told by it. The values come from
    // bindInsert() and bindUpdate(), but their texts show them all: not for a mapper with secrets.
    /** One statement for all of them, which gives the ids in their order. */
    virtual void insertWith(KorBatch& batch, const QList<KorEntity*>& entities);
    virtual void updateWith(KorBatch& batch, KorEntity* entity);
    virtual void removeWith(KorBatch& batch, KorEntity* entity);
    /** The record of the row on which the query stands, null where the row's id is absent (empty side of a join). */
    virtual KorEntity* fromRow(KorQuery& query);
    virtual KorEntity* fromRow(KorQuery& query, const QString& alias);
    /** The form with all nested values, used under the table's own name. */
    virtual KorEntity* fillFromRow(KorQuery& query, KorEntity* entity);
    /** Plain fields only, used under an alias. */
    virtual KorEntity* fillFromRow(KorQuery& query, KorEntity* entity, const QString& alias);
    virtual void bindInsert(KorQuery& query, KorEntity* entity);
    virtual void bindUpdate(KorQuery& query, KorEntity* entity);
    /** Mode 1 drops the table first, mode 2 creates it only where it is missing. */
    virtual bool createTable(int mode);
    virtual KorEntity* createEntity() = 0;
    [[nodiscard]] virtual QString selectStatement() const;
    virtual void explainFailedWrite(KorEntity* entity);
    /** New objects each time; the caller deletes them. */
    [[nodiscard]] virtual QList<KorMigration*> migrations();
    /** The statements that create the table's indexes; each can run again on a table that has them. */
    [[nodiscard]] virtual QStringList indexStatements() const { return {}; }
    /** The mappers of the tables of lines that this mapper creates with its own; they are in no registry. */
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
     * Makes what came with versions above the first one and up to the second: the whole table, or columns. It can be
     * run again where it was cut short, and leaves what is there as it is.
     */
    bool grow(double installedVersion, double toVersion);
    /** The version that the table came with, 0 for one of the first. */
    [[nodiscard]] double tableVersion() const { return m_tableVersion; }
    /** The version that the column came with, that of its table unless columnsSince() says a later one. */
    [[nodiscard]] double columnVersion(const QString& column) const;
    /** False also where that could not be found out. */
    [[nodiscard]] bool hasTable() const;
    bool createIndexes();
    bool addForeignKey(const QString& table, const QString& constraintName, const QString& column,
                       const QString& referencedTable, const QString& referencedColumn);

    // Statements for KorTransaction, which hold a row until it ends.
    /** Against others that write the row; records that only refer to it come and go. */
    [[nodiscard]] QString lockOf(int id) const;
    /** Also against records that come to refer to it: for whoever removes the row and what hangs on it. */
    [[nodiscard]] QString removalLockOf(int id) const;

    [[nodiscard]] static QString foreignKeyStatement(const QString& table, const QString& constraintName,
                                                     const QString& column, const QString& referencedTable,
                                                     const QString& referencedColumn);
    [[nodiscard]] static QString lastQueryWithValues(const QSqlQuery& query);
    [[nodiscard]] static QString dateToSql(const QDate& date) { return date.toString("yyyy/M/d"); }
    /** A list of ids as an array text, for "= ANY(:ids)". */
    [[nodiscard]] static QString idList(const QList<int>& ids);
    [[nodiscard]] static QString aliasOf(const QString& alias, const QString& column);

protected:
    using Bindings = QList<QPair<QString, QVariant>>;

    // Said in the constructor of what an installed database gets by its update to this version.
    void tableSince(double version) { m_tableVersion = version; }
    /** Declared columns. One that is "not null" needs a default for the rows that are there. */
    void columnsSince(double version, const QStringList& columns);
    bool createTableBase(int mode);
    /** The mapper's base and own columns under this alias, as a SELECT lists them. */
    [[nodiscard]] static QString columnList(const KorDataMapper& mapper, const QString& alias);
    /** Runs own SQL with named values; failing, it keeps and logs the database's text. */
    bool execute(KorQuery& query, const QString& statement, const Bindings& values = {});
    /** The same for the rows of the conditions, which follow the statement. */
    bool execute(KorQuery& query, const QString& statement, const KorConditions& conditions,
                 const Bindings& values = {});
    /** The first record of the mapper's SELECT, or null. */
    KorEntity* findOne(const KorConditions& conditions);
    QList<KorEntity*> findMany(const KorConditions& conditions);
    QList<KorEntity*> readAll(KorQuery& query);
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

/** The list of one record type out of a list of records that a mapper returned. */
template <class Entity>
[[nodiscard]] QList<Entity*> castAll(const QList<KorEntity*>& entities)
{
    QList<Entity*> result;
    result.reserve(entities.size());
    for (KorEntity* entity : entities)
        result.append(static_cast<Entity*>(entity));
    return result;
}
