#include "setup/sample/SampleStatements.h"

// Every supplier delivers once a week what was sold of its goods in that time, and ingredients for the kitchen. Every
// other delivery was ordered the day before. Mode 0 to 2 is paid at once, 3 and 4 in part, the rest later.

namespace
{
const char deliveries[] = R"(
    truncate sample_delivery, sample_delivery_line;
    insert into sample_delivery
    select nextval('acquisition_id_seq'), made.*
    from (
        select due.key, supplier_id, due.day, made, maker,
            pg_temp.numbered(prefix, next_id + step
                * (row_number() over (order by made, due.key) - 1), digits), null::bigint,
            pg_temp.chance(due.key, 60) % 10 + case when is_ordered then 100 else 0 end
        from (
            select (day - date '2000-01-01') * 1000::bigint + nth as key, id as supplier_id, day,
                day + time '08:00' + nth * interval '4 minutes' as made, owner as maker, week % 2 = 0 as is_ordered
            from sample_supplier cross join generate_series(0, 3) week cross join sample_house
            cross join lateral (select date '{month}' + (1 + 7 * week + nth % 5)::int as day) days
            where day > date '{from}' and day <= date '{to}'
        ) due join sample_number numbers using (day) where numbers.name = 'NB'
        order by made, due.key
    ) made;
    update sample_delivery set mode = mode - 100, order_id = ordered.id
    from (select id as delivery_id, nextval('purchase_order_id_seq') as id
        from (select id from sample_delivery where mode >= 100 order by id) due) ordered
    where delivery_id = sample_delivery.id;

    insert into sample_delivery_line
    select nextval('acquisition_detail_id_seq'), line.*,
        case when ordered > 0 then nextval('purchase_order_detail_id_seq') end
    from (
        select delivery.id, item_id, qty,
            case when order_id is null then 0 else qty
                + (pg_temp.chance(key + item_id, 61) % 20 = 0)::int end as ordered,
            cost
        from sample_delivery delivery join sample_goods using (supplier_id)
        left join (select item_id, sum(qty) as sold from sample_line join sample_sale using (key)
            where not is_voided group by item_id) sales using (item_id)
        cross join lateral (select case when is_ingredient then {perday} / 2 + 5
            else (coalesce(sold, 0) + 3) / 4 + 1 end::int as qty) quantities
        order by delivery.id, item_id
    ) line;
)";

const char orders[] = R"(
    insert into purchase_order (id, createdby, createdtime, updatedby, updatedtime, version, no, purchase_date,
        supplier_id, status_id, ship_date, deposit_currency, deposit_amount, sub_total_currency, sub_total_amount,
        disc_perc, discount_currency, discount_amount, tax_perc, tax_currency, tax_amount, grandtotal_currency,
        grandtotal_amount, note, bank_id, norek)
    select order_id, maker, made - interval '1 day', maker, made, 2,
        pg_temp.numbered(prefix, next_id + step * (row_number() over (order by order_id) - 1), digits),
        delivery.day - 1, supplier_id, 6, delivery.day, '{currency}', 0, '{currency}', sub, 0, '{currency}', 0, percent,
        '{currency}', tax, '{currency}', sub + tax, '', payable, ''
    from sample_delivery delivery
    join (select delivery_id, sum(ordered * cost) as sub from sample_delivery_line group by 1) sums
        on delivery_id = delivery.id
    cross join lateral (select case when supplier_id % 2 = 0 then 10 else 0 end as percent) rate
    cross join lateral (select pg_temp.kept(sub * (percent::float8 / 100)) as tax) taxes
    cross join sample_house
    join sample_number numbers on numbers.day = delivery.day - 1 and numbers.name = 'PO'
    where order_id is not null order by order_id;

    insert into purchase_order_detail (id, createdby, createdtime, version, purchase_order_id, item_id, jumlah,
        price_currency, price_amount, discount_currency, discount_amount, total_price_currency, total_price_amount,
        discount_percentage)
    select order_line_id, maker, made - interval '1 day', 1, order_id, item_id, ordered, '{currency}', cost,
        '{currency}', 0, '{currency}', ordered * cost, 0
    from sample_delivery_line line join sample_delivery delivery on delivery.id = delivery_id
    where order_id is not null order by order_line_id;
)";

const char received[] = R"(
    insert into acquisition (id, createdby, createdtime, version, purchase_date, due_date, note, supplier_id, no,
        invoice_no, waiting_bill, apply_to_po, po_id, sub_total_currency, sub_total_amount, disc_perc,
        discount_currency, discount_amount, tax_perc, tax_currency, tax_amount, grandtotal_currency, grandtotal_amount,
        amount_paid_currency, amount_paid_amount, net_due_currency, net_due_amount, other_payment_currency,
        other_payment_amount, status, bank_id)
    select id, maker, made, 1, day, day + 14, '', supplier_id, no, 'A-' || key, false, order_id is not null, order_id,
        '{currency}', sub, 0, '{currency}', 0, percent, '{currency}', tax, '{currency}', total, '{currency}', paid,
        '{currency}', total - paid, '{currency}', 0, case when paid >= total then 1 when paid > 0 then 3 else 2 end,
        -- Money that was paid left an account of cash.
        case when paid > 0 then checking else payable end
    from sample_delivery
    join (select delivery_id, sum(qty * cost) as sub from sample_delivery_line group by 1) sums on delivery_id = id
    cross join lateral (select case when supplier_id % 2 = 0 then 10 else 0 end as percent) rate
    cross join lateral (select pg_temp.kept(sub * (percent::float8 / 100)) as tax) taxes
    cross join lateral (select sub + tax as total) totals
    cross join lateral (select case when mode < 3 then total when mode < 5 then total::bigint / 2 else 0 end as paid)
        payments
    cross join sample_house order by id;

    insert into acquisition_detail (id, createdby, createdtime, version, acquisition_id, item_id, qty, qty_ordered,
        po_detail_id, price_each_currency, price_each_amount, discount_currency, discount_amount, total_price_currency,
        total_price_amount, discount_percentage)
    select line.id, maker, made, 1, delivery_id, item_id, qty, ordered, order_line_id, '{currency}', cost,
        '{currency}', 0, '{currency}', qty * cost, 0
    from sample_delivery_line line join sample_delivery delivery on delivery.id = delivery_id order by line.id;

    insert into item_history (createdby, createdtime, version, trans_date, item_id, qty_in, qty_out, qty_remain,
        unit_price_currency, unit_price_amount, tran_type, tran_id, no)
    select maker, made, 1, day, item_id, qty, 0, 0, '{currency}', cost, 1, line.id, no
    from sample_delivery_line line join sample_delivery delivery on delivery.id = delivery_id order by line.id;
)";
} // namespace

QStringList Sample::purchases()
{
    return {deliveries, orders, received, drawn("PO", "sample_delivery", "order_id is not null"),
            drawn("NB", "sample_delivery")};
}
