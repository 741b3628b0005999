#include "app/persistence/AppDataMapper.h"

#include "app/context/AppContext.h"
#include "app/money/Money.h"
#include "kor/entity/KorEntity.h"
#include "kor/entity/KorMetaDataMap.h"
#include "kor/persistence/KorJoinMapper.h"

#include <QMetaProperty>

namespace
{
/** The text as one shared QString while it stays the same: nearly every amount of a list has the same currency. */
QString sameText(const char* text)
{
    thread_local QByteArray last;
    thread_local QString shared;
    if (last != text) {
        last = text;
        shared = QString::fromUtf8(text);
    }
    return shared;
}

/** Null if either column is NULL. */
Money* moneyFrom(const KorRow& row, int currency, int amount, QObject* parent)
{
    if (row.isNull(currency) || row.isNull(amount))
        return nullptr;
    return new Money(parent, row.toDouble(amount), sameText(row.text(currency)));
}

/** Sets a property whose type points to a QObject, without a variant in between. */
template <class Pointer>
void writePointer(QObject* owner, int property, Pointer* value)
{
    int status = -1;
    int flags = 0;
    void* arguments[] = {&value, nullptr, &status, &flags};
    QMetaObject::metacall(owner, QMetaObject::WriteProperty, property, arguments);
}
} // namespace

bool AppDataMapper::insert(KorEntity* entity)
{
    entity->setCreatedBy(AppContext::instance()->currentUserId());
    return KorDataMapper::insert(entity);
}

bool AppDataMapper::update(KorEntity* entity)
{
    entity->setUpdatedBy(AppContext::instance()->currentUserId());
    return KorDataMapper::update(entity);
}

bool AppDataMapper::remove(KorEntity* entity) { return KorDataMapper::remove(entity); }

void AppDataMapper::insertWith(KorBatch& batch, const QList<KorEntity*>& entities)
{
    for (KorEntity* entity : entities)
        entity->setCreatedBy(AppContext::instance()->currentUserId());
    KorDataMapper::insertWith(batch, entities);
}

void AppDataMapper::updateWith(KorBatch& batch, KorEntity* entity)
{
    entity->setUpdatedBy(AppContext::instance()->currentUserId());
    KorDataMapper::updateWith(batch, entity);
}

QObject* AppDataMapper::entityParent() { return AppContext::instance()->entityPool(); }

void AppDataMapper::log(const QString& message) { AppContext::log(message); }

Money* AppDataMapper::moneyFromRow(KorQuery& query, const QString& currencyColumn, const QString& amountColumn,
                                   QObject* parent)
{
    return moneyFrom(query.row(), query.column(currencyColumn), query.column(amountColumn), parent);
}

// --- reading nested values -----------------------------------------------------------------------------------------

KorEntity* AppDataMapper::fillFromRow(KorQuery& query, KorEntity* entity)
{
    KorDataMapper::fillFromRow(query, entity);
    prepareWalk(entity);

    const KorRowPlan& plan = query.plan(*this, tableName());
    const KorRow row = query.row();
    for (const MoneyField& field : qAsConst(m_money)) {
        const int currency = plan.columns.value(field.currencyColumn, -1);
        const int amount = plan.columns.value(field.amountColumn, -1);
        if (currency < 0 || amount < 0)
            continue;
        writePointer(entity, field.property, moneyFrom(row, currency, amount, entity));
    }

    // A joined mapper reads only its own columns: its joins are not part of the other mapper's SELECT.
    if (query.selector() && query.selector() != this)
        return entity;
    QVector<QObject*> partners;
    for (const NestedField& field : qAsConst(m_nested)) {
        KorEntity* partner = query.partner(*field.mapper, field.target);
        partners.append(partner);
        QObject* owner = field.owner < 0 ? entity : partners.at(field.owner);
        if (owner)
            writePointer(owner, field.property, field.type->cast(partner));
    }
    return entity;
}

void AppDataMapper::prepareWalk(const KorEntity* entity)
{
    if (m_walkReady)
        return;
    m_walkReady = true;

    const auto propertyOf = [](const QMetaObject* meta, const QString& name) {
        return meta->property(meta->indexOfProperty(name.toUtf8().constData()));
    };
    QHash<QString, int> positions;
    const QList<KorColumnMap*>& columns = metaData()->columns();
    for (int i = 0; i < columns.size(); ++i)
        positions.insert(columns[i]->propertyPath(), i);
    for (int i = 0; i < columns.size(); ++i) {
        const QString path = columns[i]->propertyPath();
        if (!path.endsWith(".Amount"))
            continue;
        const QString name = path.left(path.size() - 7);
        const QMetaProperty property = propertyOf(entity->metaObject(), name);
        if (property.isValid() && positions.contains(name + ".Currency"))
            m_money.append({property.propertyIndex(), positions.value(name + ".Currency"), i});
    }

    // A join whose local column belongs to an earlier join ("item.jenis") fills a property of that join's record.
    for (const KorJoinMapper* join : joins()) {
        int owner = -1;
        const QString head = join->localColumn().section('.', 0, 0);
        if (join->localColumn().contains('.') && head != tableName()) {
            for (int i = 0; i < m_nested.size() && owner < 0; ++i)
                owner = m_nested.at(i).target == head ? i : -1;
            if (owner < 0)
                continue;
        }
        const QMetaObject* ownerType = owner < 0 ? entity->metaObject() : m_nested.at(owner).type;
        const QMetaProperty property = propertyOf(ownerType, join->propertyName());
        // A join that only serves the WHERE clause has a label that is no property of the record.
        if (!property.isValid() || !(QMetaType::typeFlags(property.userType()) & QMetaType::PointerToQObject))
            continue;
        const QMetaObject* type = QMetaType::metaObjectForType(property.userType());
        m_nested.append({property.propertyIndex(), type, join->mapper(), join->targetName(), owner});
    }
}

// --- declarations --------------------------------------------------------------------------------------------------

void AppDataMapper::column(const QString& name, const QString& sqlType, const QString& property)
{
    metaData()->addColumn(name, sqlType, property);
}

void AppDataMapper::moneyColumns(const QString& name, const QString& property, const QString& nullness)
{
    column(name + "_currency", "varchar(4) " + nullness, property + ".Currency");
    column(name + "_amount", "numeric " + nullness, property + ".Amount");
}

void AppDataMapper::reference(const QString& name, const QString& sqlType, const QString& property,
                              KorDataMapper* partner, const QString& joinType)
{
    column(name, sqlType, property + ".Id");
    addJoin(property, partner, joinType, name, "id");
}

bool AppDataMapper::ensureForeignKey(const QString& constraintName, const QString& column,
                                     const QString& referencedTable, const QString& referencedColumn,
                                     const QString& onDelete)
{
    KorQuery existing;
    if (!execute(existing, "select 1 from pg_constraint where conname = :name and conrelid = :table ::regclass",
                 {{":name", constraintName}, {":table", tableName()}}))
        return false;
    if (existing.next())
        return true;
    QString statement = foreignKeyStatement(tableName(), constraintName, column, referencedTable, referencedColumn);
    if (!onDelete.isEmpty())
        statement.replace(statement.size() - 1, 1, ' ' + onDelete + ';');
    KorQuery query;
    return execute(query, statement);
}

bool AppDataMapper::fail(const QString& words, const QString& reason)
{
    setError(words + reason);
    return false;
}

QString AppDataMapper::index(const QString& suffix, const QString& clause) const
{
    return "CREATE INDEX IF NOT EXISTS " + tableName() + '_' + suffix + "_idx ON " + tableName() + ' ' + clause;
}
