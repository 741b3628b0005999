#include "setup/sample/SampleStatements.h"

namespace
{
const char functions[] = R"(
    -- Chance from 0 to 1073741823; each topic of a row has one of its own.
    create function pg_temp.chance(key bigint, topic int) returns int language sql immutable as
        $$ select (hashint8extended(key, {seed} * 1000 + topic) & 1073741823)::int $$;

    -- What the program keeps of an amount: minor units are rounded, then whole units are stored.
    create function pg_temp.kept(amount float8) returns bigint language sql immutable as
        $$ select trunc(floor({factor} * amount + 0.5) / {factor})::bigint $$;

    create function pg_temp.numbered(prefix text, number bigint, digits bigint) returns text language sql immutable as
        $$ select prefix || lpad(number::text, greatest(digits, length(number::text))::int, '0') $$;
)";

// Of the month that is being made.
const char scratch[] = R"(
    -- How the running numbers look on a day, and which one comes next.
    create temp table sample_number (name text, day date, prefix text, next_id bigint, step int, digits bigint)
        on commit drop;

    -- A party of guests, or one customer.
    create temp table sample_sale (key bigint, kind text, day date, ordered timestamp, billed timestamp, lines int,
        bills int, member_id int, guest text, percent numeric, agent_id int, employee_id int, table_id int, maker int,
        on_credit boolean, is_voided boolean, is_changed boolean, order_id bigint) on commit drop;
    create temp table sample_line (key bigint, nth int, part int, item_id int, qty int, price bigint) on commit drop;
    create temp table sample_bill (id bigint, key bigint, part int, kind text, day date, made timestamp, maker int,
        no text, sub bigint, percent numeric, discount bigint, tax_percent int, tax bigint, service_percent int,
        service bigint, total bigint, paid bigint, account text) on commit drop;

    create temp table sample_delivery (id bigint, key bigint, supplier_id int, day date, made timestamp, maker int,
        no text, order_id bigint, mode int) on commit drop;
    create temp table sample_delivery_line (id bigint, delivery_id bigint, item_id int, qty int, ordered int,
        cost bigint, order_line_id bigint) on commit drop;
    create temp table sample_return (id bigint, delivery_id bigint, supplier_id int, day date, made timestamp,
        maker int, no text, line_id bigint, item_id int, qty int, amount bigint, is_cancelled boolean) on commit drop;
    -- Payments of any kind; of is the supplier, the member or the agent.
    create temp table sample_payment (id bigint, of int, day date, made timestamp, maker int, no text) on commit drop;
    -- What a payment pays of one document, and what is then left of it.
    create temp table sample_part (payment_id bigint, document_id bigint, amount bigint, remaining bigint)
        on commit drop;
    create temp table sample_entry (id bigint, day date, made timestamp, maker int, no text, amount bigint,
        is_debit boolean, notes text) on commit drop;

    -- What goes on from month to month: credit of members, commissions not settled, goods on hand.
    create temp table sample_owed (invoice_id bigint primary key, member_id int, day date, due bigint) on commit drop;
    create temp table sample_earned (invoice_id bigint primary key, agent_id int, day date, percent numeric,
        commission bigint) on commit drop;
    create temp table sample_stock (item_id int primary key, on_hand bigint) on commit drop;
)";
} // namespace

QStringList Sample::tools() { return {functions, scratch}; }

QString Sample::freshNumbers()
{
    return "update sample_number set next_id = keytable.next_id from keytable where key_name = name";
}

QString Sample::drawn(const QString& key, const QString& table, const QString& condition)
{
    return QString(R"(
        update keytable set next_id = next_id + increment_by * draws.number, version = version + draws.number,
            updatedby = draws.maker, updatedtime = draws.made
        from (select count(*) as number, max(made) as made, (array_agg(maker order by made desc))[1] as maker
            from %2 where %3) draws
        where key_name = '%1' and draws.number > 0)")
        .arg(key, table, condition);
}
