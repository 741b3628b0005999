#pragma once

#include "kor/persistence/KorDataMapper.h"

class Money;

/**
 * Base of the program's mappers. It sets who created and updated a row, and it reads money and nested records by the
 * declared columns and joins. Subclasses override the reading only for special cases.
 */
class AppDataMapper : public KorDataMapper
{
    Q_OBJECT

public:
    explicit AppDataMapper(QObject* parent = nullptr) : KorDataMapper(parent) {}

    bool insert(KorEntity* entity) override;
    bool update(KorEntity* entity) override;
    bool remove(KorEntity* entity) override;
    void insertWith(KorBatch& batch, const QList<KorEntity*>& entities) override;
    void updateWith(KorBatch& batch, KorEntity* entity) override;
    using KorDataMapper::fillFromRow;
    KorEntity* fillFromRow(KorQuery& query, KorEntity* entity) override;

    /** The parent of new records; null on a worker thread without an EntityPoolScope. */
    [[nodiscard]] static QObject* entityParent();
    /** Null if either column is NULL. */
    static Money* moneyFromRow(KorQuery& query, const QString& currencyColumn, const QString& amountColumn,
                               QObject* parent);
    static void log(const QString& message);

protected:
    // Declarations of common columns.
    void column(const QString& name, const QString& sqlType, const QString& property);
    /** The columns NAME_currency and NAME_amount of a money property. "nullness" is SQL, used unchanged. */
    void moneyColumns(const QString& name, const QString& property, const QString& nullness = "not null");
    /** A column with another record's id, the join that reads that record, and the foreign key. */
    void reference(const QString& name, const QString& sqlType, const QString& property, KorDataMapper* partner,
                   const QString& joinType);
    /** Adds the foreign key if the table does not have it; for keys that no join gives. Call it from createTable(). */
    bool ensureForeignKey(const QString& constraintName, const QString& column, const QString& referencedTable,
                          const QString& referencedColumn, const QString& onDelete = QString());
    /** Sets the error to words and reason; always returns false, for use in a return statement. */
    bool fail(const QString& words, const QString& reason = QString());
    /** "CREATE INDEX IF NOT EXISTS TABLE_SUFFIX_idx ON TABLE CLAUSE", for indexStatements(). */
    [[nodiscard]] QString index(const QString& suffix, const QString& clause) const;

private:
    struct MoneyField
    {
        /** The index in the record's class. */
        int property = -1;
        int currencyColumn = -1;
        int amountColumn = -1;
    };
    struct NestedField
    {
        int property;
        /** The class that the property points to. */
        const QMetaObject* type;
        KorDataMapper* mapper;
        QString target;
        /** The index of the join whose record this one belongs to; -1 for the main record. */
        int owner;
    };

    void prepareWalk(const KorEntity* entity);

    bool m_walkReady = false;
    QList<MoneyField> m_money;
    QList<NestedField> m_nested;
};
