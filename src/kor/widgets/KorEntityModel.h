#pragma once

#include <QAbstractTableModel>
#include <QStringList>

#include <functional>

class KorEntity;

/**
 * The rows of a grid: a list of records, owned by the model. A column is declared with its type (for sorting), its
 * header, how to read the cell's text from a record, and its alignment.
 */
class KorEntityModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    using Reader = std::function<QVariant(const KorEntity&)>;
    static constexpr int RightAligned = Qt::AlignRight | Qt::AlignVCenter;

    explicit KorEntityModel(QObject* parent = nullptr);
    explicit KorEntityModel(const QList<KorEntity*>& entities, QObject* parent = nullptr);

    void setEntities(const QList<KorEntity*>& entities);
    /** A column without a reader, for models that override data(); without that it shows "Row1, Column1". */
    void addColumn(int typeId, const QString& header);
    void addColumn(int typeId, const QString& header, Reader reader, int alignment = 0);

    [[nodiscard]] int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    /** Removes all rows and deletes their records. */
    void clear();
    void append(KorEntity* entity);
    void setRows(const QList<KorEntity*>& entities);
    [[nodiscard]] KorEntity* find(int id) const;
    /** Removes the row with this record's id; the record itself is not deleted. */
    void remove(KorEntity* entity);
    /** Replaces the record of that row; the former one is not deleted. */
    void replace(int row, KorEntity* entity);

    [[nodiscard]] QList<KorEntity*> entities() const { return m_entities; }
    [[nodiscard]] QList<int> columnTypes() const { return m_columnTypes; }
    [[nodiscard]] int columnType(int column) const { return m_columnTypes.value(column, QMetaType::QString); }
    [[nodiscard]] int entityId(int row) const;
    [[nodiscard]] KorEntity* entityAt(int row) const { return m_entities.value(row); }

protected:
    /** The record's id as a number. */
    void addId(const QString& header);
    /** A text column that reads the record's getter. */
    template <class Entity, class Value>
    void addText(const QString& header, Value (Entity::*getter)() const)
    {
        addField<Entity>(QMetaType::QString, header, [getter](const Entity& entity) { return (entity.*getter)(); });
    }
    /** A column whose reader gets the record in its own type. */
    template <class Entity, class Read>
    void addField(int typeId, const QString& header, Read read, int alignment = 0)
    {
        addColumn(
            typeId, header,
            [read](const KorEntity& entity) { return QVariant(read(static_cast<const Entity&>(entity))); }, alignment);
    }

private:
    struct Answer
    {
        Reader read;
        int alignment = 0;
    };

    /** Removes the rows before their records are deleted, if somebody else owns the records. */
    void watchOwner();

    QList<KorEntity*> m_entities;
    QMetaObject::Connection m_owner;
    QStringList m_headers;
    QList<int> m_columnTypes;
    QList<Answer> m_answers;
};
