#pragma once

#include "app/context/EntityPool.h"
#include "kor/widgets/KorDialog.h"

#include <memory>

class BankTextBox;
class EntityBank;
class EntityItem;
class ItemEntry;

namespace Ui
{
class DialogInventoryAdj;
}

/** The entry form of an adjustment: what is on hand by the books, and by how much the count differs. */
class DialogInventoryAdj final : public KorDialog
{
    Q_OBJECT

public:
    enum Reason { Broken = 1, Loss, Other };
    Q_ENUM(Reason)

    explicit DialogInventoryAdj(QWidget* parent = nullptr);
    ~DialogInventoryAdj() override;

    bool validate() override;
    KorEntity* getEntity() override;
    void setEntity(KorEntity* entity) override;

private slots:
    void onItemSelected(EntityItem* item);
    void onSourceSelected();
    void on_dateQtyOnHand_dateChanged() { readQuantityBefore(); }
    void on_txtStok_textChanged() { showNewQuantity(); }
    void on_ddlReason_currentIndexChanged(int);
    void on_txtSourceAccount_textEdited();
    void on_txtSourceAccount_editingFinished();

private:
    void readQuantityBefore();
    void showNewQuantity();
    /** The account of the field's code as it stands now, null when there is none. */
    [[nodiscard]] EntityBank* readSource();
    void showSource(const EntityBank* account);
    [[nodiscard]] QString reason() const;

    std::unique_ptr<Ui::DialogInventoryAdj> m_ui;
    EntityPool m_read;
    ItemEntry* m_item;
    BankTextBox* m_sources;
    int m_before = 0;
    QString m_sourceCode;
};
