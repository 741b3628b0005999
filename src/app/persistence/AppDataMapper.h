#pragma once

#include "kor/persistence/KorDataMapper.h"

#include <QMetaProperty>

class Money;

/**
 * Base of the program's mappers. It stamps rows with the logged-in user, and it reads money and nested records back
 * by a walk over the declarations, so that a family overrides the reading only where it is special.
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

    /** The parent of every record that a mapper makes; null on a worker thread outside of any EntityPoolScope. */
    [[nodiscard]] static QObject* entityParent();
    /** Null when either of the two columns is NULL. */
    static Money* moneyFromRow(KorQuery& query, const QString& currencyColumn, const QString& amountColumn,
                               QObject* parent);
    static void log(const QString& message);

protected:
    // Declarations of the recurring shapes.
    void column(const QString& name, const QString& sqlType, const QString& property);
    /** The two columns NAME_currency and NAME_amount of a money property; the null words stand as written. */
    void moneyColumns(const QString& name, const QString& property, const QString& nullness = "not null");
    /** A column that holds a partner's id, with the join that reads the partner and the foreign key it gives. */
    void reference(const QString& name, const QString& sqlType, const QString& property, KorDataMapper* partner,
                   const QString& joinType);
    /** Adds the named foreign key unless the table has it; for keys that no join gives, from createTable(). */
    bool ensureForeignKey(const QString& constraintName, const QString& column, const QString& referencedTable,
                          const QString& referencedColumn, const QString& onDelete = QString());
    /** Sets the words with the reason behind them as the error; false, as a save returns it. */
    bool fail(const QString& words, const QString& reason = QString());
    /** "CREATE INDEX IF NOT EXISTS TABLE_SUFFIX_idx ON TABLE CLAUSE", for indexStatements(). */
    [[nodiscard]] QString index(const QString& suffix, const QString& clause) const;

private:
    struct MoneyField
    {
        QMetaProperty property;
        int currencyColumn = -1;
        int amountColumn = -1;
    };
    struct NestedField
    {
        QMetaProperty property;
        KorDataMapper* mapper;
        QString target;
        /** The join on whose partner this one builds, -1 for the row's own record. */
        int owner;
    };

    void prepareWalk(const KorEntity* entity);

    bool m_walkReady = false;
    QList<MoneyField> m_money;
    QList<NestedField> m_nested;
};
