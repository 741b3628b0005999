#pragma once

#include "pos/purchasing/document/PurchasingDocumentMapper.h"
#include "pos/purchasing/payment/EntityPayment.h"

class DataMapperAcquisition;
class DataMapperBank;
class DataMapperPaymentExpenses;
class DataMapperPaymentInvoices;
class DataMapperSupplier;

/** Payments to suppliers, in the table "payment"; their lines lie in "payment_invoice" and "payment_expense". */
class DataMapperPayment final : public PurchasingHeaderMapper<EntityPayment, AppDocumentMapper>
{
    Q_OBJECT

public:
    DataMapperPayment(QObject* parent, DataMapperKey* keys, DataMapperSupplier* suppliers, DataMapperBank* accounts,
                      DataMapperAcquisition* purchases, ItemPartners partners);

    [[nodiscard]] QString keyName() const override { return "TPH"; }
    KorEntity* createEntity() override;
    /** With its lines. */
    KorEntity* findById(int id) override;
    [[nodiscard]] QStringList indexStatements() const override;
    [[nodiscard]] KorDataMapper* lineMapper() const override;
    [[nodiscard]] QList<KorDataMapper*> lineMappers() const override;
    [[nodiscard]] KorDataMapper* mapperOf(const KorEntity* line) const override;

protected:
    [[nodiscard]] const Messages& messages() const override;
    [[nodiscard]] QList<KorEntity*> linesOf(KorEntity* document) const override;
    [[nodiscard]] QList<KorEntity*> removedLinesOf(KorEntity* document) const override;
    void attachLine(KorEntity* line, int documentId) override;
    [[nodiscard]] PurchasingColumns filterColumns() const override;

private:
    DataMapperPaymentInvoices* m_invoices;
    DataMapperPaymentExpenses* m_expenses;
};
