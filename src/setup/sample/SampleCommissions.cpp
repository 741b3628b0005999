#include "setup/sample/SampleStatements.h"

// On the third each agent gets the commissions of former months, at the agent's percentage.

namespace
{
const char payments[] = R"(
    truncate sample_payment;
    insert into sample_payment
    select nextval('komisi_agen_id_seq'), paid.*
    from (
        select agent_id, numbers.day, numbers.day + time '10:00' + agent_id % 50 * interval '1 minute', owner,
            pg_temp.numbered(prefix, next_id + step * (row_number() over (order by agent_id) - 1), digits)
        from (select distinct agent_id from sample_earned where day < date '{month}') earning
        join sample_number numbers on numbers.day = date '{month}' + 2 and numbers.name = 'KAG'
        cross join sample_house
        order by agent_id
    ) paid;

    insert into komisi_agen_detail (createdby, createdtime, version, komisi_agen_id, invoice_id, commision_perc,
        commision_currency, commision_amount)
    select maker, made, 1, payment.id, invoice_id, percent, '{currency}', commission
    from sample_payment payment join sample_earned earned on agent_id = of and earned.day < date '{month}'
    order by payment.id, invoice_id;

    insert into komisi_agen (id, createdby, createdtime, version, no, agent_id, payment_date, grandtotal_currency,
        grandtotal_amount, amount_paid_currency, amount_paid_amount, net_due_currency, net_due_amount, bank_id, noref,
        note)
    select id, maker, made, 1, no, of, day, '{currency}', total, '{currency}', total, '{currency}', 0,
        (select id from bank where kode = '6650'), '', ''
    from sample_payment payment
    join (select agent_id, sum(commission) as total from sample_earned where day < date '{month}' group by 1) sums
        on agent_id = of
    order by payment.id;
    delete from sample_earned where day < date '{month}' and exists (select from sample_payment where of = agent_id);
)";
} // namespace

QStringList Sample::commissions() { return {payments, drawn("KAG", "sample_payment")}; }
