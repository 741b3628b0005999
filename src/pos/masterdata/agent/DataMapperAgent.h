#pragma once

#include "pos/masterdata/contact/ContactMapper.h"

/** The agents, in the table "agent"; their list is not sorted. */
class DataMapperAgent final : public ContactMapper
{
    Q_OBJECT

public:
    DataMapperAgent(QObject* parent, DataMapperBank* bankMapper);

    KorEntity* createEntity() override;
    [[nodiscard]] QList<KorMigration*> migrations() override;
    [[nodiscard]] QStringList indexStatements() const override;

protected:
    [[nodiscard]] QString sortColumn() const override { return {}; }
};
