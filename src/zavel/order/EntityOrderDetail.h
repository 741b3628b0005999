#pragma once

#include "app/money/Money.h"
#include "kor/entity/KorEntity.h"
#include "pos/masterdata/item/EntityItem.h"

#include <optional>

/** One menu line of an order, on a table or to take away. */
class EntityOrderDetail : public KorEntity
{
    Q_OBJECT
    KOR_REFERENCE(EntityItem, Item)
    KOR_PROPERTY(int, Qty, 0)
    KOR_PROPERTY(int, Status, NEW)
    MONEY_PROPERTY(Total)
    MONEY_PROPERTY(PriceEach)
    /** The guest's wishes for this dish. */
    KOR_PROPERTY(QString, Description, QString())
    /** What the kitchen reports, in free text. */
    KOR_PROPERTY(QString, KitchenStatus, QString())

public:
    /** OUT_OF_STOCK and IN_PROGRESS are never written. */
    enum MENU_ITEM_STATUS { NEW = 1, OUT_OF_STOCK = 2, IN_PROGRESS = 3, UPDATED = 4 };
    Q_ENUM(MENU_ITEM_STATUS)

    /** A changed line's quantity and wishes as the kitchen last saw them, and its new total quantity. */
    struct Former
    {
        int qty;
        int qtyNow;
        QString description;
    };

    using KorEntity::KorEntity;

    /** Kept only in memory, between a change and its slip; empty for a new line. */
    [[nodiscard]] const std::optional<Former>& former() const { return m_former; }
    void setFormer(const Former& former) { m_former = former; }

    [[nodiscard]] virtual int getOrderId() const = 0;
    virtual void setOrderId(int id) = 0;
    /** An unsaved line of the same kind. The caller owns it. */
    [[nodiscard]] virtual EntityOrderDetail* createSibling() const = 0;
    /** A copy with its own Money objects, for comparing after an edit. The caller owns it. */
    [[nodiscard]] EntityOrderDetail* snapshot() const;
    [[nodiscard]] int itemId() const { return m_Item ? m_Item->getId() : KorNoValue; }

private:
    std::optional<Former> m_former;
};
