#pragma once

#include "app/context/EntityPool.h"
#include "kor/widgets/KorDialog.h"

#include <memory>

class EntityItem;
template <typename Entity>
class RecordField;

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
    /** The code names another item, or none. */
    void onItemSelected();

private:
    std::unique_ptr<Ui::DialogSubItem> m_ui;
    EntityPool m_read;
    RecordField<EntityItem>* m_item;
    int m_parentId;
};
