-- A small restaurant's March of 2026, the same every time: two accounts of money, suppliers, members, agents,
-- waitresses and tables, six items, and of every kind of document a few that differ in what reports tell apart.

-- What does not matter for a row has a value without being told.
DO $$ DECLARE c record; BEGIN
    FOR c IN SELECT table_name, column_name, CASE
        WHEN column_name LIKE '%currency' THEN 'Rp' WHEN column_name = 'version' THEN '1'
        WHEN column_name LIKE '%acct_code' OR column_name = 'account_code' THEN '1-100'
        WHEN data_type = 'boolean' THEN 'false' WHEN data_type IN ('date', 'timestamp without time zone')
        THEN '2026-03-01' WHEN data_type LIKE 'character%' OR data_type = 'text' THEN '' ELSE '0' END AS filler
        FROM information_schema.columns WHERE table_schema = 'public' AND is_nullable = 'NO' AND column_default IS NULL
    LOOP EXECUTE format('ALTER TABLE %I ALTER %I SET DEFAULT %L', c.table_name, c.column_name, c.filler);
    END LOOP; END $$;

-- Master data, from the supplier to the menu.
TRUNCATE supplier, agent, member, employee, meja, item, jenis_item, satuan, bank CASCADE;
DELETE FROM access USING permissions, business WHERE permissions.id = permission_id AND business.id = business_id AND
    business.name <> 'Inventory';
DELETE FROM permissions USING business WHERE business.id = business_id AND business.name <> 'Inventory';
UPDATE users SET createdtime = '2026-01-05 09:00';
UPDATE access SET grant_type = 1 WHERE id = (SELECT max(id) FROM access);
INSERT INTO users (id, first_name, last_name, username, user_group_id) SELECT 101, 'Ann', 'Lee', 'ann', min(id) FROM
    user_group;
INSERT INTO users (id, first_name, last_name, username, user_group_id) SELECT 102, 'Ben', 'Oak', 'ben', min(id) FROM
    user_group;
INSERT INTO bank (id, kode, nama, account_type, active) VALUES (1, '1-100', 'Cash', 1, true), (2, '1-110', 'Bank', 1,
    true), (3, '1-300', 'Inventory', 8, true), (4, '4-100', 'Sales', 4, true), (5, '5-100', 'Cost of Sales', 9,
    true), (6, '6-100', 'Old account', 5, false);
INSERT INTO supplier (id, kode, nama, alamat, telp, email, norek, norek_atasnama) VALUES (1, 'S1', 'Market Hall',
    'Street 1', '11', 'hall@market.test', '123-4', 'Hall'), (2, 'S2', 'Fish Boat', 'Quay 7', '12', '', NULL, NULL);
INSERT INTO member (id, kode, nama, alamat, telp, expired_date, discount_percentage) VALUES (1, 'M1', 'Clara',
    'Hill 3', '21', '2026-12-31', 10), (2, 'M2', 'Dora', 'Hill 4', '22', '2026-02-28', 5), (3, 'M3', 'Emil',
    'Hill 5', '23', NULL, 0);
INSERT INTO agent (id, kode, nama, alamat, telp, email, commision_perc) VALUES (1, 'A1', 'Guide', 'Road 2', '31', '',
    10), (2, 'A2', 'Hotel', 'Road 3', '32', '', 5);
INSERT INTO employee (id, kode, nama, alamat, telp, email) VALUES (1, 'E1', 'Fay', 'Lane 1', '41', ''), (2, 'E2',
    'Gus', 'Lane 2', '42', '');
INSERT INTO meja (id, kode, nama) VALUES (1, 'T1', 'Window'), (2, 'T2', 'Garden');
INSERT INTO jenis_item (id, kode, nama) VALUES (1, 'FOOD', 'Food'), (2, 'DRINK', 'Drinks'), (3, 'OTHER', 'Other');
INSERT INTO satuan (id, kode, nama) VALUES (1, 'KG', 'Kilogram'), (2, 'PCS', 'Piece');
INSERT INTO item (id, kode, nama, item_type, is_group, jenis, satuan, harga_beli_amount, harga_jual_lokal_amount,
    inventory_acct_code, sales_acct_code, cost_of_sales_acct_code) VALUES (1, 'RICE', 'Rice', 1, false, 1, 1, 100,
    250, '1-300', '4-100', '5-100'), (2, 'FISH', 'Fish', 1, false, 1, 1, 400, 900, '1-300', '4-100', '5-100'), (3,
    'TEA', 'Tea', 1, false, 2, 2, 20, 80, '1-300', '4-100', '5-100'), (4, 'COLA', 'Cola', 1, false, 2, 2, 60, 50,
    '1-300', '4-100', '5-100'), (5, 'SET', 'Set menu', 2, true, 1, 2, 0, 1000, '1-300', '4-100', '5-100'), (6,
    'SONG', 'A song', 2, false, 3, 2, 0, 200, '1-300', '4-100', '5-100'), (7, 'SALT', 'Salt', 1, false, 3, 1, 10, 0,
    '1-300', '4-100', '5-100');
