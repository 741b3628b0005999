#pragma once

#include "pos/purchasing/document/PurchasingFilter.h"
#include "pos/purchasing/document/PurchasingService.h"

class BusinessPurchases;
class DataMapperPayment;
class EntityPayment;

/** The service of payments to suppliers. */
class BusinessPayment final : public PurchasingService
{
    Q_OBJECT

public:
    enum PERMISSIONS { INSERT_PAYMENT, UPDATE_PAYMENT, DELETE_PAYMENT };
    Q_ENUM(PERMISSIONS)

    BusinessPayment(QObject* parent, DataMapperPayment* payments, BusinessPurchases* purchases);

    [[nodiscard]] QList<KorPermission> getPermissions() const override;
    [[nodiscard]] QString unfinished() const override;

    // The finders return payments without lines, for lists; find(id) reads a payment with its lines.
    [[nodiscard]] QList<EntityPayment*> findAll(const PurchasingFilter& filter);
    [[nodiscard]] EntityPayment* findByNo(const QString& no);

    /**
     * Recalculates what is due for the purchases of the payment, and for those that it paid before its last save.
     * Removing a payment does not update its purchases until their next recalculation.
     */
    bool updatePurchase(const EntityPayment& payment);

protected:
    bool afterSave(const KorEntity& payment, Save kind) override;
    [[nodiscard]] QList<KorEntity*> linesOf(const KorEntity& payment) const override;

private:
    DataMapperPayment* m_payments;
    BusinessPurchases* m_purchases;
};
