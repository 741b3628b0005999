#pragma once

#include <QString>

/** The price for calculating margins: that of the item's last purchase, or its unit cost if there is none. */
namespace PurchasePrice
{
/** Selects item_id, price and bought (the day; may be NULL). The limit is SQL; purchases on that day count. */
[[nodiscard]] inline QString lastUntil(const QString& limit)
{
    return "select item.id as item_id, coalesce(last.price, item.harga_beli_amount) as price, last.bought from item "
           "left join (select distinct on (line.item_id) line.item_id, line.price_each_amount as price, "
           "acquisition.purchase_date as bought from acquisition_detail line "
           "join acquisition on acquisition.id = line.acquisition_id "
           "where line.qty > 0 and acquisition.purchase_date <= " +
           limit +
           " order by line.item_id, acquisition.purchase_date desc, line.id desc) last on last.item_id = item.id";
}
} // namespace PurchasePrice