INSERT INTO grouped_item (parent_id, original_item_id, jumlah) VALUES (5, 1, 2), (5, 3, 1);

-- What was ordered, bought, sent back and counted.
INSERT INTO stok_awal (item_id, harga_amount, jumlah, createdtime) VALUES (1, 90, 50, '2026-02-01'), (2, 380, 5,
    '2026-02-01'), (3, 15, 200, '2026-02-01'), (4, 55, 24, '2026-02-01'), (7, 8, 40, '2025-12-01');
INSERT INTO purchase_order (id, no, purchase_date, ship_date, supplier_id, status_id, deposit_amount,
    sub_total_amount, grandtotal_amount, bank_id) VALUES (1, 'PO-1', '2026-03-01', '2026-03-04', 1, 3, 0, 1000, 1000,
    1), (2, 'PO-2', '2026-03-10', '2026-03-20', 2, 2, 200, 4000, 4000, 1), (3, 'PO-3', '2026-03-28', '2026-04-05', 1,
    1, 0, 2200, 2200, NULL), (4, 'PO-4', '2026-03-29', '2026-04-06', 1, 5, 0, 500, 500, NULL);
INSERT INTO purchase_order_detail (purchase_order_id, item_id, jumlah, price_amount, total_price_amount) VALUES (1,
    1, 10, 100, 1000), (2, 2, 10, 400, 4000), (3, 1, 20, 110, 2200), (4, 1, 5, 100, 500);
INSERT INTO acquisition (id, no, invoice_no, purchase_date, due_date, supplier_id, po_id, apply_to_po,
    sub_total_amount, discount_amount, tax_amount, grandtotal_amount, amount_paid_amount, other_payment_amount,
    net_due_amount, status, bank_id, createdby) VALUES (1, 'NB-1', 'INV-11', '2026-01-15', '2026-01-30', 1, NULL,
    false, 800, 0, 0, 800, 0, 0, 800, 2, 1, 101), (2, 'NB-2', 'INV-12', '2026-03-04', '2026-03-04', 1, 1, true, 1000,
    50, 95, 1045, 1045, 0, 0, 1, 1, 101), (3, 'NB-3', '', '2026-03-12', '2026-04-11', 2, 2, true, 2460, 0, 0, 2460,
    460, 500, 1500, 3, 1, 102), (4, 'NB-4', 'INV-14', '2026-03-12', '2026-03-26', 1, NULL, false, 1320, 0, 0, 1320,
    0, 0, 1320, 2, 2, 102), (5, 'NB-5', 'INV-15', '2026-04-02', '2026-05-02', 1, NULL, false, 120, 0, 0, 120, 0, 0,
    120, 2, 1, 101);
INSERT INTO acquisition_detail (id, acquisition_id, item_id, qty, qty_ordered, po_detail_id, price_each_amount,
    discount_amount, total_price_amount, discount_percentage) VALUES (1, 1, 1, 8, 0, NULL, 100, 0, 800, 0), (2, 2, 1,
    10, 10, 1, 100, 0, 1000, 0), (3, 3, 2, 6, 10, 2, 410, 0, 2460, 0), (4, 4, 1, 10, 0, NULL, 120, 120, 1080, 10),
    (5, 4, 4, 4, 0, NULL, 60, 0, 240, 0), (6, 5, 1, 1, 0, NULL, 120, 0, 120, 0);
INSERT INTO credit_note (id, no, credit_note_date, supplier_id, apply_to_invoice, acquisition_id, sub_total_amount,
    grandtotal_amount, amount_paid_amount, status, bank_id, note, createdby) VALUES (1, 'NR-1', '2026-03-14', 2,
    true, 3, 410, 410, 300, 3, 1, 'Not fresh', 101), (2, 'NR-2', '2026-03-16', 1, false, NULL, 60, 60, 60, 1, 1,
    NULL, 102), (3, 'NR-3', '2026-03-17', 1, false, NULL, 100, 100, 0, 4, 1, 'By mistake', 102);
