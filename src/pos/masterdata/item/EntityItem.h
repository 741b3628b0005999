#pragma once

#include "app/money/Money.h"
#include "kor/entity/KorEntity.h"
#include "pos/masterdata/itemtype/EntityJenisItem.h"
#include "pos/masterdata/unit/EntitySatuan.h"

/** Anything that is bought, stocked or sold, with its prices and the codes of its three ledger accounts. */
class EntityItem : public KorEntity
{
    Q_OBJECT
    KOR_PROPERTY(QString, Kode, QString(""))
    KOR_PROPERTY(int, ItemType, INV)
    KOR_PROPERTY(bool, IsGroup, false)
    KOR_PROPERTY(QString, Nama, QString(""))
    KOR_REFERENCE(EntityJenisItem, Jenis)
    KOR_REFERENCE(EntitySatuan, Satuan)
    /** The unit cost. */
    MONEY_PROPERTY(HargaBeli)
    /** The sales price. */
    MONEY_PROPERTY(HargaJualLokal)
    /** A second sales price of older databases; no form shows it. */
    MONEY_PROPERTY(HargaJualLuar)
    KOR_PROPERTY(QString, Notes, QString())
    KOR_PROPERTY(QString, SalesAcctCode, QString(""))
    KOR_PROPERTY(QString, InventoryAcctCode, QString(""))
    KOR_PROPERTY(QString, CostOfSalesAcctCode, QString(""))

public:
    /** INV has a stock; SRV is sold without stock. */
    enum ItemClass { INV = 1, SRV = 2 };

    using KorEntity::KorEntity;
};
