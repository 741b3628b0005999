#include "setup/sample/SampleStatements.h"

namespace
{
const char guests[] = R"(
    insert into sample_sale (key, kind, day, ordered, lines, maker, guest, table_id, order_id)
    select key, kind, date '{today}', date '{today}' + nth * interval '1 minute', 2 + pg_temp.chance(key, 110) % 6,
        house.cashiers[1], house.guests[3 + nth], house.tables[nth],
        case kind when 'TRD' then nextval('makan_ditempat_id_seq') else nextval('bawa_pulang_id_seq') end
    from (select (date '{today}' - date '2000-01-01') * 100000::bigint + nth as key, nth,
            case when nth <= 8 then 'TRD' else 'TRP' end as kind from generate_series(1, 12) nth order by nth) open
    cross join sample_house house;
    insert into sample_line
    select key, nth, 1, item_id, 1 + pg_temp.chance(key * 8 + nth, 111) % 2, price
    from sample_sale cross join sample_house house cross join generate_series(1, 8) nth
    join sample_menu on rank = nth - 1 + 8 * (pg_temp.chance(key * 8 + nth, 112) % house.courses)
    where nth <= lines and order_id is not null and billed is null;

    insert into makan_ditempat (id, createdby, createdtime, version, status, meja_id, pemesan, tgl)
    select order_id, maker, ordered, 1, 1, table_id, guest, day
    from sample_sale where kind = 'TRD' and billed is null order by order_id;
    insert into bawa_pulang (id, createdby, createdtime, version, status, pemesan, tgl)
    select order_id, maker, ordered, 1, 1, guest, day
    from sample_sale where kind = 'TRP' and billed is null order by order_id;
    insert into makan_ditempat_detail (createdby, createdtime, version, makan_ditempat_id, item_id, qty, status,
        total_currency, total_amount, price_each_currency, price_each_amount, description)
    select maker, ordered, 1, order_id, item_id, qty, 1, '{currency}', qty * price, '{currency}', price, ''
    from sample_sale join sample_line using (key) where kind = 'TRD' and billed is null order by order_id, nth;
    insert into bawa_pulang_detail (createdby, createdtime, version, bawa_pulang_id, item_id, qty, status,
        total_currency, total_amount, price_each_currency, price_each_amount, description)
    select maker, ordered, 1, order_id, item_id, qty, 1, '{currency}', qty * price, '{currency}', price, ''
    from sample_sale join sample_line using (key) where kind = 'TRP' and billed is null order by order_id, nth;
)";

// Two orders are on their way from suppliers, and one was cancelled.
const char suppliers[] = R"(
    create temp table sample_order on commit drop as
    select nextval('purchase_order_id_seq') as id, nth, supplier.id as supplier_id, owner as maker,
        date '{today}' - 1 as day, date '{today}' - 1 + time '09:30' + nth * interval '5 minutes' as made,
        pg_temp.numbered(prefix, numbers.next_id + step * nth, digits) as no, payable
    from (select * from sample_supplier where nth < 3 order by nth) supplier cross join sample_house
    join sample_number numbers on numbers.day = date '{today}' - 1 and numbers.name = 'PO';

    insert into purchase_order_detail (createdby, createdtime, version, purchase_order_id, item_id, jumlah,
        price_currency, price_amount, discount_currency, discount_amount, total_price_currency, total_price_amount,
        discount_percentage)
    select maker, made, 1, id, item_id, 10, '{currency}', cost, '{currency}', 0, '{currency}', 10 * cost, 0
    from sample_order join sample_goods using (supplier_id) order by id, item_id;
    insert into purchase_order (id, createdby, createdtime, version, no, purchase_date, supplier_id, status_id,
        ship_date, deposit_currency, deposit_amount, sub_total_currency, sub_total_amount, disc_perc, discount_currency,
        discount_amount, tax_perc, tax_currency, tax_amount, grandtotal_currency, grandtotal_amount, note, bank_id,
        norek)
    select id, maker, made, 1, no, day, supplier_id, case when nth < 2 then 2 else 5 end, day + 3, '{currency}', 0,
        '{currency}', total, 0, '{currency}', 0, 0, '{currency}', 0, '{currency}', total, '', payable, ''
    from sample_order
    join (select purchase_order_id, sum(total_price_amount) as total from purchase_order_detail group by 1) sums
        on purchase_order_id = id
    order by id;
)";
} // namespace

QStringList Sample::openOrders() { return {guests, freshNumbers(), suppliers, drawn("PO", "sample_order")}; }
