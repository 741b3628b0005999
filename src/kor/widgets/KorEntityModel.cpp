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

int KorEntityModel::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : m_entities.size(); }

int KorEntityModel::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : m_headers.size(); }

QVariant KorEntityModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= m_entities.size() || index.column() >= m_answers.size())
        return {};
    const Answer& answer = m_answers.at(index.column());
    if (role == Qt::TextAlignmentRole)
        return answer.alignment ? QVariant(answer.alignment) : QVariant();
    if (role != Qt::DisplayRole)
        return {};
    if (!answer.read)
        return QString("Row%1, Column%2").arg(index.row() + 1).arg(index.column() + 1);
    const KorEntity* entity = m_entities.at(index.row());
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

void KorEntityModel::clear()
{
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

KorEntity* KorEntityModel::find(int id) const
{
    for (KorEntity* entity : m_entities) {
        if (entity && entity->getId() == id)
            return entity;
    }
    return nullptr;
}

void KorEntityModel::remove(KorEntity* entity)
{
    const int row = m_entities.indexOf(find(entity->getId()));
    if (row < 0)
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
    const KorEntity* entity = entityAt(row);
    return entity ? entity->getId() : 0;
}
