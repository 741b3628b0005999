#pragma once

#include "kor/entity/KorEntity.h"
#include "pos/masterdata/item/EntityItem.h"

#include <QDate>

/** An adjustment: sets the quantity of an item at a date. Movements from that day on count on top of it. */
class EntityStockTake : public KorEntity
{
    Q_OBJECT
    KOR_REFERENCE(EntityItem, Item)
    KOR_PROPERTY(QDate, StockTakeDate, QDate())
    /** The quantity after the adjustment. */
    KOR_PROPERTY(int, Qty, 0)
    KOR_PROPERTY(QString, Reason, QString())
    KOR_PROPERTY(int, QtyBefore, 0)
    /** The difference, with its sign. */
    KOR_PROPERTY(int, QtyAdj, 0)
    /** The code of the account that the difference is booked to. */
    KOR_PROPERTY(QString, SourceAcctCode, QString(""))

public:
    using KorEntity::KorEntity;
};
