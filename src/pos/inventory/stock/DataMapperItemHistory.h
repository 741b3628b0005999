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

/** Which lines a stock card shows: a date that is not given sets no limit, KorNoValue stands for no item. */
struct ItemHistoryFilter
{
    QDate startDate;
    QDate endDate;
    int itemId = KorNoValue;
};

/** What one line of a document did to an item's stock: the row that the journal keeps of it. */
struct ItemMovement
{
    /** One of EntityItemHistory::TRANS_TYPE. */
    int transType;
    /** The row of the document's line; with the type it names the journal's row. */
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
    /** In the order of the dates, and on one date in the order of entry. */
    [[nodiscard]] QList<EntityItemHistory*> findAll(const ItemHistoryFilter& filter);

    // For the services of the documents; written(journal->write(...), journal, "update") keeps a failure's text.
    /** Makes the rows of new lines, all or none, in one trip. */
    [[nodiscard]] bool addAll(const QList<ItemMovement>& movements);
    /** Fills the row of a changed line anew, or makes it where the line has none. */
    [[nodiscard]] bool write(const ItemMovement& movement);
    /** Removes the row of a line that is gone; a line without a row is as good. */
    [[nodiscard]] bool removeLine(int transType, int lineId);

private:
    [[nodiscard]] bool add(const ItemMovement& movement);
    static void fill(EntityItemHistory& row, const ItemMovement& movement);
};
