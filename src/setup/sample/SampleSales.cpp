#include "setup/sample/SampleStatements.h"

namespace
{
// Weekends are fuller, and so are July and December; guests come at noon and, more of them, in the evening.
const char parties[] = R"(
    truncate sample_sale, sample_line, sample_bill;
    insert into sample_sale
    with days as (
        select day::date as day, number,
            round({perday} * (array[1.10, 0.75, 0.80, 0.85, 0.95, 1.20, 1.35])[1 + extract(dow from day)::int]
                * case extract(month from day) when 7 then 1.2 when 12 then 1.3 else 0.95 end
                * (0.9 + pg_temp.chance(number, 1) % 200 / 1000.0))::int as parties
        from generate_series(date '{from}', date '{to}', interval '1 day') day,
            lateral (select (day::date - date '2000-01-01')::bigint as number) numbers
    ), arrivals as (
        select number * 100000 + nth as key, day from days, lateral generate_series(1, parties) nth
    ), orders as (
        select key, day,
            case when pg_temp.chance(key, 2) % 100 < 70 then 'TRD' when pg_temp.chance(key, 2) % 100 < 88 then 'TRF'
                 else 'TRP' end as kind,
            day + make_interval(secs => case when pg_temp.chance(key, 3) % 100 < 40
                then 39600 + pg_temp.chance(key, 4) % 14400
                else 61200 + (pg_temp.chance(key, 4) % 18000 + pg_temp.chance(key, 5) % 18000) / 2 end) as ordered,
            case when pg_temp.chance(key, 6) % 100 < 12
                then house.members[1 + pg_temp.chance(key, 7) % cardinality(house.members)] end as member_id,
            case when pg_temp.chance(key, 8) % 100 < 8
                then house.agents[1 + pg_temp.chance(key, 9) % cardinality(house.agents)] end as agent_id,
            house.employees[1 + pg_temp.chance(key, 10) % cardinality(house.employees)] as employee_id,
            house.tables[1 + pg_temp.chance(key, 11) % cardinality(house.tables)] as table_id,
            house.cashiers[1 + pg_temp.chance(key, 12) % cardinality(house.cashiers)] as maker,
            house.guests[1 + pg_temp.chance(key, 13) % cardinality(house.guests)] as guest
        from arrivals, sample_house house
    ), bills as (
        select *, case kind when 'TRD' then 3 + pg_temp.chance(key, 14) % 6 when 'TRF'
            then 1 + pg_temp.chance(key, 14) % 4
                  else 2 + pg_temp.chance(key, 14) % 5 end as lines,
            case when kind = 'TRD' and pg_temp.chance(key, 15) % 25 = 0 then 2 + pg_temp.chance(key, 16) % 2
                 else 1 end as bills,
            ordered + case kind when 'TRD' then make_interval(secs => 1800 + pg_temp.chance(key, 17) % 3600)
                when 'TRP' then make_interval(secs => 600 + pg_temp.chance(key, 17) % 1200)
                else interval '0' end as billed
        from orders
    )
    select key, kind, day, ordered, billed, lines, bills, member_id, coalesce(nama, guest),
        case when expired_date >= day then discount_percentage else 0 end,
        case when kind <> 'TRP' then agent_id end, case when kind <> 'TRP' then employee_id end, table_id, maker,
        member_id is not null and pg_temp.chance(key, 18) % 100 < 30,
        bills = 1 and pg_temp.chance(key, 19) % 250 = 0, bills = 1 and pg_temp.chance(key, 20) % 100 = 0,
        case kind when 'TRD' then nextval('makan_ditempat_id_seq') when 'TRP' then nextval('bawa_pulang_id_seq') end
    from (select bills.*, nama, expired_date, discount_percentage from bills left join member on member.id = member_id
        order by ordered, key) sale;
)";

