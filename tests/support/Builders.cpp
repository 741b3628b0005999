#include "support/Builders.h"

#include "kor/business/KorServiceDirectory.h"
#include "pos/invoice/EntityInvoiceDetail.h"
#include "pos/masterdata/item/DataMapperItem.h"
#include "pos/masterdata/itemtype/DataMapperJenisItem.h"
#include "pos/masterdata/member/DataMapperMember.h"
#include "pos/masterdata/unit/DataMapperSatuan.h"
#include "pos/registry/PosMapperRegistry.h"
#include "pos/totals/InvoiceTotals.h"
#include "zavel/dinein/DataMapperMakanDitempat.h"
#include "zavel/registry/ZavelMapperRegistry.h"
#include "zavel/service/BusinessPenjualan.h"
#include "zavel/tables/DataMapperMeja.h"
#include "zavel/takeaway/DataMapperBawaPulang.h"
#include "zavel/takeaway/EntityBawaPulangDetail.h"

namespace
{
template <class Entity>
Entity* saved(Entity* entity, KorDataMapper* mapper)
{
    if (!mapper->insert(entity))
        qFatal("%s: %s", qPrintable(mapper->name()), qPrintable(mapper->takeError()));
    return entity;
}
} // namespace

Builders::Builders()
{
    KorQuery query;
    if (!query.exec("TRUNCATE meja, item, member RESTART IDENTITY CASCADE"))
        qFatal("%s", qPrintable(query.failure()));
}

EntityMeja* Builders::table(const QString& code, const QString& name)
{
    auto* table = new EntityMeja(&m_records);
    table->setKode(code);
    table->setNama(name.isEmpty() ? "Table " + code : name);
    return saved(table, ZavelMapperRegistry::instance()->mejaMapper());
}

EntityMember* Builders::member(const QString& code, const QString& name)
{
    auto* member = new EntityMember(&m_records);
    member->setKode(code);
    member->setNama(name);
    member->setExpiredDate(QDate::currentDate().addYears(1));
    return saved(member, PosMapperRegistry::instance()->memberMapper());
}

EntityJenisItem* Builders::itemType(const QString& code)
{
    DataMapperJenisItem* types = PosMapperRegistry::instance()->jenisItemMapper();
    if (KorEntity* known = types->findByCode(code))
        return static_cast<EntityJenisItem*>(known);
    auto* type = new EntityJenisItem(&m_records);
    type->setKode(code);
    type->setNama(code.left(1) + code.mid(1).toLower());
    return saved(type, types);
}

EntitySatuan* Builders::unit()
{
    DataMapperSatuan* units = PosMapperRegistry::instance()->satuanMapper();
    if (KorEntity* known = units->findByCode("PCS"))
        return static_cast<EntitySatuan*>(known);
    auto* unit = new EntitySatuan(&m_records);
    unit->setKode("PCS");
    unit->setNama("Piece");
    return saved(unit, units);
}

EntityItem* Builders::item(const QString& code, const QString& name, double price, EntityItem::ItemClass itemClass,
                           const QString& typeCode)
{
    auto* item = new EntityItem(&m_records);
    item->setKode(code);
    item->setNama(name);
    item->setItemType(itemClass);
    item->setJenis(itemType(typeCode));
    item->setSatuan(unit());
    item->setHargaBeli(money(price / 2));
    item->setHargaJualLokal(money(price));
    item->setSalesAcctCode("4050");
    item->setInventoryAcctCode("1200");
    item->setCostOfSalesAcctCode("5000");
    return saved(item, PosMapperRegistry::instance()->itemMapper());
}

EntityMakanDitempatDetail* Builders::line(EntityItem* item, int qty, const QString& description)
{
    auto* line = new EntityMakanDitempatDetail(&m_records);
    line->setItem(item);
    line->setQty(qty);
    line->setPriceEach(item->getHargaJualLokal());
    line->setTotal(money(item->getHargaJualLokal()->getAmount() * qty));
    line->setDescription(description);
    return line;
}

EntityMakanDitempat* Builders::order(EntityMeja* table, const EntityOrder::Lines& lines, const QString& guest)
{
    auto* order = new EntityMakanDitempat(&m_records);
    order->setMeja(table);
    order->setPemesan(guest);
    order->setTgl(QDate::currentDate());
    order->setStatus(EntityOrder::WAITING_FOR_MENU);
    order->setDetails(lines);
    return order;
}

EntityMakanDitempat* Builders::openOrder(EntityMeja* table, const EntityOrder::Lines& lines, const QString& guest)
{
    return saved(order(table, lines, guest), ZavelMapperRegistry::instance()->makanDitempatMapper());
}

template <class Sale>
Sale* Builders::savedSale(Sale* sale, const EntityOrder* order, double paid)
{
    QList<EntityInvoiceDetail*> lines;
    double subtotal = 0;
    for (const EntityOrderDetail* ordered : order->getDetails()) {
        auto* line = new EntityInvoiceDetail(&m_records);
        line->setItem(ordered->getItem());
        line->setQty(ordered->getQty());
        line->setPriceEach(ordered->getPriceEach());
        line->setDiscount(money(0));
        line->setTotal(ordered->getTotal());
        lines.append(line);
        subtotal += ordered->getTotal()->getAmount();
    }
    sale->setDetails(lines);
    InvoiceTotals totals;
    totals.setCurrency("Rp");
    totals.setSubtotal(subtotal);
    totals.setPaid(paid);
    totals.writeTo(sale->getInvoice());
    sale->getInvoice()->setInvoiceDate(QDate::currentDate());
    sale->getInvoice()->setAcctCode("1010");
    auto* sales = service<BusinessPenjualan>("Sales");
    if (!sales->insertInvoice(sale))
        qFatal("invoice: %s", qPrintable(sales->takeErrors()));
    return sale;
}

EntityInvoiceMakanDitempat* Builders::invoice(EntityMakanDitempat* order, double paid)
{
    auto* sale = new EntityInvoiceMakanDitempat(&m_records);
    sale->setMakanDitempat(order);
    return savedSale(sale, order, paid);
}

EntityBawaPulang* Builders::takeAway(const QList<QPair<EntityItem*, int>>& lines, const QString& guest)
{
    auto* order = new EntityBawaPulang(&m_records);
    order->setPemesan(guest);
    order->setTgl(QDate::currentDate());
    order->setStatus(EntityOrder::WAITING_FOR_MENU);
    EntityOrder::Lines details;
    for (const auto& ordered : lines) {
        auto* line = new EntityBawaPulangDetail(&m_records);
        line->setItem(ordered.first);
        line->setQty(ordered.second);
        line->setPriceEach(ordered.first->getHargaJualLokal());
        line->setTotal(money(ordered.first->getHargaJualLokal()->getAmount() * ordered.second));
        details.append(line);
    }
    order->setDetails(details);
    return saved(order, ZavelMapperRegistry::instance()->bawaPulangMapper());
}

EntityInvoiceBawaPulang* Builders::invoice(EntityBawaPulang* order, double paid)
{
    auto* sale = new EntityInvoiceBawaPulang(&m_records);
    sale->setBawaPulang(order);
    return savedSale(sale, order, paid);
}
