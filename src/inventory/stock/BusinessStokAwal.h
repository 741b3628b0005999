#pragma once

#include "kor/business/KorBusinessLogic.h"

class DataMapperStokAwal;
class EntityStokAwal;

/** The service of the items' beginning balances. */
class BusinessStokAwal final : public KorBusinessLogic
{
    Q_OBJECT

public:
    enum PERMISSIONS { UPDATE_STOK_AWAL };
    Q_ENUM(PERMISSIONS)

    BusinessStokAwal(QObject* parent, DataMapperStokAwal* mapper);

    [[nodiscard]] QList<KorPermission> getPermissions() const override;
    bool clearTransactions() override;

    [[nodiscard]] QList<KorEntity*> findAll(const QString& code);
    [[nodiscard]] EntityStokAwal* findByItemId(int id);

private:
    DataMapperStokAwal* m_balances;
};
