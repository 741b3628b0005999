#pragma once

#include "app/persistence/AppDocumentLines.h"
#include "pos/masterdata/account/EntityBank.h"
#include "pos/masterdata/supplier/EntitySupplier.h"
#include "pos/purchasing/purchaseorder/EntityPurchaseOrderDetail.h"

#include <QDateTime>

/** An order to a supplier, with the deposit and the account that paid it. */
class EntityPurchaseOrder : public KorEntity, public AppDocumentLines<EntityPurchaseOrderDetail>
{
    Q_OBJECT

public:
    enum POSTATUS { NEW = 1, RELEASED = 2, RECEIVED = 3, CHANGE_ORDER = 4, CANCELED = 5, CLOSED = 6 };
    Q_ENUM(POSTATUS)

    KOR_PROPERTY(QString, No, QString(""))
    KOR_PROPERTY(QDateTime, Date, QDateTime())
    KOR_REFERENCE(EntitySupplier, Supplier)
    KOR_PROPERTY(int, Status, NEW)
    KOR_PROPERTY(QDateTime, ShipDate, QDateTime())
    MONEY_PROPERTY(Deposit)
    MONEY_PROPERTY(SubTotal)
    KOR_PROPERTY(double, DiscountPercentage, 0)
    MONEY_PROPERTY(Discount)
    KOR_PROPERTY(double, TaxPercentage, 0)
    MONEY_PROPERTY(Tax)
    MONEY_PROPERTY(GrandTotal)
    KOR_PROPERTY(QString, Note, QString())
    KOR_REFERENCE(EntityBank, Bank)
    KOR_PROPERTY(QString, NoRek, QString())

public:
    using KorEntity::KorEntity;
};
