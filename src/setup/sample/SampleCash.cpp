#include "setup/sample/SampleStatements.h"

namespace
{
// Every Monday change for the drawer, on the first the rent, on the 28th the wages.
const char entries[] = R"(
    truncate sample_entry;
    insert into sample_entry
    select nextval('cash_flow_id_seq'), entry.*
    from (
        select day, made, owner, pg_temp.numbered(prefix, next_id + step
            * (row_number() over (order by made) - 1), digits),
            amount, is_debit, notes
        from (
            select day::date as day, day + time '10:00' as made, 20 * {unit} as amount, true as is_debit,
                'Change for the drawer' as notes
            from generate_series(date '{from}', date '{to}', interval '1 day') day where extract(dow from day) = 1
            union all
            select date '{month}', date '{month}' + time '10:10', 40 * {perday} * {unit}, false, 'Rent'
            union all
            select date '{month}' + 27, date '{month}' + 27 + time '10:20', 100 * {perday} * {unit}, false, 'Wages'
        ) due join sample_number numbers using (day) cross join sample_house
        where numbers.name = 'KK' and day between date '{from}' and date '{to}' order by made
    ) entry;
    insert into cash_flow (id, createdby, createdtime, version, trans_date, notes, trans_no, trans_type, account_code,
        debet_currency, debet_amount, credit_currency, credit_amount)
    select id, maker, made, 1, day, notes, no, case when is_debit then 'DEBET' else 'CREDIT' end,
        case when is_debit then '1010' else '1020' end, '{currency}', case when is_debit then amount else 0 end,
        '{currency}', case when is_debit then 0 else amount end
    from sample_entry order by id;
)";

// Every Tuesday the cash of the seven days before goes to the bank.
const char transfers[] = R"(
    truncate sample_entry;
    insert into sample_entry
    select nextval('accounting_trans_id_seq'), transfer.*
    from (
        select due.day, due.day + time '10:00' as made, owner,
            pg_temp.numbered(prefix, next_id + step
                * (row_number() over (order by due.day) - 1), digits), amount, false,
            'Cash of the week'
        from (select day::date as day from generate_series(date '{from}', date '{to}', interval '1 day') day
            where extract(dow from day) = 2) due
        cross join lateral (select sum(bill.total) as amount from sample_bill bill join sample_sale using (key)
            where bill.day between due.day - 7 and due.day - 1 and account = '1010' and not is_voided
                and not on_credit) taken
        join sample_number numbers on numbers.day = due.day and numbers.name = 'TR' cross join sample_house
        where amount > 0 order by due.day
    ) transfer;
    insert into accounting_trans (id, createdby, createdtime, version, trans_no, trans_date, notes, from_account_id,
        to_account_id, amount_currency, amount_amount)
    select id, maker, made, 1, no, day, notes, cash, checking, '{currency}', amount
    from sample_entry cross join sample_house order by id;
)";
} // namespace

QStringList Sample::cash() { return {entries, drawn("KK", "sample_entry"), transfers, drawn("TR", "sample_entry")}; }
