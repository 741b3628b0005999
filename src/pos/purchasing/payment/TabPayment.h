#pragma once

#include "pos/purchasing/document/PurchasingListTab.h"

/** The list of payments to suppliers. */
class TabPayment final : public PurchasingListTab
{
    Q_OBJECT

public:
    explicit TabPayment(QWidget* parent = nullptr);

protected:
    QList<KorEntity*> readRows(const QString& filter) override;
    KorEntityModel* createModel(const QList<KorEntity*>& rows) override;
    void modelApplied() override;
    std::unique_ptr<KorDialog> createDialog() override;
    [[nodiscard]] QString notFoundText(int id) const override;
};
