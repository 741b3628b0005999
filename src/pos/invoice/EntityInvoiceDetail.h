#pragma once

#include "app/money/Money.h"
#include "kor/entity/KorEntity.h"
#include "pos/masterdata/item/EntityItem.h"

/** One line of an invoice. The split quantity and its group live in memory only, while a party pays apart. */
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
    /** Takes the quantity off the line, giving back what was split off before; the total follows. */
    void setQtySplit(int quantity);
    [[nodiscard]] QString splitGroup() const { return m_splitGroup; }
    void setSplitGroup(const QString& group) { m_splitGroup = group; }

    /** Total := price × quantity. */
    void recomputeTotal();
    /** Whether price × quantity is an amount that money can hold; a larger one would wrap around. */
    [[nodiscard]] bool totalFits() const;

private:
    int m_qtySplit = 0;
    QString m_splitGroup;
};
