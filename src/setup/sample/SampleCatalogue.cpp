#include "setup/sample/SampleStatements.h"

namespace
{
const char accounts[] = R"(
    insert into bank (kode, nama, account_type, active, createdtime, version)
    select code, name, type, true, date '{begin}' - 1 + time '09:00', 1
    from (values ('1010', 'Cash on Hand', 1), ('1020', 'Checking Account', 1), ('1030', 'Savings Account', 1),
        ('1100', 'Account Receivable', 3), ('1200', 'Inventory', 8), ('2000', 'Accounts Payable', 2),
        ('4050', 'Sales of Materials', 4), ('5000', 'Cost of Sales', 9), ('6100', 'Wages', 5),
        ('6200', 'Rent and Energy', 5), ('6650', 'Commisions and Fees Expense', 5)) row (code, name, type)
    on conflict do nothing
)";

// The program says everywhere that nothing of this is real.
const char marks[] = R"(
    update data_perusahaan set nama_perusahaan = 'Sample Restaurant', version = version + 1;
    insert into appconfig (appkey, is_json, appvalue, description, createdtime, version)
    values ('{samplekey}', false, '{today}', 'This restaurant was made up', date '{today}', 1)
    on conflict (appkey) do update set appvalue = excluded.appvalue, version = appconfig.version + 1
)";

const char people[] = R"(
    insert into supplier (kode, nama, alamat, telp, email, createdtime, version)
    select 'SS' || lpad(i::text, 2, '0'), (array['Market Hall', 'Fish Quay', 'Green Valley', 'Hill Dairy',
            'Old Mill', 'Spice House', 'River Farm', 'Corner Butcher', 'Ice and Drinks', 'Bakery Row', 'Harbour Store',
            'Palm Oil Yard'])[i], 'Supply Street ' || i, '021-5551' || lpad(i::text, 3, '0'), '',
        date '{begin}' - 1 + time '09:00', 1
    from generate_series(1, 12) i on conflict do nothing;

    -- Two of three have a discount; of the cards one in five has run out on the way.
    insert into member (kode, nama, alamat, telp, email, expired_date, discount_percentage, createdtime, version)
    select 'SM' || lpad(i::text, 3, '0'),
        (array['Ayu', 'Bayu', 'Citra', 'Dimas', 'Eka', 'Fajar', 'Gita', 'Hadi', 'Indah', 'Joko', 'Kartika',
            'Lestari'])[1 + i % 12] || ' ' || (array['Wijaya', 'Santoso', 'Hartono', 'Kusuma', 'Pratama', 'Saputra',
            'Nugroho', 'Halim', 'Utami', 'Setiawan'])[1 + i / 12], 'Garden Lane ' || i,
        '021-5552' || lpad(i::text, 3, '0'), '',
        case when i % 5 = 0 then date '{begin}' + (date '{today}' - date '{begin}') / 2
             else date '{today}' + 200 + i end,
        (array[0, 5, 10])[1 + i % 3], date '{begin}' - 1 + time '09:00', 1
    from generate_series(0, 119) i on conflict do nothing;

    insert into agent (kode, nama, alamat, telp, email, commision_perc, createdtime, version)
    select 'SA' || lpad(i::text, 2, '0'), (array['City Tours', 'Harbour Hotel', 'Blue Taxi', 'Island Guides',
            'Palm Hotel', 'Night Rides', 'Sunrise Travel', 'Old Town Inn'])[i], 'Station Road ' || i,
        '021-5553' || lpad(i::text, 3, '0'), '', (array[5, 10])[1 + i % 2], date '{begin}' - 1 + time '09:00', 1
    from generate_series(1, 8) i on conflict do nothing;

    insert into employee (kode, nama, alamat, telp, email, createdtime, version)
    select 'SE' || lpad(i::text, 2, '0'), (array['Ani', 'Budi', 'Cahya', 'Dian', 'Endang', 'Farid', 'Galuh', 'Hesti',
            'Iwan', 'Jati', 'Kirana', 'Lukas'])[i], 'Back Lane ' || i, '021-5554' || lpad(i::text, 3, '0'), '',
        date '{begin}' - 1 + time '09:00', 1
    from generate_series(1, 12) i on conflict do nothing;

    -- No password has this mark: nobody logs in as a sample cashier before the administrator enters one.
    insert into users (first_name, last_name, username, password, user_group_id, currency, createdtime, version)
    select name, 'Sample', lower('sample-' || name), '-',
        coalesce((select id from user_group where name = 'kasir'), (select max(id) from user_group)), '{currency}',
        date '{begin}' - 1 + time '09:00', 1
    from unnest(array['Maya', 'Nanda', 'Omar']) name
    where not exists (select from users where username = lower('sample-' || name));

    insert into meja (kode, nama, createdtime, version)
    select 's' || lpad(i::text, 2, '0'), (array['Window', 'Garden', 'Terrace', 'Hall'])[1 + (i - 1) / 10] || ' ' ||
        1 + (i - 1) % 10, date '{begin}' - 1 + time '09:00', 1
    from generate_series(1, 40) i on conflict do nothing
)";

