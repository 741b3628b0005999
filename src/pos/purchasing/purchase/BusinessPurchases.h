#pragma once

#include "pos/purchasing/document/PurchasingFilter.h"
#include "pos/purchasing/document/StockDocumentService.h"

class DataMapperAcquisition;
class EntityAcquisition;
class EntitySupplier;

/** The service of purchases, and of the amounts still due for them. */
class BusinessPurchases final : public StockDocumentService
{
    Q_OBJECT

public:
    enum PERMISSIONS {
        INSERT_PURCHASE,
        UPDATE_PURCHASE,
        DELETE_PURCHASE,
        INSERT_PURCHASE_DETAIL,
        UPDATE_PURCHASE_DETAIL,
        DELETE_PURCHASE_DETAIL
    };
    Q_ENUM(PERMISSIONS)

    BusinessPurchases(QObject* parent, DataMapperAcquisition* purchases, DataMapperItemHistory* journal);

    [[nodiscard]] QList<KorPermission> getPermissions() const override;

    // The finders return purchases without lines, for lists; find(id) reads a purchase with its lines.
    [[nodiscard]] QList<EntityAcquisition*> findAll(const PurchasingFilter& filter);
    [[nodiscard]] EntityAcquisition* findByNo(const QString& no);
    [[nodiscard]] EntityAcquisition* findHeader(int id);
    /** Purchases that are not fully paid, sorted by due date. */
    [[nodiscard]] QList<EntityAcquisition*> getPendingInvoiceBySupplier(const EntitySupplier* supplier);

    /** Refused if there is a payment for the purchase. */
    bool remove(KorEntity* purchase) override;

    /** Sets the status by the amount paid; called before every save. */
    static void updateStatus(EntityAcquisition& purchase);
    /** Recalculates what credit notes and payments have settled of the stored purchase, and saves it. */
    bool recalculateDue(int purchaseId);

protected:
    void beforeSave(KorEntity& purchase) override;
    [[nodiscard]] QList<KorEntity*> linesOf(const KorEntity& purchase) const override;
    [[nodiscard]] QList<KorEntity*> removedLinesOf(const KorEntity& purchase) const override;
    [[nodiscard]] ItemMovement movementOf(const KorEntity& purchase, const KorEntity& line) const override;
    [[nodiscard]] QString notBegunText() const override { return tr("Create transaction failed"); }

private:
    bool reckonDue(int purchaseId);

    DataMapperAcquisition* m_purchases;
};
