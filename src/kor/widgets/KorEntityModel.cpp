#include "kor/widgets/KorEntityModel.h"

#include "kor/entity/KorEntity.h"

KorEntityModel::KorEntityModel(QObject* parent) : QAbstractTableModel(parent) {}

KorEntityModel::KorEntityModel(const QList<KorEntity*>& entities, QObject* parent)
    : QAbstractTableModel(parent), m_entities(entities)
{
    watchOwner();
}

void KorEntityModel::watchOwner()
{
    disconnect(m_owner);
    const QObject* owner = m_entities.value(0) ? m_entities.first()->parent() : nullptr;
    if (!owner)
        return;
    m_owner = connect(owner, &QObject::destroyed, this, [this] {
        beginResetModel();
        m_entities.clear();
        endResetModel();
    });
}

void KorEntityModel::setEntities(const QList<KorEntity*>& entities)
{
    if (m_entities == entities)
        return;
    beginResetModel();
    m_entities = entities;
    watchOwner();
    endResetModel();
}

void KorEntityModel::addColumn(int typeId, const QString& header) { addColumn(typeId, header, Reader()); }

void KorEntityModel::addColumn(int typeId, const QString& header, Reader reader, int alignment)
{
    m_columnTypes.append(typeId);
    m_headers.append(header);
    m_answers.append({std::move(reader), alignment});
}

void KorEntityModel::addId(const QString& header)
{
    addColumn(QMetaType::Int, header, [](const KorEntity& entity) { return QString::number(entity.getId()); });
}

int KorEntityModel::rowCount(const QModelIndex& parent) const
{
    if (parent.isValid())
        return 0;
    return m_source ? m_shown : m_entities.size();
}

int KorEntityModel::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : m_headers.size(); }

QVariant KorEntityModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= rowCount() || index.column() >= m_answers.size())
        return {};
    const Answer& answer = m_answers.at(index.column());
    if (role == Qt::TextAlignmentRole)
        return answer.alignment ? QVariant(answer.alignment) : QVariant();
    if (role != Qt::DisplayRole)
        return {};
    if (!answer.read)
        return QString("Row%1, Column%2").arg(index.row() + 1).arg(index.column() + 1);
    const KorEntity* entity = glimpse(index.row());
    return entity ? answer.read(*entity) : QVariant();
}

QVariant KorEntityModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section >= m_headers.size())
        return {};
    if (role == Qt::DisplayRole)
        return m_headers.at(section);
    if (role == Qt::TextAlignmentRole && m_answers.at(section).alignment)
        return m_answers.at(section).alignment;
    return {};
}

void KorEntityModel::setSource(std::shared_ptr<const KorRecordSource> source)
{
    beginResetModel();
    m_source = std::move(source);
    m_shown = m_source ? m_source->count() : 0;
    endResetModel();
}

void KorEntityModel::showNewRows()
{
    if (!m_source || m_source->count() <= m_shown)
        return;
    beginInsertRows(QModelIndex(), m_shown, m_source->count() - 1);
    m_shown = m_source->count();
    endInsertRows();
}

void KorEntityModel::clear()
{
    if (m_source)
        setSource(nullptr);
    if (m_entities.isEmpty())
        return;
    beginRemoveRows(QModelIndex(), 0, m_entities.size() - 1);
    const QList<KorEntity*> gone = m_entities;
    m_entities.clear();
    endRemoveRows();
    qDeleteAll(gone);
}

void KorEntityModel::append(KorEntity* entity)
{
    beginInsertRows(QModelIndex(), m_entities.size(), m_entities.size());
    m_entities.append(entity);
    endInsertRows();
}

void KorEntityModel::setRows(const QList<KorEntity*>& entities)
{
    clear();
    for (KorEntity* entity : entities)
        append(entity);
}

int KorEntityModel::rowOf(int id) const
{
    for (int row = 0; row < rowCount(); ++row) {
        const bool isEmpty = !m_source && !m_entities.at(row);
        if (!isEmpty && entityId(row) == id)
            return row;
    }
    return -1;
}

KorEntity* KorEntityModel::find(int id) const
{
    const int row = rowOf(id);
    return row < 0 ? nullptr : entityAt(row);
}

KorEntity* KorEntityModel::entityAt(int row) const
{
    if (!m_source)
        return m_entities.value(row);
    return row >= 0 && row < m_shown ? m_source->record(row) : nullptr;
}

const KorEntity* KorEntityModel::glimpse(int row) const
{
    if (!m_source)
        return m_entities.value(row);
    return row >= 0 && row < m_shown ? m_source->glimpse(row) : nullptr;
}

void KorEntityModel::remove(KorEntity* entity)
{
    const int row = rowOf(entity->getId());
    if (row < 0 || m_source)
        return;
    beginRemoveRows(QModelIndex(), row, row);
    m_entities.removeAt(row);
    endRemoveRows();
}

void KorEntityModel::replace(int row, KorEntity* entity)
{
    if (row < 0 || row >= m_entities.size())
        return;
    m_entities[row] = entity;
    emit dataChanged(index(row, 0), index(row, columnCount() - 1));
}

int KorEntityModel::entityId(int row) const
{
    if (m_source)
        return row >= 0 && row < m_shown ? m_source->id(row) : 0;
    const KorEntity* entity = m_entities.value(row);
    return entity ? entity->getId() : 0;
}
