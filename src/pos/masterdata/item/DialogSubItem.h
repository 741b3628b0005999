#pragma once

#include "app/context/EntityPool.h"
#include "kor/widgets/KorDialog.h"

#include <memory>

class EntityItem;
class InventoryTextBox;

namespace Ui
{
class DialogSubItem;
}

/** The entry form of a component of a grouped item. */
class DialogSubItem final : public KorDialog
{
    Q_OBJECT

public:
    explicit DialogSubItem(int parentId, QWidget* parent = nullptr);
    ~DialogSubItem() override;

    bool validate() override;
    KorEntity* getEntity() override;
    void setEntity(KorEntity* entity) override;
    /** Refuses an item that is a component of the same parent already. */
    bool beforeAccept() override;

private slots:
    void onItemSelected();
    /** Another code was typed: what stood beside it is no longer true. */
    void on_txtKode_textEdited();

private:
    void show(EntityItem* item);
    /** The item of the code, looked up where the code was typed and not chosen. */
    [[nodiscard]] EntityItem* item();

    std::unique_ptr<Ui::DialogSubItem> m_ui;
    EntityPool m_read;
    InventoryTextBox* m_items;
    QPointer<EntityItem> m_item;
    int m_parentId;
};
