#pragma once

#include "app/persistence/AppDataMapper.h"

class DataMapperItem;
class DataMapperSatuan;
class EntityStokAwal;

/** Beginning balances, one per item, in the table "stok_awal". A balance is deleted with its item. */
class DataMapperStokAwal final : public AppDataMapper
{
    Q_OBJECT

public:
    DataMapperStokAwal(QObject* parent, DataMapperItem* items, DataMapperSatuan* units);

    KorEntity* createEntity() override;
    bool createTable(int mode) override;

    [[nodiscard]] EntityStokAwal* findByItemId(int id);
    /** The balance of the item with this code, ignoring case; all of them for an empty code. */
    [[nodiscard]] QList<KorEntity*> findAll(const QString& code);
    /** Sets every balance to zero and keeps the rows. */
    bool clearTransactions();
};