INSERT INTO credit_note_detail (id, credit_note_id, item_id, qty, qty_returned, acquisition_detail_id,
    price_each_amount, total_price_amount) VALUES (1, 1, 2, 6, 1, 3, 410, 410), (2, 2, 4, 0, 1, NULL, 60, 60), (3, 3,
    1, 0, 1, NULL, 100, 100);
INSERT INTO payment (id, no, payment_type, supplier_id, payment_date, grandtotal_amount, bank_id, note, createdby)
    VALUES (1, 'TPH-1', 1, 2, '2026-03-20', 200, 1, NULL, 101), (2, 'TPH-2', 2, 1, '2026-03-25', 75, 2, 'Ice', 102);
INSERT INTO payment_invoice (payment_id, acquisition_id, amount_paid_amount, amount_due_amount) VALUES (1, 3, 200,
    1500);
INSERT INTO payment_expense (payment_id, item_id, qty, unit_price_amount, amount_amount) VALUES (2, 6, 1, 75, 75);
INSERT INTO stock_take (id, item_id, tanggal, qty, qty_before, qty_adj, reason, source_acct_code, createdby) VALUES
    (1, 3, '2026-03-10', 120, 198, -78, 'Broken', '5-100', 101), (2, 4, '2026-03-20', -3, 27, -30, 'Loss', '5-100',
    102), (3, 2, '2026-03-25', 7, 6, 1, 'Found', '5-100', NULL);
INSERT INTO item_history (item_id, trans_date, qty_in, qty_out, unit_price_amount, tran_type, tran_id, no) SELECT
    item_id, purchase_date, qty, 0, price_each_amount, 1, line.id, no FROM acquisition_detail line JOIN acquisition
    ON acquisition.id = acquisition_id UNION ALL SELECT item_id, credit_note_date, 0, qty_returned,
    price_each_amount, 4, line.id, no FROM credit_note_detail line JOIN credit_note ON credit_note.id =
    credit_note_id UNION ALL SELECT item_id, tanggal, greatest(qty_adj, 0), greatest(-qty_adj, 0), 1, 3, id, NULL
    FROM stock_take;

-- What was sold.
INSERT INTO invoice (id, no, invoice_date, invoice_type, status, sub_total_amount, disc_perc, discount_amount,
    tax_amount, service_amount, grandtotal_amount, amount_paid_amount, other_payment_amount, net_due_amount,
    member_id, agent_id, employee_id, acct_code, createdby, createdtime) VALUES (1, 'TRD-1', '2026-02-20', 'TRD', 2,
    900, 0, 0, 90, 45, 1035, 0, 0, 1035, 1, NULL, 1, '1-100', 101, '2026-02-20 12:30'), (2, 'TRD-2', '2026-03-02',
    'TRD', 1, 2150, 0, 0, 215, 0, 2365, 2400, 0, -35, NULL, 1, 1, '1-100', 101, '2026-03-02 19:10'), (3, 'TRF-1',
    '2026-03-02', 'TRF', 1, 160, 0, 0, 0, 0, 160, 0, 160, 0, NULL, 2, 2, '1-110', 102, '2026-03-02 12:05'), (4,
    'TRP-1', '2026-03-07', 'TRP', 3, 1800, 10, 180, 0, 0, 1620, 620, 0, 1000, 1, NULL, NULL, '1-100', 102,
    '2026-03-07 18:40'), (5, 'TRD-3', '2026-03-14', 'TRD', 1, 1000, 50, 500, 50, 0, 550, 550, 0, 0, 2, NULL, 2,
    '1-100', 101, '2026-03-14 20:00'), (6, 'TRF-2', '2026-03-21', 'TRF', 1, 300, 0, 0, 0, 0, 300, 300, 0, 0, NULL, 1,
    1, '1-100', 101, '2026-03-21 11:59'), (7, 'TRD-4', '2026-03-31', 'TRD', 2, 250, 0, 0, 0, 0, 250, 0, 0, 250, 3,
    NULL, 1, '1-100', 102, '2026-03-31 21:15');
INSERT INTO invoice_detail (invoice_id, item_id, qty, price_each_amount, discount_amount, total_amount) VALUES (1, 2,
    1, 900, 0, 900), (2, 1, 5, 250, 0, 1250), (2, 2, 1, 900, 0, 900), (3, 3, 2, 80, 0, 160), (4, 2, 2, 900, 0, 1800),
    (5, 5, 1, 1000, 0, 1000), (6, 4, 2, 50, 0, 100), (6, 6, 1, 200, 0, 200), (7, 1, 1, 250, 0, 250);
