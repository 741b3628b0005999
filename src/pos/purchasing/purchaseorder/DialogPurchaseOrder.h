#pragma once

#include "pos/purchasing/document/PurchasingDialog.h"

#include <memory>

class TabPurchaseOrderDetail;

namespace Ui
{
class DialogPurchaseOrder;
}

/** The form of a purchase order: the ordered items and the deposit. */
class DialogPurchaseOrder final : public PurchasingDialog
{
    Q_OBJECT

public:
    explicit DialogPurchaseOrder(QWidget* parent = nullptr);
    ~DialogPurchaseOrder() override;

    KorEntity* getEntity() override;
    void setEntity(KorEntity* entity) override;

protected:
    [[nodiscard]] PurchasingLines allLines() const override;

private:
    std::unique_ptr<Ui::DialogPurchaseOrder> m_ui;
    TabPurchaseOrderDetail* m_items;
};
