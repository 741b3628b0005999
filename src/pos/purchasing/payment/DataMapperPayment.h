#pragma once

#include "pos/purchasing/document/PurchasingDocumentMapper.h"
#include "pos/purchasing/payment/EntityPayment.h"

class DataMapperAcquisition;
class DataMapperBank;
class DataMapperPaymentExpenses;
class DataMapperSupplier;

/** Payments to suppliers, in the table "payment"; their lines are in "payment_invoice" and "payment_expense". */
class DataMapperPayment final : public PurchasingDocumentMapper<EntityPayment, AppDocumentMapper>
{
    Q_OBJECT

public:
    DataMapperPayment(QObject* parent, DataMapperKey* keys, DataMapperSupplier* suppliers, DataMapperBank* accounts,
                      DataMapperAcquisition* purchases, ItemPartners partners);

    [[nodiscard]] QString keyName() const override { return "TPH"; }
    KorEntity* createEntity() override;
    [[nodiscard]] QStringList indexStatements() const override;
    [[nodiscard]] QList<KorDataMapper*> lineMappers() const override;
    [[nodiscard]] AppLineMapper* mapperOf(const KorEntity* line) const override;

protected:
    [[nodiscard]] const Messages& messages() const override;
    [[nodiscard]] QList<KorEntity*> linesOf(KorEntity* document) const override;
    [[nodiscard]] QList<KorEntity*> removedLinesOf(KorEntity* document) const override;
    void readLines(KorEntity* document) override;
    [[nodiscard]] PurchasingColumns filterColumns() const override;

private:
    DataMapperPaymentExpenses* m_expenses;
};