// Three hundred things to eat and drink in twenty types: the last four types are goods that are bought and counted.
const char menu[] = R"(
    insert into jenis_item (kode, nama, createdtime, version)
    select 'st' || lpad(i::text, 2, '0'), (array['Rice', 'Noodles', 'Soup', 'Satay', 'Grill', 'Fish', 'Prawns',
            'Chicken', 'Beef', 'Vegetables', 'Tofu', 'Egg', 'Salad', 'Dessert', 'Coffee', 'Tea', 'Juice',
            'Lemonade', 'Crackers', 'Cake', 'Ingredients'])[i], date '{begin}' - 1 + time '09:00', 1
    from generate_series(1, 21) i on conflict do nothing;

    insert into satuan (kode, nama, createdtime, version)
    select code, name, date '{begin}' - 1 + time '09:00', 1
    from (values ('splate', 'Plate'), ('sbottle', 'Bottle'), ('skilo', 'Kilo')) row (code, name)
    where not exists (select from satuan where satuan.nama = row.name) on conflict do nothing;

    insert into item (kode, item_type, is_group, nama, jenis, satuan, harga_beli_currency, harga_beli_amount,
        harga_jual_lokal_currency, harga_jual_lokal_amount, sales_acct_code, inventory_acct_code,
        cost_of_sales_acct_code, createdtime, version)
    select 's' || lpad(i::text, 3, '0'), case when type > 16 then 1 else 2 end, type <= 16 and i % 12 = 0,
        (array['Village', 'Spicy', 'Garlic', 'Pepper', 'Sweet', 'Smoked', 'Crispy', 'Coconut', 'Ginger', 'Lemongrass',
            'Chili', 'House', 'Festive', 'Morning', 'Small'])[1 + i % 15] || ' ' || types.nama,
        types.id, units.id, '{currency}', {unit} * greatest(1, price / 3), '{currency}', {unit} * price, '4050',
        '1200', '5000', date '{begin}' - 1 + time '09:00', 1
    from (select i, 1 + i / 15 as type, 3 + pg_temp.chance(i, 900) % 22 as price from generate_series(0, 299) i) made
    join jenis_item types on types.kode = 'st' || lpad(type::text, 2, '0')
    join satuan units on units.nama = case when type > 16 then 'Bottle' else 'Plate' end
    on conflict do nothing;

    insert into item (kode, item_type, is_group, nama, jenis, satuan, harga_beli_currency, harga_beli_amount,
        harga_jual_lokal_currency, harga_jual_lokal_amount, sales_acct_code, inventory_acct_code,
        cost_of_sales_acct_code, createdtime, version)
    select 'sk' || lpad(i::text, 2, '0'), 1, false, (array['Rice, raw', 'Flour', 'Sugar', 'Salt', 'Cooking oil',
            'Chicken, raw', 'Beef, raw', 'Fish, raw', 'Prawns, raw', 'Eggs', 'Tofu, raw', 'Cabbage', 'Carrots',
            'Onions', 'Chili, raw', 'Coconut milk', 'Coffee beans', 'Tea leaves', 'Limes', 'Ice'])[i],
        types.id, units.id, '{currency}', {unit} * (1 + i % 7), '{currency}', {unit} * (2 + i % 7), '4050', '1200',
        '5000', date '{begin}' - 1 + time '09:00', 1
    from generate_series(1, 20) i join jenis_item types on types.kode = 'st21'
    join satuan units on units.nama = 'Kilo'
    on conflict do nothing;

    insert into grouped_item (parent_id, original_item_id, jumlah, createdtime, version)
    select parent.id, part.id, 1 + nth % 2, date '{begin}' - 1 + time '09:00', 1
    from item parent cross join generate_series(0, 1) nth
    join item part on part.kode = 'sk' || lpad((1 + (parent.id + nth * 7) % 20)::text, 2, '0')
    where parent.kode ~ '^s\d{3}$' and parent.is_group
        and not exists (select from grouped_item there where there.parent_id = parent.id)
    order by parent.id, nth;

    -- Enough of what is bought for the first weeks.
    insert into stok_awal (item_id, harga_currency, harga_amount, jumlah, createdtime, version)
    select id, harga_beli_currency, harga_beli_amount, case when item_type = 1 then 12 * {perday} + 30 else 0 end,
        date '{begin}' - 1 + time '09:00', 1
    from item where kode ~ '^s(k\d\d|\d{3})$' order by id
    on conflict do nothing
)";

