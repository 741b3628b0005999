#include "kor/persistence/KorDataMapper.h"

#include "kor/entity/KorEntity.h"
#include "kor/entity/KorMetaDataMap.h"
#include "kor/persistence/KorBatch.h"
#include "kor/persistence/KorJoinMapper.h"
#include "kor/persistence/KorMigration.h"

#include <QDebug>

#include <utility>

namespace
{
QVariant userOrNull(int user) { return user == KorNoValue ? QVariant(QVariant::Int) : QVariant(user); }

/** The first bound values as SQL literals, formatted by the driver. */
QStringList literals(const KorQuery& values, int count)
{
    QStringList texts;
    for (int i = 0; i < count; ++i)
        texts.append(values.literal(values.boundValue(i)));
    return texts;
}
} // namespace

KorDataMapper::KorDataMapper(QObject* parent) : QObject(parent), m_metaData(new KorMetaDataMap(this)) {}

const QString& KorDataMapper::tableName() const { return m_metaData->tableName(); }

QString KorDataMapper::takeError() { return std::exchange(m_errorText, QString()); }

void KorDataMapper::setError(const QString& text)
{
    m_errorText = text;
    qDebug().noquote() << text;
}

void KorDataMapper::addJoin(const QString& propertyName, KorDataMapper* mapper, const QString& joinType,
                            const QString& localColumn, const QString& remoteColumn, const QString& alias)
{
    m_joins.append(new KorJoinMapper(propertyName, mapper, joinType, localColumn, remoteColumn, alias, this));
}

// --- reading -------------------------------------------------------------------------------------------------------

KorEntity* KorDataMapper::findById(int id) { return findOne(KorConditions().equals(tableName() + ".id", id)); }

KorEntity* KorDataMapper::findByColumn(const QString& column, const QString& value)
{
    qDebug() << "val:" << value;
    return findOne(KorConditions().equals(tableName() + '.' + column, value));
}

KorEntity* KorDataMapper::findByColumn(const QString& column, int value)
{
    qDebug() << "val:" << value;
    return findOne(KorConditions().equals(tableName() + '.' + column, value));
}

QList<KorEntity*> KorDataMapper::find(KorPaging* paging)
{
    KorQuery query(this);
    return noted(execPaging(query, paging), query) ? readAll(query) : QList<KorEntity*>();
}

bool KorDataMapper::execPaging(KorQuery& query, KorPaging* paging)
{
    return paging ? run(query, selectStatement(), *paging) : query.exec(selectStatement());
}

bool KorDataMapper::run(KorQuery& query, const QString& statement, const KorPaging& paging, const Bindings& values)
{
    const auto& filters = paging.filters();
    const QString text = statement + paging.clauses();
    Bindings all = values;
    for (int i = 0; i < filters.size(); ++i) {
        if (!filters[i].second.isEmpty())
            all.append({":prm" + QString::number(i), filters[i].second});
    }
    if (all.isEmpty())
        return query.exec(text);
    if (paging.isPlannedForValues())
        return query.exec(text, all);
    query.prepare(text);
    for (const auto& value : qAsConst(all))
        query.bindValue(value.first, value.second);
    return query.exec();
}

bool KorDataMapper::noted(bool done, const KorQuery& query)
{
    if (!done) {
        m_errorText = query.failure();
        qDebug().noquote() << "error sql " << m_errorText;
    }
    return done;
}

bool KorDataMapper::execute(KorQuery& query, const QString& statement, const Bindings& values)
{
    return execute(query, statement, KorConditions(), values);
}

bool KorDataMapper::execute(KorQuery& query, const QString& statement, const KorConditions& conditions,
                            const Bindings& values)
{
    KorPaging paging;
    conditions.fill(paging);
    return noted(run(query, statement, paging, values), query);
}

bool KorDataMapper::executePlanned(KorQuery& query, const QString& statement, const Bindings& values)
{
    return noted(query.exec(statement, values), query);
}

