#pragma once

#include "app/numbers/NumberedMapper.h"
#include "masterdata/itemline/ItemLineMapper.h"
#include "purchasing/acquisition/EntityAcquisition.h"

class DataMapperBank;
class DataMapperPurchaseOrder;
class DataMapperSupplier;

/**
 * Purchases with their lines, in the tables "acquisition" and "acquisition_detail". A save that was taken back because
 * of a line returns true and leaves its error: whoever saves here must ask hasError() as well.
 */
class DataMapperAcquisition final : public NumberedDocumentMapper<EntityAcquisition>
{
    Q_OBJECT

public:
    DataMapperAcquisition(QObject* parent, DataMapperKey* keys, DataMapperSupplier* suppliers, DataMapperBank* accounts,
                          DataMapperPurchaseOrder* orders, ItemPartners partners);

    [[nodiscard]] QString keyName() const override { return "NB"; }
    KorEntity* createEntity() override;
    [[nodiscard]] QStringList indexStatements() const override;
    [[nodiscard]] QList<KorMigration*> migrations() override;
    [[nodiscard]] KorDataMapper* lineMapper() const override { return m_lines; }

protected:
    [[nodiscard]] const Messages& messages() const override;
    void attachLine(KorEntity* line, int documentId) override;
    [[nodiscard]] bool resultOfFailedLines() const override { return true; }

private:
    KorDataMapper* m_lines;
};
