#pragma once

#include "pos/masterdata/contact/ContactMapper.h"

/** The members, in the table "member". */
class DataMapperMember final : public ContactMapper
{
    Q_OBJECT

public:
    explicit DataMapperMember(QObject* parent);

    KorEntity* createEntity() override;
    [[nodiscard]] QList<KorMigration*> migrations() override;

protected:
    [[nodiscard]] QString sortColumn() const override { return "id"; }
};