void KorDataMapper::startWith(KorConditions& conditions, const QString& column, const QStringList& queries)
{
    constexpr int few = 15000;
    for (const QString& ids : queries) {
        KorQuery query;
        const QString statement = "select count(*) from (" + ids + " limit " + QString::number(few) + ") found";
        if (execute(query, statement) && query.next() && query.value(0).toInt() < few) {
            conditions.among(column, ids);
            return;
        }
    }
}

KorEntity* KorDataMapper::findOne(const KorConditions& conditions)
{
    KorPaging paging;
    conditions.fill(paging);
    KorQuery query(this);
    return noted(execPaging(query, &paging), query) && query.next() ? fromRow(query) : nullptr;
}

QList<KorEntity*> KorDataMapper::findMany(const KorConditions& conditions)
{
    KorPaging paging;
    conditions.fill(paging);
    return find(&paging);
}

std::unique_ptr<KorQuery> KorDataMapper::findRows(const QString& statement, const KorConditions& conditions)
{
    auto rows = std::make_unique<KorQuery>(this);
    return execute(*rows, statement, conditions) ? std::move(rows) : nullptr;
}

QList<KorEntity*> KorDataMapper::readAll(KorQuery& query)
{
    QList<KorEntity*> entities;
    while (query.next())
        entities.append(fromRow(query));
    return entities;
}

KorEntity* KorDataMapper::fromRow(KorQuery& query) { return fromRow(query, tableName()); }

KorEntity* KorDataMapper::fromRow(KorQuery& query, const QString& alias)
{
    const KorRowPlan& plan = query.plan(*this, alias);
    const KorRow row = query.row();
    const int id = row.toInt(plan.id);
    if (id == KorNoValue || id == 0)
        return nullptr;

    // A NULL user (rows inserted by the installer) reads as KorNoValue, like any NULL integer.
    const auto user = [&row](int column) { return row.isNull(column) ? KorNoValue : row.toInt(column); };
    KorEntity* entity = createEntity();
    entity->setId(id);
    entity->setCreatedBy(user(plan.createdBy));
    entity->setVersion(row.toInt(plan.version));
    entity->setUpdatedBy(user(plan.updatedBy));
    entity->setCreatedTime(row.toStamp(plan.createdTime));
    entity->setUpdatedTime(row.toStamp(plan.updatedTime));
    return alias == tableName() ? fillFromRow(query, entity) : fillFromRow(query, entity, alias);
}

KorEntity* KorDataMapper::fillFromRow(KorQuery& query, KorEntity* entity)
{
    // Passes the table name: a subclass that overrides only this overload must still get the plain fields.
    return fillFromRow(query, entity, tableName());
}

KorEntity* KorDataMapper::fillFromRow(KorQuery& query, KorEntity* entity, const QString& alias)
{
    query.fillFields(entity, *this, alias);
    return entity;
}

// --- writing -------------------------------------------------------------------------------------------------------

bool KorDataMapper::insert(KorEntity* entity)
{
    QString names;
    QString marks;
    for (const KorColumnMap* column : m_metaData->columns()) {
        names += column->columnName() + ", ";
        marks += "?, ";
    }
    KorQuery query;
    query.prepare("insert into " + tableName() + " (" + names + "createdBy,createdTime,version) values(" + marks +
                  "?,now(),?) returning id");
    bindInsert(query, entity);
    const int position = m_metaData->columns().size();
    query.bindValue(position, userOrNull(entity->getCreatedBy()));
    query.bindValue(position + 1, 1);
    if (!query.exec() || !query.next())
        return failWrite(query);
    entity->setId(query.value(0).toInt());
    return true;
}

