#pragma once

#include "app/numbers/NumberedMapper.h"
#include "masterdata/itemline/ItemLineMapper.h"
#include "purchasing/payment/EntityPayment.h"

class DataMapperAcquisition;
class DataMapperBank;
class DataMapperSupplier;

/** Payments to suppliers, in the table "payment"; their lines lie in "payment_invoice" and "payment_expense". */
class DataMapperPayment final : public NumberedDocumentMapper<EntityPayment, AppDocumentMapper>
{
    Q_OBJECT

public:
    DataMapperPayment(QObject* parent, DataMapperKey* keys, DataMapperSupplier* suppliers, DataMapperBank* accounts,
                      DataMapperAcquisition* purchases, ItemPartners partners);

    [[nodiscard]] QString keyName() const override { return "TPH"; }
    KorEntity* createEntity() override;
    [[nodiscard]] QStringList indexStatements() const override;
    [[nodiscard]] KorDataMapper* lineMapper() const override { return m_invoices; }
    [[nodiscard]] QList<KorDataMapper*> lineMappers() const override { return {m_invoices, m_expenses}; }

protected:
    [[nodiscard]] const Messages& messages() const override;
    [[nodiscard]] QList<KorEntity*> linesOf(KorEntity* document) const override;
    [[nodiscard]] QList<KorEntity*> removedLinesOf(KorEntity* document) const override;
    void attachLine(KorEntity* line, int documentId) override;
    [[nodiscard]] KorDataMapper* mapperOf(const KorEntity* line) const override;

private:
    KorDataMapper* m_invoices;
    KorDataMapper* m_expenses;
};
