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
    /** An item has only one balance. If another workstation was faster, the error says that the balance exists. */
    bool insert(KorEntity* balance) override;
    /** Sets the item's balance; inserts or updates its row. */
    bool enter(EntityStokAwal* balance);

    [[nodiscard]] QList<KorEntity*> findAll(const QString& code);
    [[nodiscard]] EntityStokAwal* findByItemId(int id);

private:
    DataMapperStokAwal* m_balances;
};
