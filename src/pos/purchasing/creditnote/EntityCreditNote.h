#pragma once

#include "app/persistence/AppDocumentLines.h"
#include "pos/masterdata/account/EntityBank.h"
#include "pos/masterdata/supplier/EntitySupplier.h"
#include "pos/purchasing/creditnote/EntityCreditNoteDetail.h"

#include <QDate>

/** Goods returned to a supplier, with or without a purchase, and the refunded money. */
class EntityCreditNote : public KorEntity, public AppDocumentLines<EntityCreditNoteDetail>
{
    Q_OBJECT

public:
    enum CREDIT_NOTE_STATUS { FULL_PAID = 1, UNPAID = 2, PARTIALLY_PAID = 3, CANCELLED = 4 };
    Q_ENUM(CREDIT_NOTE_STATUS)

    KOR_PROPERTY(QDate, Date, QDate())
    KOR_PROPERTY(QString, Note, QString())
    KOR_REFERENCE(EntitySupplier, Supplier)
    KOR_PROPERTY(QString, No, QString(""))
    KOR_PROPERTY(bool, IsApplyToInvoice, false)
    KOR_PROPERTY(int, AcquisitionId, KorNoValue)
    MONEY_PROPERTY(Subtotal)
    KOR_PROPERTY(double, DiscountPercentage, 0)
    MONEY_PROPERTY(Discount)
    MONEY_PROPERTY(GrandTotal)
    MONEY_PROPERTY(AmountPaid)
    MONEY_PROPERTY(Change)
    KOR_PROPERTY(int, Status, UNPAID)
    KOR_REFERENCE(EntityBank, Bank)

public:
    using KorEntity::KorEntity;
};
