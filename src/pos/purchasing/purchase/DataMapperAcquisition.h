#pragma once

#include "pos/purchasing/document/PurchasingDocumentMapper.h"
#include "pos/purchasing/purchase/EntityAcquisition.h"
#include "pos/purchasing/purchaseorder/PurchasesOfOrders.h"

class DataMapperBank;
class DataMapperPurchaseOrder;
class DataMapperSupplier;

/**
 * Purchases with their lines, in the tables "acquisition" and "acquisition_detail". A save that was taken back because
 * of a line returns true and leaves its error: whoever saves here must ask hasError() as well.
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

    /** Without lines: what is not fully paid, the first due first. */
    [[nodiscard]] QList<EntityAcquisition*> getPendingInvoiceBySupplier(const EntitySupplier* supplier);
    /** What was bought of the item up to that day, or from a day on; both limits count. 0 with an error after a
     * failure. */
    [[nodiscard]] int getQuantityAcquired(const KorEntity* item, const QDate& date);
    [[nodiscard]] int getQuantityAcquired(const KorEntity* item, const QDate& from, const QDate& to);
    [[nodiscard]] QString purchaseNo(int orderId) override;
    [[nodiscard]] KorDataMapper* mapper() override { return this; }
    /** What credit notes and payments gave for the purchase since, in whole units of the currency. */
    [[nodiscard]] double paidLater(int purchaseId);
    /** The number of a payment that paid of the purchase; empty when there is none. */
    [[nodiscard]] QString paymentNo(int purchaseId);

protected:
    [[nodiscard]] const Messages& messages() const override;
    [[nodiscard]] bool resultOfFailedLines() const override { return true; }
    [[nodiscard]] PurchasingColumns filterColumns() const override;
};