bool KorDataMapper::update(KorEntity* entity)
{
    QString assignments;
    for (const KorColumnMap* column : m_metaData->columns())
        assignments += column->columnName() + "=?, ";
    KorQuery query;
    query.prepare("update " + tableName() + " set " + assignments +
                  " updatedBy = ?, updatedTime = now(),version = version+1 where id = ? and version = ?");
    bindUpdate(query, entity);
    const int position = m_metaData->columns().size();
    query.bindValue(position, userOrNull(entity->getUpdatedBy()));
    query.bindValue(position + 1, entity->getId());
    query.bindValue(position + 2, entity->getVersion());
    if (!query.exec())
        return failWrite(query);
    return query.numRowsAffected() != 0 || failUpdate(entity, query.statementWithValues());
}

bool KorDataMapper::failUpdate(KorEntity* entity, const QString& statement)
{
    qDebug() << "update failed";
    m_errorText = KorFailure::of(KorFailure::Kept, {}, "update failed", statement).told({});
    explainFailedWrite(entity);
    return false;
}

bool KorDataMapper::remove(KorEntity* entity)
{
    KorQuery query;
    query.prepare("delete from " + tableName() + " where id = ? and version = ?");
    query.bindValue(0, entity->getId());
    query.bindValue(1, entity->getVersion());
    if (!query.exec())
        return failWrite(query);
    return query.numRowsAffected() > 0 || failRemove(entity);
}

bool KorDataMapper::failRemove(KorEntity* entity)
{
    setError("delete failed");
    explainFailedWrite(entity);
    return false;
}

void KorDataMapper::insertWith(KorBatch& batch, const QList<KorEntity*>& entities)
{
    if (entities.isEmpty())
        return;
    QStringList names;
    for (const KorColumnMap* column : m_metaData->columns())
        names.append(column->columnName());
    const int ownColumns = names.size();
    KorQuery values;
    QStringList rows;
    for (KorEntity* entity : entities) {
        bindInsert(values, entity);
        values.bindValue(ownColumns, userOrNull(entity->getCreatedBy()));
        rows.append('(' + literals(values, ownColumns + 1).join(", ") + ",now(),1)");
    }
    names.append("createdBy,createdTime,version) values");
    batch.add(this, "insert into " + tableName() + " (" + names.join(", ") + rows.join(", ") + " returning id",
              [entities](KorQuery& ids) {
                  for (KorEntity* entity : entities) {
                      if (ids.next())
                          entity->setId(ids.value(0).toInt());
                  }
                  return QString();
              });
}

void KorDataMapper::updateWith(KorBatch& batch, KorEntity* entity)
{
    const QList<KorColumnMap*>& columns = m_metaData->columns();
    KorQuery values;
    bindUpdate(values, entity);
    values.bindValue(columns.size(), userOrNull(entity->getUpdatedBy()));
    const QStringList texts = literals(values, columns.size() + 1);
    QString assignments;
    for (int i = 0; i < columns.size(); ++i)
        assignments += columns[i]->columnName() + '=' + texts[i] + ", ";
    const QString statement = "update " + tableName() + " set " + assignments + " updatedBy = " + texts.last() +
                              QString(", updatedTime = now(),version = version+1 where id = %1 and version = %2")
                                  .arg(QString::number(entity->getId()), QString::number(entity->getVersion()));
    batch.add(this, statement, [this, entity, statement](KorQuery& result) {
        return result.numRowsAffected() != 0 || failUpdate(entity, statement) ? QString() : takeError();
    });
}

void KorDataMapper::removeWith(KorBatch& batch, KorEntity* entity)
{
    const QString statement = "delete from " + tableName() +
                              QString(" where id = %1 and version = %2")
                                  .arg(QString::number(entity->getId()), QString::number(entity->getVersion()));
    batch.add(this, statement, [this, entity](KorQuery& result) {
        return result.numRowsAffected() > 0 || failRemove(entity) ? QString() : takeError();
    });
}

bool KorDataMapper::failWrite(const KorQuery& query)
{
    setError(query.failureWithStatement());
    return false;
}

