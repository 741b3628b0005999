#pragma once

#include "app/widgets/AppEntityTextBox.h"
#include "pos/masterdata/item/BusinessItem.h"

/** A lookup box for menu and service items; also shows their type. */
class ServiceTextBox final : public AppEntityTextBox<EntityItem, BusinessItem>
{
    Q_OBJECT

public:
    ServiceTextBox(QLineEdit* editor, BusinessItem* items)
        : AppEntityTextBox(editor, items, {tr("Code"), tr("Name"), tr("Type")})
    {}

    /** The id of an item type; -1 for all. */
    void setItemType(int type) { m_itemType = type; }

protected:
    QList<KorEntity*> find(const QString& text) override { return service()->searchServices(text, m_itemType); }
    [[nodiscard]] QString thirdOf(const KorEntity& item) const override
    {
        const EntityJenisItem* type = static_cast<const EntityItem&>(item).getJenis();
        return type ? type->getNama() : QString();
    }

private:
    int m_itemType = -1;
};
