#pragma once

#include "pos/masterdata/item/EntityItem.h"

/**
 * One line of what is ordered, bought, returned or spent: an item, how many, at which price, less a discount. Each
 * table calls the figures by names of its own; the forms and totals know them by these.
 */
class EntityPurchasingLine : public KorEntity
{
    Q_OBJECT
    KOR_REFERENCE(EntityItem, Item)
    /** Of the whole line. */
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
    /** Quantity, price, discount and total of the other line; the item stays. */
    void takeFigures(const EntityPurchasingLine& other);
    /** Whether price × quantity is an amount that money can hold; a larger one would wrap around. */
    [[nodiscard]] bool totalFits() const;
};

/** What a table calls the figures of its lines. */
#define PURCHASING_LINE(QuantityName, PriceName, TotalName)                                                            \
public:                                                                                                                \
    [[nodiscard]] int quantity() const override { return get##QuantityName(); }                                        \
    void setQuantity(int quantity) override { set##QuantityName(quantity); }                                           \
    [[nodiscard]] Money* linePrice() const override { return get##PriceName(); }                                       \
    void setLinePrice(Money* price) override { set##PriceName(price); }                                                \
    [[nodiscard]] Money* lineTotal() const override { return get##TotalName(); }                                       \
    void setLineTotal(Money* total) override { set##TotalName(total); }