const char lines[] = R"(
    insert into sample_line
    select key, nth, 1 + nth % bills, item_id,
        case when pg_temp.chance(key * 8 + nth, 30) % 100 < 60 then 1
             when pg_temp.chance(key * 8 + nth, 30) % 100 < 85 then 2
             when pg_temp.chance(key * 8 + nth, 30) % 100 < 95 then 3 else 4 end, price
    from sample_sale cross join sample_house house cross join generate_series(1, 8) nth
    join sample_menu on rank = nth - 1 + 8 * floor(house.courses
        * power(pg_temp.chance(key * 8 + nth, 31) / 1073741824.0::float8, 2))::int
    where nth <= lines;
    analyze sample_sale, sample_line;
)";

// Rounded and added up as the program's payment form does it. Cash comes in notes, a card pays exactly; of the members
// on credit one half pays a part at once.
const char bills[] = R"(
    insert into sample_bill
    select nextval('invoice_id_seq'), bill.*
    from (
        select priced.key, part, kind, day, made, maker,
            pg_temp.numbered(prefix, next_id + step
                * (row_number() over (partition by kind order by made, priced.key, part) - 1),
                digits),
            sub, percent, discount, 10, tax, service_percent, service, total,
            case when on_credit then case when pg_temp.chance(key, 40) % 2 = 0 then 0 else total / 2 end
                 when is_card or pg_temp.chance(key, 41) % 100 < 40 then total
                 else (total + 10 * {unit} - 1) / (10 * {unit}) * 10 * {unit} end,
            case when is_card then '1020' else '1010' end
        from (
            select sale.*, part, sub, billed + part * interval '40 seconds' as made,
                pg_temp.chance(key, 42) % 100 < 25 and not on_credit as is_card,
                pg_temp.kept(sub * (percent::float8 / 100)) as discount,
                pg_temp.kept(sub * (10::float8 / 100)) as tax,
                case kind when 'TRD' then 5 else 0 end as service_percent,
                case kind when 'TRD' then pg_temp.kept(sub * (5::float8 / 100)) else 0 end as service
            from sample_sale sale
            join (select key, part, sum(qty * price)::bigint as sub
                from sample_line group by key, part) sums using (key)
        ) priced cross join lateral (select sub - discount + tax + service as total) totals
        join sample_number numbers using (day) where numbers.name = kind
        order by made, priced.key, part
    ) bill;
    analyze sample_bill;
)";

// An invoice that was deleted leaves its number, and its order without a bill.
const char invoices[] = R"(
    insert into invoice (id, createdby, createdtime, updatedby, updatedtime, version, invoice_date, no, note, status,
        invoice_type, sub_total_currency, sub_total_amount, disc_perc, discount_currency, discount_amount, tax_perc,
        tax_currency, tax_amount, grandtotal_currency, grandtotal_amount, amount_paid_currency, amount_paid_amount,
        net_due_currency, net_due_amount, other_payment_currency, other_payment_amount, service_perc,
        service_currency, service_amount, member_id, pemesan, employee_id, acct_code)
    select bill.id, bill.maker, made, case when is_changed then bill.maker end,
        case when is_changed then made + interval '10 minutes' end, case when is_changed then 2 else 1 end, bill.day,
        no, '', case when paid = 0 then 2 when paid >= total then 1 else 3 end, bill.kind, '{currency}', sub,
        bill.percent, '{currency}', discount, tax_percent, '{currency}', tax, '{currency}', total, '{currency}', paid,
        -- At a table what is owed is stored, elsewhere what the form shows: the change.
        '{currency}', case bill.kind when 'TRD' then total - paid else paid - total end, '{currency}', 0,
        service_percent, '{currency}', service, member_id, guest, employee_id, account
    from sample_bill bill join sample_sale sale using (key) where not is_voided order by bill.id;

    insert into invoice_detail (createdby, createdtime, version, invoice_id, item_id, qty, price_each_currency,
        price_each_amount, discount_currency, discount_amount, total_currency, total_amount)
    select bill.maker, made, 1, bill.id, item_id, qty, '{currency}', price, '{currency}', 0, '{currency}', qty * price
    from sample_bill bill join sample_line line using (key, part) join sample_sale using (key)
    where not is_voided order by bill.id, nth;
)";