const char lists[] = R"(
    -- Things are ordered by how well they sell, eight ranks a course: a party's lines take one of each course, so that
    -- no dish stands on an order twice.
    create temp table sample_menu on commit drop as
    select row_number() over (order by pg_temp.chance(id, 901), id) - 1 as rank, id as item_id,
        harga_jual_lokal_amount::bigint as price
    from item where kode ~ '^s\d{3}$';
    create index on sample_menu (rank);

    create temp table sample_supplier on commit drop as
    select id, row_number() over (order by kode) - 1 as nth from supplier where kode ~ '^SS\d\d$';

    create temp table sample_goods on commit drop as
    select item.id as item_id, sample_supplier.id as supplier_id, harga_beli_amount::bigint as cost,
        item.kode like 'sk%' as is_ingredient
    from (select *, row_number() over (order by kode) as nth from item
        where item_type = 1 and kode ~ '^s(k\d\d|\d{3})$') item
    join sample_supplier on sample_supplier.nth = item.nth % (select count(*) from sample_supplier);
    insert into sample_stock select item_id, jumlah from sample_goods join stok_awal using (item_id);

    create temp table sample_house on commit drop as
    select (select count(*) / 8 from sample_menu)::int as courses,
        (select array_agg(id order by kode) from member where kode ~ '^SM\d{3}$') as members,
        (select array_agg(id order by kode) from agent where kode ~ '^SA\d\d$') as agents,
        (select array_agg(id order by kode) from employee where kode ~ '^SE\d\d$') as employees,
        (select array_agg(id order by id) from meja where kode ~ '^s\d+$') as tables,
        (select array_agg(id order by id) from users where username like 'sample-%') as cashiers,
        (select min(id) from users) as owner,
        array['', '', '', 'Mrs. Lim', 'Mr. Tan', 'Family Sari', 'Office lunch', 'Rina', 'Agus', 'Wedding guests',
            'Table by the window', 'Mrs. Dewi', 'Mr. Hasan', 'Class of 99', 'Yanti', 'Two friends'] as guests,
        (select id from bank where kode = '1010') as cash, (select id from bank where kode = '1020') as checking,
        (select id from bank where kode = '2000') as payable;
    analyze sample_menu, sample_supplier, sample_goods
)";
} // namespace

QStringList Sample::catalogue() { return {marks, accounts, people, menu}; }

QStringList Sample::choices() { return {lists}; }
