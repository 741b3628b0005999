#pragma once

#include "pos/purchasing/document/PurchasingListTab.h"

/** The list of purchase orders. */
class TabPurchaseOrder final : public PurchasingListTab
{
    Q_OBJECT

public:
    explicit TabPurchaseOrder(QWidget* parent = nullptr);

protected:
    QList<KorEntity*> readRows(const QString& filter) override;
    KorEntityModel* createModel(const QList<KorEntity*>& rows) override;
    std::unique_ptr<KorDialog> createDialog() override;
    [[nodiscard]] QString notFoundText(int id) const override;
};
