#pragma once

#include "app/money/Money.h"
#include "kor/entity/KorEntity.h"
#include "pos/masterdata/item/EntityItem.h"

#include <QDate>

/** One line of an item's stock card: what came in or went out, when, at what price and by which document. */
class EntityItemHistory : public KorEntity
{
    Q_OBJECT
    KOR_PROPERTY(QDate, Date, QDate())
    KOR_REFERENCE(EntityItem, Item)
    KOR_PROPERTY(int, QtyIn, 0)
    KOR_PROPERTY(int, QtyOut, 0)
    /** The running balance, reckoned for the card; the table holds 0. */
    KOR_PROPERTY(int, QtyRemain, 0)
    MONEY_PROPERTY(UnitPrice)
    KOR_PROPERTY(int, TransType, 0)
    /** The row of the document's line, or of the record itself. */
    KOR_PROPERTY(int, IdTrans, 0)
    /** The document's number. */
    KOR_PROPERTY(QString, No, QString())

public:
    /** Sales are counted from the invoices and write no line; the beginning balance is never stored. */
    enum TRANS_TYPE { PURCHASE = 1, SALE, ADJUSMENT, CREDIT_NOTE, BEGINING_BALANCE };

    using KorEntity::KorEntity;
};
