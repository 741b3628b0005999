-- The tables of the former system, with what people had left in them over the years.
create table tblprs (nama varchar(100), alamat varchar(200), alamat2 varchar(200), telp varchar(50), npwp varchar(30),
                     tglpkp varchar(20));
create table tbljenisbrg (kode varchar(50), keterangan varchar(250));
create table tblsatuan (kode varchar(50), keterangan varchar(250));
create table tblsupplier (kode varchar(50), supplier varchar(300), kontak varchar(50), atsnama varchar(50),
                          alamat varchar(200), telp varchar(50), keterangan text);
create table tblmember (barkode varchar(50), nama varchar(100), alamat varchar(200), notlp varchar(50),
                        email varchar(100), diskon numeric(8,2));
create table tblagent (kode varchar(50), agent varchar(100), kontak varchar(50), alamat varchar(200),
                       email varchar(100), persen numeric(8,2), keterangan text);
create table tblrpelayan (kode varchar(50), nama varchar(100), keterangan text);
create table tblbarang (kode varchar(120), keterangan varchar(250), jenisbrg varchar(50), satuan varchar(50),
                        hargabeli numeric(18,2), hargajual numeric(18,2), hargajuallokal numeric(18,2),
                        hargajualluar numeric(18,2), tipeitem varchar(20), rakitan varchar(5), diskon numeric(8,2));
create table tblbeli (nonota varchar(60), tanggal date, kodesupplier varchar(50), jtempo date, status varchar(20),
                      pajak numeric(18,2), total numeric(18,2), sisa numeric(18,2), nosup varchar(50),
                      stpajak varchar(10), noreff varchar(50), noporder varchar(50), deposit numeric(18,2),
                      bank varchar(50), norekening varchar(50), tunai numeric(18,2), kredit numeric(18,2),
                      totaldiskon numeric(18,2));
create table tblbelidetail (nonota varchar(60), kodebrg varchar(120), jumlah numeric(12,2), cekhapus boolean,
                            nomorbaris integer, tmphargabeli numeric(18,2), hargabeli numeric(18,2),
                            satuan varchar(50), diskon numeric(18,2), hargajual numeric(18,2));
create table tblbayarbeli (idbeli varchar(60), kodemember varchar(50), tanggal date, kodetipebayar varchar(20),
                           jumlahbayar numeric(18,2), saldohutang numeric(18,2), nocek varchar(50), norek varchar(50));
create table tblbayarbelidetail (idbeli varchar(60), kodetipebeli varchar(20), nobaris integer, nonota varchar(60),
                                 status varchar(20), total numeric(18,2), sisa numeric(18,2), bank varchar(50),
                                 jumlah numeric(18,2), cekhapus boolean);

insert into tblprs values ('Warung D''Ibu', 'Jl. Mawar 1', 'Bandung', '022-123', '01.234', '1 May 1999');
insert into tbljenisbrg values ('PANAS', 'Makanan'), ('panas', 'Again in small letters'), (null, 'Nameless'), ('DINGIN', '');
insert into tblsatuan values ('BIJI', 'Pieces'), ('BH', 'Pieces'), ('KLG', null);
insert into tblsupplier values
  ('S01', 'Pasar D''Angelo', 'Budi', 'B. Santoso', 'Jl. Pasar 5', null, 'monday''s only'),
  ('s01', 'The same in small letters', null, null, null, null, null),
  ('S02', repeat('x', 250), '', '', '', '021-5550123 / 021-5550124', ''),
  ('', 'Without code', null, null, null, null, null);
insert into tblmember values ('M-1', 'Ana', 'Jl. 1', '0811', 'ana@example.com', 7.5), ('M-2', 'Tono', '', '', null, 250);
insert into tblagent values ('A-1', 'Guide', 'Made', 'Kuta', 'g@example.com', 12.5, 'by bus');
insert into tblrpelayan values ('W1', '', 'Ketut'), ('W2', null, null);
insert into tblbarang values
  ('I1', 'Nasi Goreng', 'PANAS', 'BIJI', 10000.50, 24000, 25000.49, 30000, 'INV', 'Y', 5),
  ('I2', 'Teh', 'NOWHERE', 'GELAS', 1000, 5000, 0, 0, 'JASA', 'N', 0),
  ('I3', '', null, null, null, null, null, null, null, null, null),
  ('i1', 'In small letters', 'PANAS', 'BIJI', 1, 1, 1, 1, 'INV', 'N', 0),
  ('I4', 'Golden plate', 'PANAS', 'BIJI', 99999999999, 1, 1, 1, 'INV', 'N', 0);
insert into tblbeli values
  ('B-1', '2019-03-01', 'S01', '2019-04-01', 'Lunas', 10, 110000, 0, 'INV/7', '1', 'R''1', '', 0, 'BCA', '77', 0, 0, 0),
  ('B-2', '2019-03-02', 's01', '2019-04-02', 'Belum', 0, 50000.60, 20000.60, null, '0', null, 'PO-NONE', 10000, null,
   null, 0, 0, 0),
  ('B-3', null, 'S01', '2019-05-01', null, null, 5000, 5000, null, null, null, 'PO-1', null, null, null, null, null, null),
  ('B-4', '2019-03-04', 'NOBODY', '2019-04-04', 'Belum', 0, 1, 1, null, null, null, null, 0, null, null, 0, 0, 0);
insert into tblbelidetail values
  ('B-1', 'i1', 4, false, 2, 0, 25000, 'BIJI', 0, 0), ('B-1', 'I2', 1, true, 1, 0, 1, 'BIJI', 0, 0),
  ('B-2', 'I1', 2.5, false, 1, 20000.24, 0, 'BIJI', 0, 0), ('B-2', 'GONE', 1, null, 2, 1, 1, 'BIJI', 0, 0),
  ('B-3', 'I2', 5, false, 1, 1000, null, null, null, null);
insert into tblbayarbeli values
  ('P-1', 'S01', '2019-03-20', 'Tunai', 60000, 0, null, null),
  ('P-2', 'S01', '2019-03-21', 'Giro', 20000, 20000.60, 'CK-9', 'a number of more than twenty letters'),
  ('P-3', 'NOBODY', '2019-03-22', 'Tunai', 5, 0, null, null);
insert into tblbayarbelidetail values
  ('P-1', 'B', 1, 'B-1', '', 110000, 50000, '', 60000, false), ('P-1', 'B', 2, 'B-1', '', 1, 1, '', 1, true),
  ('P-2', 'B', 1, 'B-2', '', 50000.60, 20000.60, 'BCA', 20000, false), ('P-2', 'B', 2, 'B-9', '', 1, 1, '', 1, false);
