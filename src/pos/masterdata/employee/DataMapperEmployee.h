#pragma once

#include "pos/masterdata/contact/ContactMapper.h"

/** The employees, in the table "employee". */
class DataMapperEmployee final : public ContactMapper
{
    Q_OBJECT

public:
    explicit DataMapperEmployee(QObject* parent);

    KorEntity* createEntity() override;
    [[nodiscard]] QList<KorMigration*> migrations() override;

protected:
    [[nodiscard]] QString sortColumn() const override { return "id"; }
};
