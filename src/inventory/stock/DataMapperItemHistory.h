#pragma once

#include "app/persistence/AppDataMapper.h"
#include "kor/entity/KorProperty.h"

#include <QDate>

class DataMapperItem;
class DataMapperJenisItem;
class DataMapperSatuan;
class EntityItemHistory;

/** Which lines a stock card shows: a date that is not given sets no limit, KorNoValue stands for no item. */
struct ItemHistoryFilter
{
    QDate startDate;
    QDate endDate;
    int itemId = KorNoValue;
};

/** The journal behind the stock card, in the table "item_history". */
class DataMapperItemHistory final : public AppDataMapper
{
    Q_OBJECT

public:
    DataMapperItemHistory(QObject* parent, DataMapperItem* items, DataMapperJenisItem* types, DataMapperSatuan* units);

    KorEntity* createEntity() override;
    [[nodiscard]] QStringList indexStatements() const override;

    [[nodiscard]] EntityItemHistory* findByTrans(int transType, int transId);
    /** In the order of the dates, and on one date in the order of entry. */
    [[nodiscard]] QList<EntityItemHistory*> findAll(const ItemHistoryFilter& filter);
};
