#pragma once

#include "app/context/EntityPool.h"
#include "pos/masterdata/item/ItemTextBox.h"

class KorDialog;

/**
 * The boxes of a form in which an item is named by its code, typed or picked from the list. The widgets are borrowed;
 * what is read goes to the pool, which has to outlive whatever shows the item.
 */
class ItemField : public QObject
{
    Q_OBJECT

public:
    /** The form may be missing where nothing is checked, as in a filter. */
    ItemField(QLineEdit* code, QLineEdit* name, EntityPool& items, KorDialog* form);

    [[nodiscard]] ItemTextBox* box() const { return m_box; }
    [[nodiscard]] EntityItem* item() const { return m_item; }
    void show(EntityItem* item);
    /** Reports an empty box and an unknown code on the form; false for both, and when the items cannot be read. */
    bool check(const QString& missing, const QString& unknown);
    /** An item that is to stay as it is. */
    void freeze();
    /** For forms that tell something about the item at once: a typed code counts as soon as the box is left. */
    void lookUpWhenLeft();
    /** Takes the item of the code that stands in the box; a failure to read is what comes back. */
    [[nodiscard]] QString lookUp();

signals:
    /** Another item was chosen by the user, or none. */
    void chosen();

private:
    QLineEdit* m_code;
    QLineEdit* m_name;
    EntityPool& m_items;
    KorDialog* m_form;
    ItemTextBox* m_box;
    QPointer<EntityItem> m_item;
};
