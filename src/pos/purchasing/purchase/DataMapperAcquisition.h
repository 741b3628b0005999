#pragma once

#include "pos/purchasing/document/PurchasingDocumentMapper.h"
#include "pos/purchasing/purchase/EntityAcquisition.h"
#include "pos/purchasing/purchaseorder/PurchasesOfOrders.h"

class DataMapperBank;
class DataMapperPurchaseOrder;
class DataMapperSupplier;

/**
 * Purchases with their lines, in the tables "acquisition" and "acquisition_detail". A save that was rolled back because
 * of a line returns true and sets an error: callers must also check hasError().
 */
class DataMapperAcquisition final : public PurchasingDocumentMapper<EntityAcquisition>, public PurchasesOfOrders
{
    Q_OBJECT

public:
    DataMapperAcquisition(QObject* parent, DataMapperKey* keys, DataMapperSupplier* suppliers, DataMapperBank* accounts,
                          DataMapperPurchaseOrder* orders, ItemPartners partners);

    [[nodiscard]] QString keyName() const override { return "NB"; }
    KorEntity* createEntity() override;
    [[nodiscard]] QStringList indexStatements() const override;
    [[nodiscard]] QList<KorMigration*> migrations() override;

    /** Without lines: purchases that are not fully paid, sorted by due date. */
    [[nodiscard]] QList<EntityAcquisition*> getPendingInvoiceBySupplier(const EntitySupplier* supplier);
    /** The quantity bought up to that day, or in a period; all dates are inclusive. 0 with an error after a failure. */
    [[nodiscard]] int getQuantityAcquired(const KorEntity* item, const QDate& date);
    [[nodiscard]] int getQuantityAcquired(const KorEntity* item, const QDate& from, const QDate& to);
    [[nodiscard]] QString purchaseNo(int orderId) override;
    [[nodiscard]] KorDataMapper* mapper() override { return this; }
    /** What credit notes and payments have settled of the purchase, in whole units of the currency. */
    [[nodiscard]] double paidLater(int purchaseId);
    /** The number of a payment for the purchase; empty if there is none. */
    [[nodiscard]] QString paymentNo(int purchaseId);

protected:
    [[nodiscard]] const Messages& messages() const override;
    [[nodiscard]] bool resultOfFailedLines() const override { return true; }
    [[nodiscard]] PurchasingColumns filterColumns() const override;
};
