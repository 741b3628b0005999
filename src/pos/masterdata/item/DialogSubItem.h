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
    /** False if the parent already has this item as a component. */
    bool beforeAccept() override;

private slots:
    /** The field has another item, or none. */
    void onItemSelected();

private:
    std::unique_ptr<Ui::DialogSubItem> m_ui;
    EntityPool m_read;
    RecordField<EntityItem>* m_item;
    int m_parentId;
};
