#pragma once

#include "app/persistence/AppDataMapper.h"

class DataMapperBank;
class DataMapperItem;
class DataMapperJenisItem;
class DataMapperSatuan;
class EntityStockTake;

/** Inventory adjustments, in the table "stock_take". */
class DataMapperStockTake final : public AppDataMapper
{
    Q_OBJECT

public:
    DataMapperStockTake(QObject* parent, DataMapperItem* items, DataMapperJenisItem* types, DataMapperSatuan* units,
                        DataMapperBank* accounts);

    KorEntity* createEntity() override;
    [[nodiscard]] QList<KorMigration*> migrations() override;
    [[nodiscard]] QStringList indexStatements() const override;

    /** The adjustments of the item with this code, ignoring case; all of them for an empty code. */
    [[nodiscard]] QList<KorEntity*> findAll(const QString& code);
    /** The latest adjustment at or before the date; of several on one day, the one entered last. */
    [[nodiscard]] EntityStockTake* getLastStockTake(const KorEntity* item, const QDate& date);
};
