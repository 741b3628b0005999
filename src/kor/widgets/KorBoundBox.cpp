#include "kor/widgets/KorBoundBox.h"

#include "kor/entity/KorEntity.h"

#include <QComboBox>
#include <QLabel>

namespace
{
/** The property that holds what a user enters into the box. */
QMetaProperty valueOf(const QObject* box)
{
    const QMetaObject* type = box->metaObject();
    if (qobject_cast<const QLabel*>(box))
        return type->property(type->indexOfProperty("text"));
    if (qobject_cast<const QComboBox*>(box))
        return type->property(type->indexOfProperty("currentData"));
    return type->userProperty();
}

bool goesInto(const QMetaProperty& from, const QMetaProperty& to)
{
    const bool isAny = from.userType() == QMetaType::QVariant || to.userType() == QMetaType::QVariant;
    return isAny || from.userType() == to.userType() || QVariant(from.userType(), nullptr).canConvert(to.userType());
}

/** The value as this property takes it. What is empty or stands for nothing becomes the property's own nothing. */
QVariant valueFor(const QMetaProperty& property, QVariant value)
{
    const int type = property.userType();
    return value.userType() == type || value.convert(type) ? value : QVariant(type, nullptr);
}
} // namespace

KorBoundBox::KorBoundBox(QObject* box, const QMetaObject& record, const char* field)
    : m_box(box), m_value(valueOf(box)), m_field(record.property(record.indexOfProperty(field))),
      m_showsOnly(qobject_cast<QLabel*>(box) || box->property("readOnly").toBool())
{
    const bool isWhole = m_value.isValid() && m_field.isValid();
    if (!isWhole || !goesInto(m_field, m_value) || (!m_showsOnly && !goesInto(m_value, m_field)))
        qFatal("%s %s cannot edit %s of %s", box->metaObject()->className(), qPrintable(box->objectName()), field,
               record.className());
}

void KorBoundBox::show(const KorEntity& record) const
{
    const QVariant value = m_field.read(&record);
    if (auto* list = qobject_cast<QComboBox*>(m_box))
        list->setCurrentIndex(list->findData(value));
    else
        m_value.write(m_box, valueFor(m_value, value));
}

void KorBoundBox::take(KorEntity* record) const
{
    const auto* list = qobject_cast<QComboBox*>(m_box);
    if (m_showsOnly || (list && list->currentIndex() < 0))
        return;
    m_field.write(record, valueFor(m_field, m_value.read(m_box)));
}
