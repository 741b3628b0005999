#include "kor/persistence/KorFieldPlan.h"

#include "kor/entity/KorEntity.h"
#include "kor/entity/KorMetaDataMap.h"
#include "kor/persistence/KorRow.h"

#include <QMetaProperty>
#include <QSqlQuery>
#include <QVariant>

#include <libpq-fe.h>

namespace
{
// The server's numbers of its types.
enum ServerType : unsigned {
    BoolType = 16,
    SmallIntType = 21,
    IntegerType = 23,
    TextType = 25,
    DoubleType = 701,
    PaddedType = 1042,
    VarcharType = 1043,
    DateType = 1082,
    TimestampType = 1114,
    NumericType = 1700
};

template <class Value>
void write(KorEntity* entity, int property, Value value)
{
    int status = -1;
    int flags = 0;
    void* arguments[] = {&value, nullptr, &status, &flags};
    QMetaObject::metacall(entity, QMetaObject::WriteProperty, property, arguments);
}
} // namespace

KorFieldPlan::Kind KorFieldPlan::kindOf(int propertyType, unsigned columnType)
{
    switch (columnType) {
    case SmallIntType:
    case IntegerType:
        return propertyType == QMetaType::Int ? Integer : Converted;
    case DoubleType:
    case NumericType:
        return propertyType == QMetaType::Double ? Number : Converted;
    case BoolType:
        return propertyType == QMetaType::Bool ? Boolean : Converted;
    case TextType:
    case PaddedType:
    case VarcharType:
        return propertyType == QMetaType::QString ? Text : Converted;
    case DateType:
        return propertyType == QMetaType::QDate ? Date : Converted;
    case TimestampType:
        return propertyType == QMetaType::QDateTime ? Moment : Converted;
    default:
        return Converted;
    }
}

void KorFieldPlan::make(const QMetaObject& type, const KorMetaDataMap& columns, const QVector<int>& positions,
                        const pg_result* result)
{
    m_type = &type;
    m_fields.clear();
    for (int i = 0; i < positions.size(); ++i) {
        const int property = type.indexOfProperty(columns.columns()[i]->propertyPathUtf8().constData());
        const int column = positions[i];
        if (property < 0 || column < 0)
            continue;
        m_fields.append({kindOf(type.property(property).userType(), PQftype(result, column)), property, column});
    }
}

void KorFieldPlan::fill(KorEntity* entity, const KorRow& row, const QSqlQuery& query) const
{
    for (const Field& field : m_fields) {
        switch (field.kind) {
        case Integer:
            write(entity, field.property, row.isNull(field.column) ? KorNoValue : row.toInt(field.column));
            break;
        case Number:
            write(entity, field.property, row.toDouble(field.column));
            break;
        case Boolean:
            write(entity, field.property, row.toBool(field.column));
            break;
        case Text:
            write(entity, field.property, row.toString(field.column));
            break;
        case Moment:
            write(entity, field.property, row.toStamp(field.column).toDateTime());
            break;
        case Date:
            write(entity, field.property, row.toDate(field.column));
            break;
        case Converted: {
            QVariant value = query.value(field.column);
            if (value.type() == QVariant::Int && value.isNull())
                value = KorNoValue;
            m_type->property(field.property).write(entity, value);
        }
        }
    }
}
