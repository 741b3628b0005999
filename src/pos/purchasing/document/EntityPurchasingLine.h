#pragma once

#include "pos/masterdata/item/EntityItem.h"

/**
 * Base of the lines of purchasing documents: an item, quantity, price and discount. Each subclass has its own names for
 * these fields; forms and totals use the names of this class.
 */
class EntityPurchasingLine : public KorEntity
{
    Q_OBJECT
    KOR_REFERENCE(EntityItem, Item)
    /** For the whole line. */
    MONEY_PROPERTY(Discount)
    KOR_PROPERTY(double, DiscountPercentage, 0)

public:
    using KorEntity::KorEntity;

    [[nodiscard]] virtual int quantity() const = 0;
    virtual void setQuantity(int quantity) = 0;
    [[nodiscard]] virtual Money* linePrice() const = 0;
    virtual void setLinePrice(Money* price) = 0;
    [[nodiscard]] virtual Money* lineTotal() const = 0;
    virtual void setLineTotal(Money* total) = 0;

    [[nodiscard]] int itemId() const { return m_Item ? m_Item->getId() : KorNoValue; }
    /** Total := price × quantity − discount. */
    void recomputeTotal();
    /** Copies quantity, price, discount and total of the other line; keeps the item. */
    void takeFigures(const EntityPurchasingLine& other);
    /** False if price × quantity is too large for Money and would overflow. */
    [[nodiscard]] bool totalFits() const;
};

/** Maps a subclass's names for quantity, price and total to those of EntityPurchasingLine. */
#define PURCHASING_LINE(QuantityName, PriceName, TotalName)                                                            \
public:                                                                                                                \
    [[nodiscard]] int quantity() const override { return get##QuantityName(); }                                        \
    void setQuantity(int quantity) override { set##QuantityName(quantity); }                                           \
    [[nodiscard]] Money* linePrice() const override { return get##PriceName(); }                                       \
    void setLinePrice(Money* price) override { set##PriceName(price); }                                                \
    [[nodiscard]] Money* lineTotal() const override { return get##TotalName(); }                                       \
    void setLineTotal(Money* total) override { set##TotalName(total); }
