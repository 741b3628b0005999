#pragma once

#include "app/money/Money.h"
#include "kor/entity/KorEntity.h"
#include "pos/masterdata/item/EntityItem.h"

#include <QDate>

/** One line of an item's stock card: quantity in or out, date, price and document. */
class EntityItemHistory : public KorEntity
{
    Q_OBJECT
    KOR_PROPERTY(QDate, Date, QDate())
    KOR_REFERENCE(EntityItem, Item)
    KOR_PROPERTY(int, QtyIn, 0)
    KOR_PROPERTY(int, QtyOut, 0)
    /** The running balance, calculated for the card; the table has 0. */
    KOR_PROPERTY(int, QtyRemain, 0)
    MONEY_PROPERTY(UnitPrice)
    KOR_PROPERTY(int, TransType, 0)
    /** The id of the document's line, or of the adjustment. */
    KOR_PROPERTY(int, IdTrans, 0)
    /** The document's number. */
    KOR_PROPERTY(QString, No, QString())

public:
    /** Sales are summed from the invoices and have no journal rows; the beginning balance is never stored. */
    enum TRANS_TYPE { PURCHASE = 1, SALE, ADJUSMENT, CREDIT_NOTE, BEGINING_BALANCE };

    using KorEntity::KorEntity;
};
