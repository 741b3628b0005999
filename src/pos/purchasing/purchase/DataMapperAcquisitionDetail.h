#pragma once

#include "pos/masterdata/item/ItemLineMapper.h"

class DataMapperAcquisition;

/** The lines of purchases, in the table "acquisition_detail". */
class DataMapperAcquisitionDetail final : public ItemLineMapper
{
    Q_OBJECT

public:
    DataMapperAcquisitionDetail(DataMapperAcquisition* purchases, KorDataMapper* orderLines,
                                const ItemPartners& partners);

    KorEntity* createEntity() override;
    [[nodiscard]] QStringList indexStatements() const override;
    [[nodiscard]] QList<KorMigration*> migrations() override;
};
