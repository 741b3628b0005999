#pragma once

#include "app/context/EntityPool.h"
#include "masterdata/item/EntityItem.h"

class ItemTextBox;
class QLineEdit;

/**
 * The item of a form: its code is picked from the suggestions or typed, and its name stands beside it. A typed code is
 * looked up when the field is left, or when the form asks.
 */
class ItemEntry final : public QObject
{
    Q_OBJECT

public:
    /** The name's field may be missing, as in a filter. */
    explicit ItemEntry(QLineEdit* code, QLineEdit* name = nullptr);

    /** The field that gets the focus after a choice. */
    void setNextWidget(QWidget* widget);
    /** Null for an empty field and for a code that no item has. */
    [[nodiscard]] EntityItem* item();
    /** Shows the item of a record that is being edited; nobody is told. */
    void setItem(EntityItem* item);

signals:
    /** An item was chosen; null says that its code was changed since. */
    void chosen(EntityItem* item);

private:
    void choose(EntityItem* item);

    QLineEdit* m_code;
    QLineEdit* m_name;
    ItemTextBox* m_box;
    EntityPool m_read;
    QPointer<EntityItem> m_item;
};
