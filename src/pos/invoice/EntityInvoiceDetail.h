#pragma once

#include "app/money/Money.h"
#include "kor/entity/KorEntity.h"
#include "pos/masterdata/item/EntityItem.h"

/** One line of an invoice. The split quantity and group are only in memory, while a bill is being split. */
class EntityInvoiceDetail : public KorEntity
{
    Q_OBJECT
    KOR_PROPERTY(int, InvoiceId, KorNoValue)
    KOR_REFERENCE(EntityItem, Item)
    KOR_PROPERTY(int, Qty, 0)
    MONEY_PROPERTY(PriceEach)
    MONEY_PROPERTY(Discount)
    MONEY_PROPERTY(Total)

public:
    using KorEntity::KorEntity;

    [[nodiscard]] int qtySplit() const { return m_qtySplit; }
    /**
     * Moves this quantity to a split bill: it is taken off the line, after the earlier one was put back. Updates the
     * total.
     */
    void setQtySplit(int quantity);
    [[nodiscard]] QString splitGroup() const { return m_splitGroup; }
    void setSplitGroup(const QString& group) { m_splitGroup = group; }

    /** Total := price × quantity. */
    void recomputeTotal();
    /** False if price × quantity is too large for Money and would overflow. */
    [[nodiscard]] bool totalFits() const;

private:
    int m_qtySplit = 0;
    QString m_splitGroup;
};