void KorDataMapper::bindInsert(KorQuery& query, KorEntity* entity)
{
    const QList<KorColumnMap*>& columns = m_metaData->columns();
    for (int i = 0; i < columns.size(); ++i)
        query.bindValue(i, columnValue(*columns[i], entity));
}

void KorDataMapper::bindUpdate(KorQuery& query, KorEntity* entity) { KorDataMapper::bindInsert(query, entity); }

void KorDataMapper::explainFailedWrite(KorEntity* entity)
{
    KorQuery query;
    query.prepare("select * from " + tableName() + " where " + tableName() + ".id = :id");
    query.bindValue(":id", entity->getId());
    if (!query.exec())
        return;
    if (!query.next()) {
        m_errorText = QString("Table: %1 has been deleted").arg(tableName());
    } else if (query.field("version").toInt() > entity->getVersion()) {
        // The text has three markers, so the record's id appears after "user id:" and the user's after "at:".
        m_errorText = QString("Table: %1 has been updated by user id: %2  at: %3")
                          .arg(tableName())
                          .arg(entity->getId())
                          .arg(query.field("updatedby").toInt());
    }
}

QString KorDataMapper::lockOf(int id) const
{
    return "select id from " + tableName() + " where id = " + QString::number(id) + " for no key update";
}

QString KorDataMapper::removalLockOf(int id) const
{
    return "select id from " + tableName() + " where id = " + QString::number(id) + " for update";
}

// --- statements and schema -----------------------------------------------------------------------------------------

QString KorDataMapper::aliasOf(const QString& alias, const QString& column)
{
    QString name = alias + '.' + column;
    return name.replace('.', '_');
}

QString KorDataMapper::idList(const QList<int>& ids)
{
    QStringList texts;
    for (int id : ids)
        texts.append(QString::number(id));
    return '{' + texts.join(',') + '}';
}

QStringList KorDataMapper::columnsAs(const QList<KorColumnMap*>& columns, const QString& alias)
{
    QStringList items;
    for (const KorColumnMap* column : columns)
        items.append(alias + '.' + column->columnName() + " as " + aliasOf(alias, column->columnName()));
    return items;
}

QString KorDataMapper::columnList(const KorDataMapper& mapper, const QString& alias)
{
    const QStringList own = columnsAs(mapper.m_metaData->columns(), alias);
    const QString base = columnsAs(mapper.m_metaData->baseColumns(), alias).join(", ");
    return own.isEmpty() ? base : base + " , " + own.join(", ");
}

QString KorDataMapper::columnList(const QString& alias, const QStringList& columns)
{
    QStringList items{alias + ".id as " + aliasOf(alias, "id")};
    for (const QString& column : columns)
        items.append(alias + '.' + column + " as " + aliasOf(alias, column));
    return items.join(", ");
}

QString KorDataMapper::joinClauses() const
{
    QString clauses;
    for (const KorJoinMapper* join : m_joins)
        clauses += join->clause(tableName());
    return clauses;
}

QString KorDataMapper::selectStatement() const
{
    QString items = "select " + columnList(*this, tableName());
    for (const KorJoinMapper* join : m_joins)
        items += " , " + columnList(*join->mapper(), join->targetName());
    return items + " from " + tableName() + joinClauses();
}

bool KorDataMapper::createTable(int mode) { return createTableBase(mode) && createIndexes(); }

