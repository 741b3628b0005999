#pragma once

#include "pos/purchasing/document/PurchasingListTab.h"

class EntityAcquisition;

/** The list of purchases. */
class TabPurchases final : public PurchasingListTab
{
    Q_OBJECT

public:
    explicit TabPurchases(QWidget* parent = nullptr);

protected:
    QList<KorEntity*> readRows(const QString& filter) override;
    KorEntityModel* createModel(const QList<KorEntity*>& rows) override;
    void modelApplied() override;
    std::unique_ptr<KorDialog> createDialog() override;
    [[nodiscard]] QString countText(int rows) const override;
    void entitySaved(KorEntity* entity) override;

private:
    void offerToClose(const EntityAcquisition& purchase);
};
