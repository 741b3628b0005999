#pragma once

#include "pos/masterdata/contact/ContactMapper.h"

/** The suppliers, in the table "supplier". */
class DataMapperSupplier final : public ContactMapper
{
    Q_OBJECT

public:
    DataMapperSupplier(QObject* parent, DataMapperBank* bankMapper);

    /** The suppliers whose code or name contains the text, sorted by name. */
    [[nodiscard]] QList<KorEntity*> findByFilter(const QString& text);

    KorEntity* createEntity() override;
    [[nodiscard]] QList<KorMigration*> migrations() override;
    [[nodiscard]] QStringList indexStatements() const override;

protected:
    [[nodiscard]] QString sortColumn() const override { return "supplier.id"; }
};
