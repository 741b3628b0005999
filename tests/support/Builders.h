#pragma once

#include "pos/masterdata/item/EntityItem.h"
#include "pos/masterdata/member/EntityMember.h"
#include "zavel/dinein/EntityInvoiceMakanDitempat.h"
#include "zavel/dinein/EntityMakanDitempat.h"
#include "zavel/dinein/EntityMakanDitempatDetail.h"
#include "zavel/tables/EntityMeja.h"
#include "zavel/takeaway/EntityInvoiceBawaPulang.h"

/**
 * A small restaurant for tests: rows written by the program's own mappers, and records on top of them. The records
 * live as long as the builders; what cannot be written ends the test program.
 */
class Builders
{
public:
    /** Takes the tables and menus that the installation brought away, so that a test sees its own alone. */
    Builders();

    EntityMeja* table(const QString& code, const QString& name = QString());
    EntityMember* member(const QString& code, const QString& name);
    /** Prices are in Rp; an item type that is not there yet comes with the item. */
    EntityItem* item(const QString& code, const QString& name, double price,
                     EntityItem::ItemClass itemClass = EntityItem::SRV, const QString& typeCode = "FOOD");

    /** An unsaved line. */
    EntityMakanDitempatDetail* line(EntityItem* item, int qty, const QString& description = QString());
    /** An unsaved order, waiting for its menu. */
    EntityMakanDitempat* order(EntityMeja* table, const EntityOrder::Lines& lines, const QString& guest = QString());
    /** The same, saved, whatever stands on the table already. */
    EntityMakanDitempat* openOrder(EntityMeja* table, const EntityOrder::Lines& lines,
                                   const QString& guest = QString());
    /** A saved invoice of the whole order; the order's status follows from what is paid. */
    EntityInvoiceMakanDitempat* invoice(EntityMakanDitempat* order, double paid);
    /** A saved order to take away. */
    EntityBawaPulang* takeAway(const QList<QPair<EntityItem*, int>>& lines, const QString& guest = QString());
    EntityInvoiceBawaPulang* invoice(EntityBawaPulang* order, double paid);

private:
    template <class Sale>
    Sale* savedSale(Sale* sale, const EntityOrder* order, double paid);
    Money* money(double amount) { return new Money(&m_records, amount, "Rp"); }
    EntityJenisItem* itemType(const QString& code);
    EntitySatuan* unit();

    QObject m_records;
};