const char links[] = R"(
    create temp view sample_link as
    select bill.id as invoice_id, bill.maker, made, bill.day, bill.kind, order_id, employee_id, agent_id, member_id,
        guest, is_changed, case when is_changed then bill.maker end as changer,
        case when is_changed then made + interval '10 minutes' end as changed,
        case when is_changed then 2 else 1 end as version, on_credit
    from sample_bill bill join sample_sale using (key) where not is_voided order by bill.id;

    insert into invoice_makan_ditempat (createdby, createdtime, updatedby, updatedtime, version, invoice_id,
        makan_ditempat_id, employee_id, agent_id, due_date)
    select maker, made, changer, changed, version, invoice_id, order_id, employee_id, agent_id,
        day + case when on_credit then 14 else 0 end from sample_link where kind = 'TRD';
    insert into invoice_fast_food (createdby, createdtime, updatedby, updatedtime, version, invoice_id, employee_id,
        agent_id, member_id, pemesan)
    select maker, made, changer, changed, version, invoice_id, employee_id, agent_id, member_id, guest
    from sample_link where kind = 'TRF';
    insert into invoice_bawa_pulang (createdby, createdtime, updatedby, updatedtime, version, invoice_id,
        bawa_pulang_id, member_id, pemesan)
    select maker, made, changer, changed, version, invoice_id, order_id, member_id, guest
    from sample_link where kind = 'TRP';
    drop view sample_link;
)";

// Each bill and each change of one sets the order's status, and so does the end of the meal: version by version.
const char orders[] = R"(
    insert into makan_ditempat (id, createdby, createdtime, updatedby, updatedtime, version, status, member_id,
        meja_id, pemesan, tgl)
    select order_id, maker, ordered, maker, billed + interval '15 minutes', 2 + bills + is_changed::int, 6, member_id,
        table_id, guest, day
    from sample_sale where kind = 'TRD' order by order_id;
    insert into makan_ditempat_detail (createdby, createdtime, version, makan_ditempat_id, item_id, qty, status,
        total_currency, total_amount, price_each_currency, price_each_amount, description)
    select maker, ordered, 1, order_id, item_id, qty, 1, '{currency}', qty * price, '{currency}', price,
        case when pg_temp.chance(key * 8 + nth, 50) % 40 = 0 then 'not too hot' else '' end
    from sample_sale join sample_line using (key) where kind = 'TRD' order by order_id, nth;

    insert into bawa_pulang (id, createdby, createdtime, updatedby, updatedtime, version, status, member_id, pemesan,
        tgl)
    select order_id, maker, ordered, maker, billed + interval '5 minutes', 3 + is_changed::int, 6, member_id, guest,
        day
    from sample_sale where kind = 'TRP' order by order_id;
    insert into bawa_pulang_detail (createdby, createdtime, version, bawa_pulang_id, item_id, qty, status,
        total_currency, total_amount, price_each_currency, price_each_amount, description)
    select maker, ordered, 1, order_id, item_id, qty, 1, '{currency}', qty * price, '{currency}', price, ''
    from sample_sale join sample_line using (key) where kind = 'TRP' order by order_id, nth;
)";

const char carriedOn[] = R"(
    insert into sample_owed
    select bill.id, member_id, bill.day, total - paid
    from sample_bill bill join sample_sale using (key) where on_credit and not is_voided and total > paid;
    insert into sample_earned
    select bill.id, agent_id, bill.day, commision_perc, commission
    from sample_bill bill join sample_sale using (key) join agent on agent.id = agent_id
    cross join lateral (select pg_temp.kept(total * (commision_perc::float8 / 100)) as commission) commissions
    -- The form takes no invoice without a commission.
    where not is_voided and commission > 0;
)";
} // namespace

QStringList Sample::sales()
{
    QStringList all{parties, lines, bills, invoices, links, orders, carriedOn};
    for (const char* kind : {"TRD", "TRF", "TRP"})
        all.append(drawn(kind, "sample_bill", QString("kind = '%1'").arg(kind)));
    return all;
}
