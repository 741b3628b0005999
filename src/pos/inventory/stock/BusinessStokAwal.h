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
    /** An item has one balance: that another workstation was faster is told in so many words. */
    bool insert(KorEntity* balance) override;
    /** Gives the item this balance, whether it has a row already or not. */
    bool enter(EntityStokAwal* balance);

    [[nodiscard]] QList<KorEntity*> findAll(const QString& code);
    [[nodiscard]] EntityStokAwal* findByItemId(int id);

private:
    DataMapperStokAwal* m_balances;
};
