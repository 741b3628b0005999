#pragma once

#include "kor/widgets/KorRecordSource.h"

#include <QAbstractTableModel>
#include <QStringList>

#include <functional>
#include <memory>

class KorEntity;

/**
 * The rows of a grid: a list of records, owned by the model, or a source that makes records on demand. A column is
 * declared with its type (for sorting), its header, how to read the cell's text from a record, and its alignment.
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
    /** Shows the rows of the source in place of the list. */
    void setSource(std::shared_ptr<const KorRecordSource> source);
    /** The source has got more rows. */
    void showNewRows();
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

    /** Not for a source, which has no list. */
    [[nodiscard]] QList<KorEntity*> entities() const { return m_entities; }
    [[nodiscard]] QList<int> columnTypes() const { return m_columnTypes; }
    [[nodiscard]] int columnType(int column) const { return m_columnTypes.value(column, QMetaType::QString); }
    [[nodiscard]] int entityId(int row) const;
    /** The row with this record's id; -1 if there is none. */
    [[nodiscard]] int rowOf(int id) const;
    [[nodiscard]] KorEntity* entityAt(int row) const;

protected:
    /** The record of the row, only for answering data(); null for an empty row. */
    [[nodiscard]] const KorEntity* glimpse(int row) const;
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
    std::shared_ptr<const KorRecordSource> m_source;
    // Of the source's rows; the rest is not announced yet.
    int m_shown = 0;
    QMetaObject::Connection m_owner;
    QStringList m_headers;
    QList<int> m_columnTypes;
    QList<Answer> m_answers;
};