bool KorDataMapper::createTableBase(int mode)
{
    QString text;
    if (mode == 1)
        text = "DROP TABLE IF EXISTS " + tableName() + " CASCADE;create table  " + tableName();
    else if (mode == 2)
        text = "CREATE TABLE IF NOT EXISTS " + tableName();
    text += "(id bigserial  primary key, createdBy integer default NULL, createdTime timestamp default NULL, "
            "updatedBy integer default NULL, updatedTime  timestamp default NULL, version integer default NULL,";

    QStringList columns;
    QStringList names;
    for (const KorColumnMap* column : m_metaData->columns()) {
        columns.append(column->columnName() + ' ' + column->sqlType());
        names.append(column->columnName());
    }
    text += columns.join(", ");
    for (const KorJoinMapper* join : m_joins) {
        if (names.contains(join->localColumn()))
            text += ", FOREIGN KEY (" + join->localColumn() + ") REFERENCES " + join->mapper()->tableName() + '(' +
                    join->remoteColumn() + ") ";
    }
    text += ')';

    KorQuery query;
    if (query.exec(text))
        return true;
    setError(query.failureOf(text));
    return false;
}

bool KorDataMapper::createIndexes()
{
    bool created = true;
    for (const QString& statement : indexStatements()) {
        KorQuery query;
        created = execute(query, statement) && created;
    }
    return created;
}

bool KorDataMapper::truncate(bool cascade)
{
    KorQuery query;
    return execute(query, "TRUNCATE " + tableName() + (cascade ? " CASCADE" : ""));
}

QString KorDataMapper::foreignKeyStatement(const QString& table, const QString& constraintName, const QString& column,
                                           const QString& referencedTable, const QString& referencedColumn)
{
    return "ALTER TABLE " + table + " ADD CONSTRAINT " + constraintName + " FOREIGN KEY (" + column + ") REFERENCES " +
           referencedTable + " (" + referencedColumn + ");";
}

bool KorDataMapper::addForeignKey(const QString& table, const QString& constraintName, const QString& column,
                                  const QString& referencedTable, const QString& referencedColumn)
{
    KorQuery query;
    return execute(query, foreignKeyStatement(table, constraintName, column, referencedTable, referencedColumn));
}

QString KorDataMapper::lastQueryWithValues(const QSqlQuery& query) { return KorQuery::textWithValues(query); }

// --- versions ------------------------------------------------------------------------------------------------------

void KorDataMapper::columnsSince(double version, const QStringList& columns)
{
    for (const QString& column : columns)
        m_columnVersions.insert(column, version);
}

double KorDataMapper::columnVersion(const QString& column) const
{
    return m_columnVersions.value(column, m_tableVersion);
}

bool KorDataMapper::hasTable() const
{
    KorQuery query;
    return query.exec("SELECT FROM pg_class WHERE oid = to_regclass('" + tableName() +
                      "') AND relkind IN ('r', 'p')") &&
           query.next();
}

bool KorDataMapper::grow(double installedVersion, double toVersion)
{
    const auto isNew = [=](double version) { return installedVersion < version && version <= toVersion; };
    if (isNew(m_tableVersion) && !createTable(2))
        return false;
    bool grown = true;
    for (const KorColumnMap* column : m_metaData->columns()) {
        if (m_columnVersions.contains(column->columnName()) && isNew(m_columnVersions.value(column->columnName())))
            grown = addColumn(*column) && grown;
    }
    return grown;
}

bool KorDataMapper::addColumn(const KorColumnMap& column)
{
    QString text =
        "ALTER TABLE " + tableName() + " ADD COLUMN IF NOT EXISTS " + column.columnName() + ' ' + column.sqlType();
    for (const KorJoinMapper* join : m_joins) {
        if (join->localColumn() == column.columnName())
            text += " REFERENCES " + join->mapper()->tableName() + " (" + join->remoteColumn() + ')';
    }
    KorQuery query;
    if (query.exec(text))
        return true;
    setError(query.failureOf(text));
    return false;
}

QList<KorMigration*> KorDataMapper::migrations() { return {}; }

bool KorDataMapper::migrate(double fromVersion, double toVersion)
{
    bool migrated = true;
    const QList<KorMigration*> all = migrations();
    for (KorMigration* migration : all) {
        if (fromVersion <= migration->version() && migration->version() <= toVersion)
            migrated = migration->up() && migrated;
    }
    qDeleteAll(all);
    return migrated;
}
