#pragma once

#include "pos/purchasing/document/PurchasingDialog.h"

#include <memory>

class TabPurchaseDetail;
class TabPurchaseDetailPO;

namespace Ui
{
class DialogPurchases;
}

/** The form of a purchase: goods received from a supplier, with or without an order, and what was paid at once. */
class DialogPurchases final : public PurchasingDialog
{
    Q_OBJECT

public:
    explicit DialogPurchases(QWidget* parent = nullptr);
    ~DialogPurchases() override;

    KorEntity* getEntity() override;
    void setEntity(KorEntity* entity) override;

protected:
    [[nodiscard]] PurchasingLines allLines() const override;
    void checkLines() override;
    void supplierChanged() override;

private:
    std::unique_ptr<Ui::DialogPurchases> m_ui;
    TabPurchaseDetail* m_free;
    TabPurchaseDetailPO* m_ordered;
};
