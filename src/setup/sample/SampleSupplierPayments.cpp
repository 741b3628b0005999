#include "setup/sample/SampleStatements.h"

// On the tenth most suppliers get what is due from former months, one in seven only half of it. On the twentieth the
// house pays for ice, which is an expense without a purchase.

namespace
{
const char bills[] = R"(
    truncate sample_payment;
    insert into sample_payment
    select nextval('payment_id_seq'), paid.*
    from (
        select id, numbers.day, numbers.day + time '10:05' + nth * interval '1 minute', owner,
            pg_temp.numbered(prefix, next_id + step * (row_number() over (order by nth) - 1), digits)
        from sample_supplier cross join sample_house
        join sample_number numbers on numbers.day = date '{month}' + 9 and numbers.name = 'TPH'
        where pg_temp.chance((numbers.day - date '2000-01-01') * 1000::bigint + nth, 80) % 10 > 0
            and exists (select from acquisition where supplier_id = sample_supplier.id and status <> 1
                and purchase_date < date '{month}' and net_due_amount > 1)
        order by nth
    ) paid;

    truncate sample_part;
    insert into sample_part
    select payment.id, bill.id, amount, net_due_amount - amount
    from sample_payment payment
    join acquisition bill on supplier_id = of and status <> 1 and purchase_date < date '{month}'
        and net_due_amount > 1
    cross join lateral (select case when pg_temp.chance(payment.id, 81) % 7 = 0 then trunc(net_due_amount / 2)
        else net_due_amount end as amount) amounts
    order by payment.id, bill.id;
    insert into payment_invoice (createdby, createdtime, version, payment_id, acquisition_id, amount_paid_currency,
        amount_paid_amount, amount_due_currency, amount_due_amount)
    select maker, made, 1, id, document_id, '{currency}', amount, '{currency}', remaining
    from sample_payment join sample_part on payment_id = id order by id, document_id;

    insert into payment (id, createdby, createdtime, version, payment_type, supplier_id, no, check_no, payment_date,
        note, grandtotal_currency, grandtotal_amount, bank_id, noref)
    select id, maker, made, 1, 1 + pg_temp.chance(id, 82) % 2, of, no, '', day, '', '{currency}',
        (select sum(amount) from sample_part where payment_id = payment.id), checking, ''
    from sample_payment payment cross join sample_house order by id;

    update acquisition set other_payment_amount = other_payment_amount + amount, net_due_amount = remaining,
        status = case when remaining <= 0 then 1 else 3 end, version = version + 1, updatedby = maker,
        updatedtime = made
    from sample_payment payment join sample_part on payment_id = payment.id
    where acquisition.id = document_id;
)";

const char expenses[] = R"(
    truncate sample_payment;
    insert into sample_payment
    select nextval('payment_id_seq'), id, numbers.day, numbers.day + time '10:30', owner,
        pg_temp.numbered(prefix, next_id, digits)
    from sample_supplier cross join sample_house
    join sample_number numbers on numbers.day = date '{month}' + 19 and numbers.name = 'TPH'
    where nth = 8;

    insert into payment (id, createdby, createdtime, version, payment_type, supplier_id, no, check_no, payment_date,
        note, grandtotal_currency, grandtotal_amount, bank_id, noref)
    select id, maker, made, 1, 1, of, no, '', day, 'Ice for the bar', '{currency}', 20 * cost, cash, ''
    from sample_payment cross join sample_house, sample_goods
    where item_id = (select id from item where kode = 'sk20');
    insert into payment_expense (createdby, createdtime, version, payment_id, item_id, qty, unit_price_currency,
        unit_price_amount, discount_currency, discount_amount, amount_currency, amount_amount)
    select maker, made, 1, id, item_id, 20, '{currency}', cost, '{currency}', 0, '{currency}', 20 * cost
    from sample_payment, sample_goods where item_id = (select id from item where kode = 'sk20');
)";
} // namespace

QStringList Sample::supplierPayments()
{
    return {bills, drawn("TPH", "sample_payment"), freshNumbers(), expenses, drawn("TPH", "sample_payment")};
}
