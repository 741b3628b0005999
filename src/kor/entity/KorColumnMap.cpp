#include "kor/entity/KorColumnMap.h"

#include "kor/entity/KorProperty.h"

#include <QDateTime>
#include <QMetaProperty>
#include <QVariant>

KorColumnMap::KorColumnMap(const QString& columnName, const QString& sqlType, const QString& propertyPath,
                           QObject* parent)
    : QObject(parent), m_columnName(columnName), m_sqlType(sqlType)
{
    setPropertyPath(propertyPath);
}

void KorColumnMap::setPropertyPath(const QString& propertyPath)
{
    m_propertyPath = propertyPath;
    m_propertyPathUtf8 = propertyPath.toUtf8();
}

namespace
{
QVariant nullInteger() { return QVariant(QVariant::Int); }

const QObject* nestedObject(const QObject* owner, const QByteArray& property)
{
    const QMetaObject* meta = owner->metaObject();
    const int index = meta->indexOfProperty(property.constData());
    if (index < 0)
        return nullptr;
    const QVariant value = meta->property(index).read(owner);
    if (QMetaType::typeFlags(value.userType()) & QMetaType::PointerToQObject)
        return *static_cast<QObject* const*>(value.constData());
    return value.value<QObject*>();
}
} // namespace

QVariant columnValue(const KorColumnMap& column, const QObject* record)
{
    const QByteArray& path = column.propertyPathUtf8();
    const QObject* object = record;
    int start = 0;
    for (int dot = path.indexOf('.'); dot >= 0; dot = path.indexOf('.', start)) {
        object = nestedObject(object, path.mid(start, dot - start));
        if (!object)
            return nullInteger();
        start = dot + 1;
    }

    QVariant value = object->property(path.constData() + start);
    if (value.type() == QVariant::DateTime) {
        // An invalid date-time becomes an empty text, which the database refuses; a null text would become NULL.
        const QDateTime moment = value.toDateTime();
        return moment.isValid() ? moment.toString(QStringLiteral("yyyy-MM-dd hh:mm:ss")) : QString("");
    }
    // KorNoValue is compared for every type, also texts and amounts: stored data depends on it.
    if (value.toInt() == KorNoValue)
        return nullInteger();
    return value;
}
