#include "app/widgets/AppLookupBox.h"

#include "kor/business/KorErrorScope.h"

#include <QDebug>
#include <QMetaProperty>
#include <QVector>

#include <algorithm>
#include <tuple>

namespace
{
/** How well a record matches the typed text; 0 is an equal code. */
int distanceTo(const QString& typed, const QString& code, const QString& name)
{
    const QString text = typed.trimmed();
    if (code.compare(text, Qt::CaseInsensitive) == 0)
        return 0;
    if (code.startsWith(text, Qt::CaseInsensitive))
        return 1;
    if (name.startsWith(text, Qt::CaseInsensitive))
        return 2;
    for (int at = name.indexOf(text, 0, Qt::CaseInsensitive); at > 0;
         at = name.indexOf(text, at + 1, Qt::CaseInsensitive)) {
        if (!name.at(at - 1).isLetterOrNumber())
            return 3;
    }
    return 4;
}
} // namespace

AppLookupBox::AppLookupBox(QLineEdit* editor, KorBusinessLogic* business, const QStringList& headers)
    : KorTextBoxExtender(editor, business)
{
    setColumnCount(headers.size());
    setHeaderLabels(headers);
}

void AppLookupBox::search(const QString& text)
{
    qDebug() << "search:" << text;
    findSorted(text);
    setRowCount(0);
    qDebug() << "result";
    setRowCount(m_items.size());
    searchComplete();
}

void AppLookupBox::findSorted(const QString& text)
{
    m_items.clear();
    m_found.clear();
    if (!business())
        return;
    const EntityPoolScope scope(m_found);
    const KorErrorScope errors(business());
    m_items = find(text);
    // An empty list shows "No result".
    if (errors.failed())
        m_items.clear();

    struct Row
    {
        int distance;
        QString code;
        KorEntity* record;
    };
    QVector<Row> rows;
    rows.reserve(m_items.size());
    for (KorEntity* record : qAsConst(m_items)) {
        const QString code = codeOf(*record);
        rows.append({distanceTo(text, code, nameOf(*record)), code.toLower(), record});
    }
    std::stable_sort(rows.begin(), rows.end(), [](const Row& left, const Row& right) {
        return std::tie(left.distance, left.code) < std::tie(right.distance, right.code);
    });
    std::transform(rows.cbegin(), rows.cend(), m_items.begin(), [](const Row& row) { return row.record; });
}

int AppLookupBox::findExact(const QString& text)
{
    findSorted(text);
    setRowCount(m_items.size());
    return !m_items.isEmpty() && codeOf(*m_items.first()).compare(text.trimmed(), Qt::CaseInsensitive) == 0 ? 0 : -1;
}

QVariant AppLookupBox::rowText(int row, int column) const
{
    const KorEntity* record = m_items.value(row);
    if (!record)
        return QString();
    switch (column) {
    case 0:
        return codeOf(*record);
    case 1:
        return nameOf(*record);
    case 2:
        return thirdOf(*record);
    default:
        return QString();
    }
}

QString AppLookupBox::selectedText(int row) const { return rowText(row, 0).toString(); }

QString AppLookupBox::selectedCode() const
{
    const KorEntity* record = selectedRecord();
    return record ? codeOf(*record) : QString();
}

QString AppLookupBox::codeOf(const KorEntity& record) const { return record.property("Kode").toString(); }

QString AppLookupBox::nameOf(const KorEntity& record) const { return record.property("Nama").toString(); }

QString AppLookupBox::thirdOf(const KorEntity& record) const
{
    Q_UNUSED(record)
    return QString();
}

void AppLookupBox::rowChosen(int row)
{
    m_selected = m_items.value(row);
    if (!m_selected)
        return;
    if (!m_kept.parent())
        m_kept.clear();
    keep(m_selected);
}

void AppLookupBox::keep(QObject* record)
{
    // Nested records that were read with this one stay with it.
    if (!record || record->parent() != m_found.parent())
        return;
    record->setParent(m_kept.parent());
    const QMetaObject* type = record->metaObject();
    for (int i = 0; i < type->propertyCount(); ++i) {
        if (QMetaType::typeFlags(type->property(i).userType()) & QMetaType::PointerToQObject)
            keep(type->property(i).read(record).value<QObject*>());
    }
}
