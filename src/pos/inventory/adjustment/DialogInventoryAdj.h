#pragma once

#include "kor/widgets/KorDialog.h"

#include <memory>

class AccountField;
class ItemField;

namespace Ui
{
class DialogInventoryAdj;
}

/** The entry form of an adjustment: the quantity on hand as calculated, and the difference found by counting. */
class DialogInventoryAdj final : public KorDialog
{
    Q_OBJECT

public:
    enum Reason { Broken = 1, Loss, Other };
    Q_ENUM(Reason)

    explicit DialogInventoryAdj(QWidget* parent = nullptr);
    ~DialogInventoryAdj() override;

    bool validate() override;
    bool beforeAccept() override;
    KorEntity* getEntity() override;
    void setEntity(KorEntity* entity) override;

private slots:
    void onItemSelected();
    void on_dateQtyOnHand_dateChanged() { readQuantityBefore(); }
    void on_txtStok_textChanged() { showNewQuantity(); }
    void on_ddlReason_currentIndexChanged(int);

private:
    /**
     * An adjustment on a day with movements would count them twice, so this offers the next day. False if the form must
     * not be saved yet.
     */
    bool settleDay();
    void readQuantityBefore();
    void showNewQuantity();
    [[nodiscard]] QString reason() const;

    std::unique_ptr<Ui::DialogInventoryAdj> m_ui;
    ItemField* m_item;
    AccountField* m_source;
    int m_before = 0;
};
