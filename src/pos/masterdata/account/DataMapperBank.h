#pragma once

#include "app/persistence/AppMasterMapper.h"

/** The accounts of the ledger, in the table "bank". */
class DataMapperBank final : public AppMasterMapper
{
    Q_OBJECT

public:
    explicit DataMapperBank(QObject* parent);

    KorEntity* createEntity() override;
    [[nodiscard]] QList<KorMigration*> migrations() override;

protected:
    [[nodiscard]] QString codeColumn() const override { return "bank.kode"; }
    [[nodiscard]] QString nameColumn() const override { return "bank.nama"; }
    [[nodiscard]] QString sortColumn() const override { return "bank.id"; }
};
