#include "setup/sample/SampleStatements.h"

// Of a delivery on credit something goes back on the next day; one note in eight is cancelled. The form lists all lines
// of the purchase, so that those of which nothing goes back stand on the note as well.

namespace
{
const char chosen[] = R"(
    truncate sample_return;
    insert into sample_return
    select nextval('credit_note_id_seq'), note.*
    from (
        select delivery.id, supplier_id, delivery.day + 1, made + interval '1 day' as made, maker,
            pg_temp.numbered(prefix, next_id + step * (row_number() over (order by delivery.id) - 1), digits), line.id,
            line.item_id, least(2, qty), least(2, qty) * cost, pg_temp.chance(delivery.key, 71) % 8 = 0
        from sample_delivery delivery
        join lateral (select * from sample_delivery_line where delivery_id = delivery.id order by id limit 1) line
            on true
        join sample_number numbers on numbers.day = delivery.day + 1 and numbers.name = 'NR'
        where mode >= 5 and pg_temp.chance(delivery.key, 70) % 6 = 0
        order by delivery.id
    ) note;
)";

const char notes[] = R"(
    insert into credit_note (id, createdby, createdtime, version, credit_note_date, note, supplier_id, no,
        apply_to_invoice, acquisition_id, sub_total_currency, sub_total_amount, disc_perc, discount_currency,
        discount_amount, grandtotal_currency, grandtotal_amount, amount_paid_currency, amount_paid_amount,
        change_currency, change_amount, status, bank_id)
    select id, maker, made, 1, day, '', supplier_id, no, true, delivery_id, '{currency}', amount, 0, '{currency}', 0,
        '{currency}', amount, '{currency}', amount, '{currency}', 0, case when is_cancelled then 4 else 1 end, payable
    from sample_return cross join sample_house order by id;

    with written as (
        insert into credit_note_detail (createdby, createdtime, version, credit_note_id, item_id, qty, qty_returned,
            acquisition_detail_id, price_each_currency, price_each_amount, discount_currency, discount_amount,
            total_price_currency, total_price_amount, discount_percentage)
        select maker, made, 1, note.id, line.item_id, line.qty, returned, line.id, '{currency}', cost, '{currency}', 0,
            '{currency}', returned * cost, 0
        from sample_return note join sample_delivery_line line using (delivery_id)
        cross join lateral (select case when line.id = line_id then note.qty else 0 end as returned) quantities
        order by note.id, line.id
        returning id, credit_note_id, item_id, qty_returned, price_each_amount
    )
    insert into item_history (createdby, createdtime, version, trans_date, item_id, qty_in, qty_out, qty_remain,
        unit_price_currency, unit_price_amount, tran_type, tran_id, no)
    select maker, made, 1, day, written.item_id, 0, qty_returned, 0, '{currency}', price_each_amount, 4, written.id, no
    from written join sample_return note on note.id = credit_note_id order by written.id;
)";

// A cancelled note counts as well for what is due.
const char dues[] = R"(
    update acquisition set other_payment_amount = amount, net_due_amount = net_due_amount - amount,
        status = case when net_due_amount <= amount then 1 else 3 end, version = version + 1, updatedby = maker,
        updatedtime = made
    from sample_return note where acquisition.id = delivery_id;
)";
} // namespace

QStringList Sample::returns() { return {chosen, notes, dues, drawn("NR", "sample_return")}; }
