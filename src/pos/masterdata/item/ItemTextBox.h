#pragma once

#include "app/widgets/AppEntityTextBox.h"
#include "pos/masterdata/item/BusinessItem.h"

/** A lookup box for items of any class. */
class ItemTextBox final : public AppEntityTextBox<EntityItem, BusinessItem>
{
    Q_OBJECT

public:
    ItemTextBox(QLineEdit* editor, BusinessItem* items)
        : AppEntityTextBox(editor, items, {tr("Item Code"), tr("Item Name")})
    {}

    /** The code of an item type; empty for all. */
    void setItemType(const QString& code) { m_itemType = code; }

protected:
    QList<KorEntity*> find(const QString& text) override { return service()->search(text, m_itemType); }

private:
    QString m_itemType;
};
