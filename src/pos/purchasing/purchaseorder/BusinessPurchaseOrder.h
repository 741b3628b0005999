#pragma once

#include "pos/purchasing/document/PurchasingFilter.h"
#include "pos/purchasing/document/PurchasingService.h"

class DataMapperPurchaseOrder;
class EntityPurchaseOrder;
class EntitySupplier;
class PurchasesOfOrders;

/** The service of purchase orders. */
class BusinessPurchaseOrder final : public PurchasingService
{
    Q_OBJECT

public:
    enum PERMISSIONS { INSERT_PO, UPDATE_PO, DELETE_PO, INSERT_PO_DETAIL, UPDATE_PO_DETAIL, DELETE_PO_DETAIL };
    Q_ENUM(PERMISSIONS)

    BusinessPurchaseOrder(QObject* parent, DataMapperPurchaseOrder* orders, PurchasesOfOrders* purchases);

    [[nodiscard]] QList<KorPermission> getPermissions() const override;
    /** Refused if there is a purchase for the order. */
    bool remove(KorEntity* order) override;

    // The finders return orders without lines, for lists; find(id) reads an order with its lines.
    [[nodiscard]] QList<EntityPurchaseOrder*> findAll(const PurchasingFilter& filter);
    [[nodiscard]] EntityPurchaseOrder* findByNo(const QString& no);
    [[nodiscard]] EntityPurchaseOrder* findHeader(int id);
    /** Orders whose goods can still be received. */
    [[nodiscard]] QList<EntityPurchaseOrder*> getOpenBySupplier(const EntitySupplier* supplier);
    /** The number of a purchase for the order; empty if there is none. */
    [[nodiscard]] QString isPurchased(const EntityPurchaseOrder* order);

protected:
    [[nodiscard]] QList<KorEntity*> linesOf(const KorEntity& order) const override;
    [[nodiscard]] QString notBegunText() const override { return tr("Create transaction failed"); }

private:
    DataMapperPurchaseOrder* m_orders;
    PurchasesOfOrders* m_purchases;
};
