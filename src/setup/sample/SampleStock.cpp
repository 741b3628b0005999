#include "setup/sample/SampleStatements.h"

namespace
{
const char onHand[] = R"(
    update sample_stock stock set on_hand = on_hand + moved.qty
    from (
        select item_id, sum(qty) as qty
        from (
            select item_id, qty from sample_delivery_line
            union all
            select item_id, -qty from sample_line join sample_sale using (key) where not is_voided
            union all
            select item_id, -qty from sample_return where not is_cancelled
        ) movements group by item_id
    ) moved where moved.item_id = stock.item_id;
)";

// Counted when the trade of the last day is over, and dated on the next day. The kitchen uses ingredients without a
// word, so that each count writes them off; of bottles something breaks in a quarter.
const char count[] = R"(
    create temp table sample_count on commit drop as
    select item_id, on_hand as before, adjustment, reason, owner as maker,
        date '{to}' + 1 as day, date '{to}' + time '23:15' as made, nextval('stock_take_id_seq') as id
    from (
        select goods.item_id, on_hand, case when is_ingredient then -(on_hand * 8 / 10)
            when extract(month from date '{month}')::int % 3 = 0
                then -(pg_temp.chance(goods.item_id * 1000000::bigint + (date '{month}' - date '2000-01-01'), 90) % 3)
            else 0 end as adjustment, case when is_ingredient then 'Used in the kitchen' else 'Broken' end as reason
        from sample_goods goods join sample_stock using (item_id) order by goods.item_id
    ) counted cross join sample_house where adjustment <> 0;

    insert into stock_take (id, createdby, createdtime, version, item_id, tanggal, qty, reason, qty_before, qty_adj,
        source_acct_code)
    select id, maker, made, 1, item_id, day, before + adjustment, reason, before, adjustment, '5000'
    from sample_count order by id;
    insert into item_history (createdby, createdtime, version, trans_date, item_id, qty_in, qty_out, qty_remain,
        unit_price_currency, unit_price_amount, tran_type, tran_id)
    select maker, made, 1, day, item_id, greatest(adjustment, 0), greatest(-adjustment, 0), 0, '{currency}', cost, 3,
        id
    from sample_count join sample_goods using (item_id) order by id;
    update sample_stock stock set on_hand = on_hand + adjustment from sample_count counted
    where counted.item_id = stock.item_id;
    drop table sample_count;
)";
} // namespace

QStringList Sample::stock() { return {onHand}; }

QStringList Sample::stockCount() { return {count}; }
