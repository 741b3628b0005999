#pragma once

#include "pos/masterdata/item/EntityItem.h"
#include "pos/masterdata/member/EntityMember.h"
#include "zavel/dinein/EntityInvoiceMakanDitempat.h"
#include "zavel/dinein/EntityMakanDitempat.h"
#include "zavel/dinein/EntityMakanDitempatDetail.h"
#include "zavel/tables/EntityMeja.h"
#include "zavel/takeaway/EntityInvoiceBawaPulang.h"

/**
 * A small restaurant for tests: master records written by the program's own mappers, and orders and invoices based on
 * them. The builders own the records; an error while writing ends the test program.
 */
class Builders
{
public:
    /** Deletes the tables and menu items of the installation, so that a test sees only its own. */
    Builders();

    EntityMeja* table(const QString& code, const QString& name = QString());
    EntityMember* member(const QString& code, const QString& name);
    /** Prices are in Rp; a missing item type is inserted too. */
    EntityItem* item(const QString& code, const QString& name, double price,
                     EntityItem::ItemClass itemClass = EntityItem::SRV, const QString& typeCode = "FOOD");

    /** An unsaved line. */
    EntityMakanDitempatDetail* line(EntityItem* item, int qty, const QString& description = QString());
    /** An unsaved order with the status "waiting for menu". */
    EntityMakanDitempat* order(EntityMeja* table, const EntityOrder::Lines& lines, const QString& guest = QString());
    /** The same, saved, even if the table has an order already. */
    EntityMakanDitempat* openOrder(EntityMeja* table, const EntityOrder::Lines& lines,
                                   const QString& guest = QString());
    /** A saved invoice of the whole order; sets the order's status by what is paid. */
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
