#pragma once

#include "app/widgets/AppEntityTextBox.h"
#include "pos/masterdata/item/BusinessItem.h"

/** A lookup box for stock items, of one item type or of all. */
class InventoryTextBox final : public AppEntityTextBox<EntityItem, BusinessItem>
{
    Q_OBJECT

public:
    InventoryTextBox(QLineEdit* editor, BusinessItem* items) : AppEntityTextBox(editor, items, {tr("Code"), tr("Name")})
    {}

    /** The id of an item type; -1 for all. */
    void setItemType(int type) { m_itemType = type; }

protected:
    QList<KorEntity*> find(const QString& text) override { return service()->searchByType(text, m_itemType); }

private:
    int m_itemType = -1;
};
