#include "setup/sample/SampleStatements.h"

// In the month after, a member pays what is owed, one in four only half of each bill, and one in seven nothing yet.

namespace
{
const char payments[] = R"(
    truncate sample_payment;
    insert into sample_payment
    select nextval('piutang_id_seq'), paid.*
    from (
        select member_id, day, day + time '10:00' + member_id % 50 * interval '1 minute' as made,
            house.cashiers[1 + member_id % cardinality(house.cashiers)],
            pg_temp.numbered(prefix, next_id + step * (row_number() over (order by day, member_id) - 1), digits)
        from (select distinct member_id, date '{month}' + 4 + member_id % 20 as day from sample_owed
            where day < date '{month}' and due > 1) owing
        join sample_number numbers using (day) cross join sample_house house
        where numbers.name = 'PIU'
            and pg_temp.chance((day - date '2000-01-01') * 100000::bigint + member_id, 100) % 7 > 0
        order by day, member_id
    ) paid;

    truncate sample_part;
    insert into sample_part
    select payment.id, invoice_id, amount, due - amount
    from sample_payment payment
    join sample_owed owed on member_id = of and owed.day < date '{month}' and due > 1
    cross join lateral (select case when pg_temp.chance(payment.id, 101) % 4 = 0 then due / 2 else due end as amount)
        amounts
    order by payment.id, invoice_id;
    analyze sample_payment, sample_part;

    insert into piutang_detail (createdby, createdtime, version, piutang_id, invoice_id, amount_paid_currency,
        amount_paid_amount, amount_due_currency, amount_due_amount)
    select maker, made, 1, id, document_id, '{currency}', amount, '{currency}', remaining
    from sample_payment join sample_part on payment_id = id order by id, document_id;
    insert into piutang (id, createdby, createdtime, version, payment_type, member_id, payment_date, no, check_no, note,
        grandtotal_currency, grandtotal_amount, bank_id, noref)
    select id, maker, made, 1, 1 + pg_temp.chance(id, 102) % 2, of, day, no, '', '', '{currency}',
        (select sum(amount) from sample_part where payment_id = payment.id), cash, ''
    from sample_payment payment cross join sample_house order by id;
)";

const char dues[] = R"(
    update invoice set other_payment_amount = other_payment_amount + amount, net_due_amount = remaining,
        status = case when remaining <= 0 then 1 else 3 end, version = version + 1, updatedby = maker,
        updatedtime = made
    from sample_payment payment join sample_part on payment_id = payment.id
    where invoice.id = document_id;

    update sample_owed set due = remaining from sample_part where invoice_id = document_id;
    delete from sample_owed where due = 0;
)";
} // namespace

QStringList Sample::memberPayments() { return {payments, dues, drawn("PIU", "sample_payment")}; }
