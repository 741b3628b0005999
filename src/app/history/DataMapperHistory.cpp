#include "app/history/DataMapperHistory.h"

#include "app/history/EntityHistory.h"
#include "app/money/Money.h"
#include "app/persistence/AppDataMapper.h"
#include "kor/entity/KorColumnMap.h"
#include "kor/entity/KorMetaDataMap.h"

#include <QCryptographicHash>
#include <QJsonDocument>
#include <QMetaProperty>

namespace
{
// The ids of Qt's own value types are not above this; pointers to records and values are.
constexpr int lastPlainType = 256;

QObject* pointerOf(const QVariant& value)
{
    if (QMetaType::typeFlags(value.userType()) & QMetaType::PointerToQObject)
        return *static_cast<QObject* const*>(value.constData());
    return value.value<QObject*>();
}
} // namespace

DataMapperHistory::DataMapperHistory(QObject* parent) : KorDataMapper(parent)
{
    setName("history");
    metaData()->setTableName("entities_history");
    metaData()->addColumn("version_id", "integer not null", "Version");
    metaData()->addColumn("class_name", "varchar(50) not null", "ClassName");
    metaData()->addColumn("item_id", "integer not null", "ItemId");
    metaData()->addColumn("saved_date", "timestamp default NULL", "SavedDate");
    metaData()->addColumn("data_json", "text NOT NULL", "DataJSON");
    metaData()->addColumn("sha1_hash", "varchar(50) NOT NULL", "SHA1HashHex");
    metaData()->addColumn("user_id", "integer not null", "User");
    metaData()->addColumn("operation_id", "integer not null", "Operation");
}

bool DataMapperHistory::createTable(int mode)
{
    QString text;
    if (mode == 1)
        text = "DROP TABLE IF EXISTS " + tableName() + ";create table  " + tableName();
    else if (mode == 2)
        text = "CREATE TABLE IF NOT EXISTS " + tableName();
    QStringList columns;
    for (const KorColumnMap* column : metaData()->columns())
        columns.append(column->columnName() + ' ' + column->sqlType());
    text += "(id bigserial  primary key, " + columns.join(", ") + ')';

    KorQuery query;
    if (query.exec(text))
        return true;
    setError(query.failureOf(text));
    return false;
}

KorEntity* DataMapperHistory::createEntity() { return new EntityHistory(AppDataMapper::entityParent()); }

bool DataMapperHistory::save(KorEntity* entity, int userId, int operationId)
{
    const QString json = QString::fromUtf8(QJsonDocument(toJson(entity)).toJson().constData());
    const QByteArray hash = QCryptographicHash::hash(json.toUtf8(), QCryptographicHash::Sha1).toHex();

    KorQuery query;
    query.prepare("insert into " + tableName() +
                  " ( version_id,class_name,item_id,saved_date,data_json,sha1_hash,user_id,operation_id"
                  ") values (?,?,?,now(),?,?,?,?)");
    query.bindValue(0, entity->getVersion());
    query.bindValue(1, QString::fromLatin1(entity->metaObject()->className()));
    query.bindValue(2, entity->getId());
    query.bindValue(3, json);
    query.bindValue(4, QString::fromLatin1(hash));
    query.bindValue(5, userId);
    query.bindValue(6, operationId);
    if (query.exec())
        return true;
    setError(query.failureWithStatement());
    return false;
}

QJsonObject DataMapperHistory::toJson(KorEntity* entity)
{
    QJsonObject object;
    const QMetaObject* meta = entity->metaObject();
    for (int i = 0; i < meta->propertyCount(); ++i) {
        const QMetaProperty property = meta->property(i);
        const QString name = QString::fromLatin1(property.name());
        const QVariant value = property.read(entity);
        if (property.userType() <= lastPlainType) {
            object.insert(name, value.toString());
            continue;
        }
        QObject* pointer = pointerOf(value);
        if (auto* nested = qobject_cast<KorEntity*>(pointer))
            object.insert(name, toJson(nested));
        else if (auto* money = qobject_cast<Money*>(pointer))
            object.insert(name, valueToJson(money));
        else
            object.insert(name, QJsonValue());
    }
    return object;
}

QJsonObject DataMapperHistory::valueToJson(QObject* value)
{
    QJsonObject object;
    const QMetaObject* meta = value->metaObject();
    for (int i = 0; i < meta->propertyCount(); ++i)
        object.insert(QString::fromLatin1(meta->property(i).name()), meta->property(i).read(value).toString());
    return object;
}
