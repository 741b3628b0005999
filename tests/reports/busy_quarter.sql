-- A busy quarter on top of the month: documents of any status and kind, and counts of the storeroom in between.
INSERT INTO acquisition (id, no, purchase_date, due_date, supplier_id, grandtotal_amount, amount_paid_amount,
    other_payment_amount, net_due_amount, status, bank_id) SELECT id, 'B' || id, day, day + due, supplier, total,
    paid, later, total - paid - later, CASE WHEN paid + later >= total THEN 1 WHEN paid + later > 0 THEN 3 ELSE 2
    END, nullif(bank, 0) FROM (SELECT 100 + i AS id, date '2026-02-01' + (random() * 80)::int AS day, (random() *
    60)::int AS due, 1 + (random() * 1)::int AS supplier, 100 + (random() * 900)::int AS total, ((random() * 2)::int
    * 100) AS paid, (random() * 3)::int * 50 AS later, (random() * 2)::int AS bank FROM generate_series(1, 80) i)
    made;
INSERT INTO acquisition_detail (acquisition_id, item_id, qty, price_each_amount, total_price_amount, po_detail_id)
    SELECT 101 + i % 80, 1 + (random() * 3)::int, (random() * 20)::int, 10, 10, CASE WHEN i % 9 = 0 THEN 2 END FROM
    generate_series(1, 250) i;
INSERT INTO invoice (id, no, invoice_date, createdby, invoice_type, status, grandtotal_amount, amount_paid_amount,
    other_payment_amount) SELECT id, 'I' || id, day, CASE WHEN id % 7 > 0 THEN 101 END, kind, CASE WHEN paid >= total
    THEN 1 WHEN paid > 0 THEN 3 ELSE 2 END, total, paid, 0 FROM (SELECT 100 + i AS id, date '2026-02-01' + (random()
    * 80)::int AS day, (ARRAY['TRD', 'TRF', 'TRP'])[1 + i % 3] AS kind, 100 + (random() * 400)::int AS total,
    (random() * 3)::int * 100 AS paid FROM generate_series(1, 300) i) made;
INSERT INTO invoice_detail (invoice_id, item_id, qty) SELECT 101 + i % 300, 1 + (random() * 6)::int, (random() *
    4)::int FROM generate_series(1, 700) i;
INSERT INTO makan_ditempat (id, status, meja_id, tgl, member_id) SELECT id, 6, 1, invoice_date, nullif((random() *
    3)::int, 0) FROM invoice WHERE id > 100 AND invoice_type = 'TRD';
INSERT INTO invoice_makan_ditempat (invoice_id, makan_ditempat_id) SELECT id, id FROM invoice WHERE id > 100 AND
    invoice_type = 'TRD';
INSERT INTO bawa_pulang (id, status, tgl) SELECT id, 6, invoice_date FROM invoice WHERE id > 100 AND invoice_type =
    'TRP';
INSERT INTO invoice_bawa_pulang (invoice_id, bawa_pulang_id, member_id) SELECT id, id, nullif((random() * 3)::int, 0)
    FROM invoice WHERE id > 100 AND invoice_type = 'TRP';
INSERT INTO invoice_fast_food (invoice_id, member_id) SELECT id, nullif((random() * 3)::int, 0) FROM invoice WHERE id
    > 100 AND invoice_type = 'TRF';
INSERT INTO credit_note (id, no, credit_note_date, supplier_id, status, grandtotal_amount, bank_id) SELECT 100 + i,
    'R' || i, date '2026-02-01' + (random() * 80)::int, 1 + i % 2, 1 + (random() * 3)::int, 10, 1 FROM
    generate_series(1, 40) i;
INSERT INTO credit_note_detail (credit_note_id, item_id, qty_returned, total_price_amount) SELECT 101 + i % 40, 1 +
    (random() * 3)::int, (random() * 3)::int, 10 FROM generate_series(1, 60) i;
INSERT INTO stock_take (item_id, tanggal, qty, qty_adj, reason, source_acct_code, createdby) SELECT 1 + (random() *
    3)::int, date '2026-02-01' + (random() * 80)::int, (random() * 200)::int - 20, 1, 'Loss', '5-100', 101 FROM
    generate_series(1, 12) i;
INSERT INTO purchase_order (id, no, purchase_date, ship_date, supplier_id, status_id) SELECT 100 + i, 'O' || i,
    '2026-03-01', '2026-03-09', 1 + i % 2, 1 + (random() * 5)::int FROM generate_series(1, 20) i;
INSERT INTO purchase_order_detail (purchase_order_id, item_id, jumlah) SELECT 101 + i % 20, 1, 5 FROM
    generate_series(1, 30) i;
INSERT INTO payment (id, no, payment_type, supplier_id, payment_date, grandtotal_amount, bank_id) SELECT 100 + i, 'P'
    || i, 1 + i % 3, 1 + i % 2, date '2026-02-01' + (random() * 80)::int, (random() * 500)::int, nullif(i % 3, 0)
    FROM generate_series(1, 30) i;
