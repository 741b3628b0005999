#pragma once

#include "app/persistence/AppDocumentLines.h"
#include "pos/masterdata/account/EntityBank.h"
#include "pos/masterdata/supplier/EntitySupplier.h"
#include "pos/purchasing/purchase/EntityAcquisitionDetail.h"

#include <QDate>

/** Goods received from a supplier, with what was paid at once and what was credited or paid later. */
class EntityAcquisition : public KorEntity, public AppDocumentLines<EntityAcquisitionDetail>
{
    Q_OBJECT

public:
    enum PURCHASE_STATUS { FULL_PAID = 1, UNPAID = 2, PARTIALLY_PAID = 3 };
    Q_ENUM(PURCHASE_STATUS)

    KOR_PROPERTY(QDate, PurchaseDate, QDate())
    KOR_PROPERTY(QDate, DueDate, QDate())
    KOR_PROPERTY(QString, Note, QString())
    KOR_REFERENCE(EntitySupplier, Supplier)
    KOR_PROPERTY(QString, No, QString(""))
    KOR_PROPERTY(QString, InvoiceNo, QString())
    KOR_PROPERTY(bool, IsWaitingOnBill, false)
    KOR_PROPERTY(bool, IsApplyToPurchaseOrder, false)
    KOR_PROPERTY(int, PurchaseOrderId, KorNoValue)
    MONEY_PROPERTY(Subtotal)
    KOR_PROPERTY(double, DiscountPercentage, 0)
    MONEY_PROPERTY(Discount)
    KOR_PROPERTY(double, TaxPercentage, 0)
    MONEY_PROPERTY(Tax)
    MONEY_PROPERTY(GrandTotal)
    MONEY_PROPERTY(AmountPaid)
    MONEY_PROPERTY(NetDue)
    MONEY_PROPERTY(OtherPayment)
    KOR_PROPERTY(int, Status, UNPAID)
    KOR_REFERENCE(EntityBank, Bank)

public:
    using KorEntity::KorEntity;
};
