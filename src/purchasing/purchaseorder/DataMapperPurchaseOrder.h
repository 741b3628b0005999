#pragma once

#include "app/numbers/NumberedMapper.h"
#include "masterdata/itemline/ItemLineMapper.h"
#include "purchasing/purchaseorder/EntityPurchaseOrder.h"

class DataMapperBank;
class DataMapperSupplier;

/** Purchase orders with their lines, in the tables "purchase_order" and "purchase_order_detail". */
class DataMapperPurchaseOrder final : public NumberedDocumentMapper<EntityPurchaseOrder>
{
    Q_OBJECT

public:
    DataMapperPurchaseOrder(QObject* parent, DataMapperKey* keys, DataMapperSupplier* suppliers,
                            DataMapperBank* accounts, ItemPartners partners);

    [[nodiscard]] QString keyName() const override { return "PO"; }
    KorEntity* createEntity() override;
    [[nodiscard]] QStringList indexStatements() const override;
    [[nodiscard]] KorDataMapper* lineMapper() const override { return m_lines; }

protected:
    [[nodiscard]] const Messages& messages() const override;
    void attachLine(KorEntity* line, int documentId) override;

private:
    KorDataMapper* m_lines;
};
