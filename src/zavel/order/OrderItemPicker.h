#pragma once

#include "app/widgets/RecordField.h"
#include "kor/widgets/KorDialog.h"
#include "pos/masterdata/item/EntityItem.h"

#include <functional>
#include <memory>

class BusinessItem;
class EntityOrderDetail;

namespace Ui
{
class OrderItemPicker;
}

/**
 * The form that picks one item and its quantity for a line of an order. It does not own the line: a line without an
 * item is filled, one with an item is changed, and only getEntity() writes to it. A derived picker decides which kind
 * of items is offered.
 */
class OrderItemPicker : public KorDialog
{
    Q_OBJECT

public:
    ~OrderItemPicker() override;

    bool validate() override;
    KorEntity* getEntity() override;
    void setEntity(KorEntity* line) override;

    /** Id of the item type that filters the search, -1 for all; the next picker starts with the same one. */
    [[nodiscard]] int itemType() const;
    void setItemType(int id);

public slots:
    void on_txtQty_textChanged(const QString& text);
    void on_ddlType_currentIndexChanged(int row);

protected:
    /** The chosen item is read into the pool, which has to outlive the line. */
    OrderItemPicker(EntityPool& items, QWidget* parent);

    /** Box is a lookup box of items that has setItemType(id). */
    template <class Box>
    void findItemsWith()
    {
        auto* box = new Box(codeField(), m_service);
        m_narrow = [box](int type) { box->setItemType(type); };
        useField(new RecordField<EntityItem>(box, nameField(), this));
    }

private:
    [[nodiscard]] QLineEdit* codeField() const;
    [[nodiscard]] QLineEdit* nameField() const;
    void useField(RecordField<EntityItem>* item);
    void fillTypes();
    void showPrice();
    void showAmount();
    [[nodiscard]] double price() const;
    [[nodiscard]] double quantity() const;
    [[nodiscard]] bool totalFits() const;

    std::unique_ptr<Ui::OrderItemPicker> m_ui;
    EntityPool& m_items;
    BusinessItem* m_service;
    std::function<void(int)> m_narrow;
    EntityOrderDetail* m_line = nullptr;
    RecordField<EntityItem>* m_item = nullptr;
};
