#pragma once

#include "pos/purchasing/document/SelectDocumentTab.h"

class BusinessPurchaseOrder;
class EntitySupplier;

/** The supplier's orders whose goods can still be received. The supplier is borrowed. */
class TabSelectPO final : public SelectDocumentTab
{
    Q_OBJECT

public:
    explicit TabSelectPO(const EntitySupplier* supplier, QWidget* parent = nullptr);

protected:
    QList<KorEntity*> readRows() override;
    KorEntityModel* createModel(const QList<KorEntity*>& rows) override;
    [[nodiscard]] QList<int> columnWidths() const override { return {104, 126, 126, 196, 160}; }

private:
    const EntitySupplier* m_supplier;
    BusinessPurchaseOrder* m_orders;
};