INSERT INTO makan_ditempat (id, status, meja_id, pemesan, tgl, member_id) VALUES (1, 6, 1, 'Clara', '2026-02-20', 1),
    (2, 6, 1, 'Hugo', '2026-03-02', NULL), (3, 6, 2, 'Dora', '2026-03-14', 2), (4, 6, 2, 'Emil', '2026-03-31', 3);
INSERT INTO invoice_makan_ditempat (invoice_id, makan_ditempat_id, employee_id, agent_id) VALUES (1, 1, 1, NULL), (2,
    2, 1, 1), (5, 3, 2, NULL), (7, 4, 1, NULL);
INSERT INTO bawa_pulang (id, status, pemesan, tgl, member_id) VALUES (1, 6, 'Clara', '2026-03-07', 1);
INSERT INTO invoice_bawa_pulang (invoice_id, bawa_pulang_id, member_id) VALUES (4, 1, 1);
INSERT INTO invoice_fast_food (invoice_id, employee_id, agent_id) VALUES (3, 2, 2), (6, 1, 1);

-- Rows that a test adds have numbers of their own.
SELECT setval(oid::regclass, 1000) FROM pg_class WHERE relkind = 'S';

-- Money besides the sales, and what should not have happened to some of them.
INSERT INTO invoice (id, no, invoice_date, invoice_type, status, sub_total_amount, grandtotal_amount,
    amount_paid_amount, pemesan, acct_code, createdby, createdtime, updatedby, updatedtime, version) VALUES (8,
    '03260008', '2026-03-28', 'TRD', 1, 400, 400, 400, 'Ida', '1-100', 101, '2026-03-28 23:50', 102,
    '2026-03-29 00:20', 3), (9, '03260011', '2026-03-28', 'TRD', 1, 100, 100, 100, 'Jon', '1-100', 102,
    '2026-03-31 10:00', NULL, NULL, 1);
INSERT INTO makan_ditempat (id, status, meja_id, pemesan, tgl, createdby, createdtime, updatedby, updatedtime) VALUES
    (5, 6, 1, 'Ida', '2026-03-28', 101, '2026-03-28 20:00', 101, '2026-03-28 23:55'), (6, 6, 2, 'Kim', '2026-03-18',
    101, '2026-03-18 19:00', 102, '2026-03-18 21:30');
INSERT INTO invoice_makan_ditempat (invoice_id, makan_ditempat_id) VALUES (8, 5);
INSERT INTO makan_ditempat_detail (makan_ditempat_id, item_id, qty, status, price_each_amount, total_amount) VALUES
    (6, 1, 2, 1, 250, 500), (6, 3, 1, 1, 80, 80), (2, 1, 6, 1, 250, 1500), (2, 2, 1, 1, 900, 900);
INSERT INTO piutang (id, no, payment_type, member_id, payment_date, grandtotal_amount, bank_id, createdby,
    createdtime) VALUES (1, 'PIU-1', 1, 2, '2026-03-20', 160, 1, 101, '2026-03-20 15:00'), (2, 'PIU-2', 2, 1,
    '2026-03-31', 90, 2, 102, '2026-03-31 16:00');
INSERT INTO piutang_detail (piutang_id, invoice_id, amount_paid_amount) VALUES (1, 3, 160), (2, 6, 10), (2, 999, 90);
INSERT INTO komisi_agen (id, no, agent_id, payment_date, grandtotal_amount, amount_paid_amount, bank_id, noref,
    createdby) VALUES (1, 'KAG-1', 1, '2026-03-31', 237, 250, 1, 'R7', 102);
INSERT INTO komisi_agen_detail (komisi_agen_id, invoice_id, commision_perc, commision_amount) VALUES (1, 2, 10, 237);
INSERT INTO cash_flow (trans_no, trans_date, account_code, trans_type, debet_amount, credit_amount, notes, createdby)
    VALUES ('KK-1', '2026-03-05', '1-100', 'DEBET', 1000, 0, 'Change for the drawer', 101), ('KK-2', '2026-03-31',
    '1-100', 'CREDIT', 0, 60, 'Flowers', 102);
INSERT INTO accounting_trans (trans_no, trans_date, from_account_id, to_account_id, amount_amount, createdby) VALUES
    ('TR-1', '2026-03-31', 1, 2, 500, 101);
