#pragma once

#include "app/persistence/AppDataMapper.h"
#include "kor/entity/KorProperty.h"

#include <QDate>

class DataMapperItem;
class DataMapperJenisItem;
class DataMapperSatuan;
class EntityItem;
class EntityItemHistory;
class Money;

/** The filter of a stock card: an invalid date sets no limit, KorNoValue means no item. */
struct ItemHistoryFilter
{
    QDate startDate;
    QDate endDate;
    int itemId = KorNoValue;
};

/** How one line of a document changed an item's stock; saved as one row of the journal. */
struct ItemMovement
{
    /** One of EntityItemHistory::TRANS_TYPE. */
    int transType;
    /** The id of the document's line. The type and this id identify the journal row. */
    int lineId;
    EntityItem* item;
    int quantityIn;
    int quantityOut;
    Money* unitPrice;
    QDate date;
    /** The document's number. */
    QString number;
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
    /** Sorted by date, then in order of entry. */
    [[nodiscard]] QList<EntityItemHistory*> findAll(const ItemHistoryFilter& filter);

    // For the services of documents. Use written(journal->write(...), journal, "update"), so that the error is kept.
    /** Inserts the rows of new lines in one round trip; all or none. */
    [[nodiscard]] bool addAll(const QList<ItemMovement>& movements);
    /** Updates the row of a changed line, or inserts it if it does not exist. */
    [[nodiscard]] bool write(const ItemMovement& movement);
    /** Deletes the row of a deleted line; true also if there is none. */
    [[nodiscard]] bool removeLine(int transType, int lineId);

private:
    [[nodiscard]] bool add(const ItemMovement& movement);
    static void fill(EntityItemHistory& row, const ItemMovement& movement);
};
