<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="id_ID">
<context>
    <name>AccessCheck</name>
    <message>
        <source>Error</source>
        <translation>Kesalahan</translation>
    </message>
    <message>
        <source>You don&apos;t have access.<byte value="xd"/>
Required permission: %1</source>
        <translation>Anda tidak punya akses.<byte value="xd"/>
Hak akses yang dibutuhkan: %1</translation>
    </message>
</context>
<context>
    <name>AccountType</name>
    <message>
        <source>Cash</source>
        <translation>Tunai</translation>
    </message>
    <message>
        <source>Accounts Payable</source>
        <translation>Utang Usaha</translation>
    </message>
    <message>
        <source>Accounts Receiveable</source>
        <translation>Piutang Usaha</translation>
    </message>
    <message>
        <source>Income</source>
        <translation>Pendapatan</translation>
    </message>
    <message>
        <source>Expense</source>
        <translation>Beban</translation>
    </message>
    <message>
        <source>Assets</source>
        <translation>Aset</translation>
    </message>
    <message>
        <source>Other Current Liabilities</source>
        <translation>Kewajiban Lancar Lainnya</translation>
    </message>
    <message>
        <source>Inventory</source>
        <translation>Persediaan</translation>
    </message>
    <message>
        <source>Cost of Sales</source>
        <translation>Harga Pokok Penjualan</translation>
    </message>
</context>
<context>
    <name>AgentTextBox</name>
    <message>
        <source>Code</source>
        <translation>Kode</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nama</translation>
    </message>
</context>
<context>
    <name>AppCodeMigration11</name>
    <message>
        <source>update kode column to varchar(20)</source>
        <translation>ubah kolom kode menjadi varchar(20)</translation>
    </message>
</context>
<context>
    <name>AppDBUpdateConclusion</name>
    <message>
        <source>The update is waiting for the database. Is the program still open on another workstation? Please close it there.</source>
        <translation>Pembaruan menunggu basis data. Apakah program masih terbuka di komputer lain? Tutuplah di sana.</translation>
    </message>
</context>
<context>
    <name>AppDBUpdaterWizard</name>
    <message>
        <source>ZavelPOS DB Updater Wizard</source>
        <translation>Panduan Pembaruan DB ZavelPOS</translation>
    </message>
</context>
<context>
    <name>AppDbUpdateInfo</name>
    <message>
        <source>Update DB</source>
        <translation>Perbarui DB</translation>
    </message>
    <message>
        <source>This wizard will help you update ZavelPOS database on your computer. IMPORTANT: before updating, please back up your database. Please click Next to update the database or click Cancel then backup your database.</source>
        <translation>Panduan ini membantu memperbarui basis data ZavelPOS di komputer Anda. PENTING: sebelum memperbarui, cadangkan basis data Anda. Klik Lanjut untuk memperbarui basis data, atau klik Batal lalu cadangkan basis data Anda.</translation>
    </message>
</context>
<context>
    <name>AppDocumentMapper</name>
    <message>
        <source>error: transaction failed</source>
        <translation>kesalahan: transaksi gagal</translation>
    </message>
</context>
<context>
    <name>AppInstaller</name>
    <message>
        <source>App Data</source>
        <translation>Data Aplikasi</translation>
    </message>
</context>
<context>
    <name>AppInstallerWizard</name>
    <message>
        <source>ZavelPOS Installer Wizard</source>
        <translation>Panduan Pemasangan ZavelPOS</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>Please wait until the installation completed.</source>
        <translation>Tunggu sampai pemasangan selesai.</translation>
    </message>
</context>
<context>
    <name>AppLinePrinter</name>
    <message>
        <source>Error Opening Printer:</source>
        <translation>Kesalahan Membuka Printer:</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Kesalahan</translation>
    </message>
</context>
<context>
    <name>AppLinesTab</name>
    <message>
        <source>%1 Items</source>
        <translation>%1 Barang</translation>
    </message>
    <message>
        <source>Question</source>
        <translation>Pertanyaan</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this item: %1 ?</source>
        <translation>Yakin ingin menghapus barang ini: %1 ?</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Hapus</translation>
    </message>
</context>
<context>
    <name>AppListTab</name>
    <message>
        <source>Delete</source>
        <translation>Hapus</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Kesalahan</translation>
    </message>
    <message>
        <source>Can not find entity with id: %1</source>
        <translation>Data dengan id: %1 tidak ditemukan</translation>
    </message>
    <message>
        <source>%1 Items</source>
        <translation>%1 Barang</translation>
    </message>
    <message>
        <source>It is saved. Only the list could not be read again.</source>
        <translation>Sudah disimpan. Hanya daftarnya yang tidak bisa dibaca lagi.</translation>
    </message>
    <message>
        <source>%1 so far, reading on (Esc stops)</source>
        <translation>%1 sejauh ini, masih membaca (Esc menghentikan)</translation>
    </message>
    <message>
        <source>%1, back to %2; earlier ones are left out</source>
        <translation>%1, mundur sampai %2; yang lebih lama tidak ditampilkan</translation>
    </message>
</context>
<context>
    <name>AppNumberEdit</name>
    <message>
        <source>%1 cannot be stored, please enter another number</source>
        <translation>%1 tidak dapat disimpan, masukkan angka lain</translation>
    </message>
</context>
<context>
    <name>BackupFile</name>
    <message>
        <source>Save File</source>
        <translation>Simpan Berkas</translation>
    </message>
    <message>
        <source>Backup File (*.bak)</source>
        <translation>Berkas Cadangan (*.bak)</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>Buka Berkas</translation>
    </message>
    <message>
        <source>There is no folder %1. Please choose another one for the backup.</source>
        <translation>Folder %1 tidak ada. Pilih folder lain untuk cadangan.</translation>
    </message>
    <message>
        <source>%1 is no file. Please enter the name of a file for the backup.</source>
        <translation>%1 bukan berkas. Isi nama berkas untuk cadangan.</translation>
    </message>
    <message>
        <source>The backup can not be written to the folder %1: %2. Please choose another one.</source>
        <translation>Cadangan tidak dapat ditulis ke folder %1: %2. Pilih folder lain.</translation>
    </message>
    <message>
        <source>The backup is complete: %1, %2.</source>
        <translation>Pencadangan selesai: %1, %2.</translation>
    </message>
    <message>
        <source>The backup failed, the reason stands above. No new backup was written.</source>
        <translation>Pencadangan gagal, sebabnya tertulis di atas. Tidak ada cadangan baru yang ditulis.</translation>
    </message>
    <message>
        <source>The earlier one lies in %1.</source>
        <translation>Yang terdahulu ada di %1.</translation>
    </message>
    <message>
        <source>The earlier one in %1 is as it was.</source>
        <translation>Yang terdahulu di %1 tetap seperti semula.</translation>
    </message>
</context>
<context>
    <name>BankTextBox</name>
    <message>
        <source>Code</source>
        <translation>Kode</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nama</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Jenis</translation>
    </message>
</context>
<context>
    <name>BillDifference</name>
    <message>
        <source>%1 %2 (%3)</source>
        <translation>%1 %2 (%3)</translation>
    </message>
    <message>
        <source>%1; %2 in all</source>
        <translation>%1; seluruhnya %2</translation>
    </message>
    <message>
        <source>Ordered, but on no bill: %1</source>
        <translation>Dipesan, tetapi tidak ada di tagihan: %1</translation>
    </message>
    <message>
        <source>On the bill, but taken back: %1</source>
        <translation>Ada di tagihan, tetapi ditarik kembali: %1</translation>
    </message>
</context>
<context>
    <name>BillText</name>
    <message>
        <source>Sub total</source>
        <translation>Sub total</translation>
    </message>
    <message>
        <source>Tax</source>
        <translation>Pajak</translation>
    </message>
    <message>
        <source>Discount</source>
        <translation>Diskon</translation>
    </message>
    <message>
        <source>Services</source>
        <translation>Servis</translation>
    </message>
    <message>
        <source>Grand Total</source>
        <translation>Total Akhir</translation>
    </message>
    <message>
        <source>Amount Paid</source>
        <translation>Dibayar</translation>
    </message>
    <message>
        <source>Credit</source>
        <translation>Kredit</translation>
    </message>
    <message>
        <source>Telp : </source>
        <translation>Telp : </translation>
    </message>
    <message>
        <source>Less </source>
        <translation>Kurang </translation>
    </message>
    <message>
        <source>Change </source>
        <translation>Kembali </translation>
    </message>
</context>
<context>
    <name>BusinessAccountingTransaction</name>
    <message>
        <source>Create Accounting Trans</source>
        <translation>Buat Transaksi Akuntansi</translation>
    </message>
    <message>
        <source>Update Accounting Trans</source>
        <translation>Perbarui Transaksi Akuntansi</translation>
    </message>
    <message>
        <source>Delete Accounting Trans</source>
        <translation>Hapus Transaksi Akuntansi</translation>
    </message>
</context>
<context>
    <name>BusinessAgent</name>
    <message>
        <source>Insert agent</source>
        <translation>Tambah agen</translation>
    </message>
    <message>
        <source>Update agent</source>
        <translation>Perbarui agen</translation>
    </message>
    <message>
        <source>Delete agent</source>
        <translation>Hapus agen</translation>
    </message>
</context>
<context>
    <name>BusinessBank</name>
    <message>
        <source>Insert bank</source>
        <translation>Tambah bank</translation>
    </message>
    <message>
        <source>Update bank</source>
        <translation>Perbarui bank</translation>
    </message>
    <message>
        <source>Delete bank</source>
        <translation>Hapus bank</translation>
    </message>
</context>
<context>
    <name>BusinessCashFlow</name>
    <message>
        <source>Insert Journal Transaction</source>
        <translation>Tambah Transaksi Jurnal</translation>
    </message>
    <message>
        <source>Update Journal Transaction</source>
        <translation>Perbarui Transaksi Jurnal</translation>
    </message>
    <message>
        <source>Delete Journal Transaction</source>
        <translation>Hapus Transaksi Jurnal</translation>
    </message>
</context>
<context>
    <name>BusinessConfiguration</name>
    <message>
        <source>Manage Configurations</source>
        <translation>Kelola Konfigurasi</translation>
    </message>
</context>
<context>
    <name>BusinessCreditNote</name>
    <message>
        <source>Insert Credit Note</source>
        <translation>Tambah Nota Kredit</translation>
    </message>
    <message>
        <source>Update Credit Note</source>
        <translation>Perbarui Nota Kredit</translation>
    </message>
    <message>
        <source>Delete Credit Note</source>
        <translation>Hapus Nota Kredit</translation>
    </message>
    <message>
        <source>Insert Credit Note Detail</source>
        <translation>Tambah Rincian Nota Kredit</translation>
    </message>
    <message>
        <source>Update Credit Note Detail</source>
        <translation>Perbarui Rincian Nota Kredit</translation>
    </message>
    <message>
        <source>Delete Credit Note Detail</source>
        <translation>Hapus Rincian Nota Kredit</translation>
    </message>
    <message>
        <source>create transaction failed</source>
        <translation>pembuatan transaksi gagal</translation>
    </message>
    <message>
        <source>what is still due of its purchase</source>
        <translation>sisa utang pembeliannya</translation>
    </message>
</context>
<context>
    <name>BusinessDataPerusahaan</name>
    <message>
        <source>Manage company info</source>
        <translation>Kelola info perusahaan</translation>
    </message>
</context>
<context>
    <name>BusinessEmployee</name>
    <message>
        <source>Insert Employee</source>
        <translation>Tambah Karyawan</translation>
    </message>
    <message>
        <source>Update Employee</source>
        <translation>Perbarui Karyawan</translation>
    </message>
    <message>
        <source>Delete Employee</source>
        <translation>Hapus Karyawan</translation>
    </message>
</context>
<context>
    <name>BusinessGroupedItem</name>
    <message>
        <source>Insert grouped item</source>
        <translation>Tambah barang paket</translation>
    </message>
    <message>
        <source>Update grouped item</source>
        <translation>Perbarui barang paket</translation>
    </message>
    <message>
        <source>Delete grouped item</source>
        <translation>Hapus barang paket</translation>
    </message>
</context>
<context>
    <name>BusinessInventory</name>
    <message>
        <source>Insert Inventory Adjustment</source>
        <translation>Tambah Penyesuaian Persediaan</translation>
    </message>
    <message>
        <source>Delete Inventory Adjustment</source>
        <translation>Hapus Penyesuaian Persediaan</translation>
    </message>
</context>
<context>
    <name>BusinessItem</name>
    <message>
        <source>Insert item</source>
        <translation>Tambah barang</translation>
    </message>
    <message>
        <source>Update item</source>
        <translation>Perbarui barang</translation>
    </message>
    <message>
        <source>Delete item</source>
        <translation>Hapus barang</translation>
    </message>
    <message>
        <source>This item is used by: %1. Please delete it first!</source>
        <translation>Barang ini dipakai oleh: %1. Hapus dahulu!</translation>
    </message>
</context>
<context>
    <name>BusinessJenisItem</name>
    <message>
        <source>Manage item type</source>
        <translation>Kelola jenis barang</translation>
    </message>
</context>
<context>
    <name>BusinessKey</name>
    <message>
        <source>Update Key</source>
        <translation>Perbarui Nomor</translation>
    </message>
</context>
<context>
    <name>BusinessMeja</name>
    <message>
        <source>Add table</source>
        <translation>Tambah meja</translation>
    </message>
    <message>
        <source>Update table</source>
        <translation>Perbarui meja</translation>
    </message>
    <message>
        <source>Delete table</source>
        <translation>Hapus meja</translation>
    </message>
</context>
<context>
    <name>BusinessMember</name>
    <message>
        <source>Insert member</source>
        <translation>Tambah anggota</translation>
    </message>
    <message>
        <source>Update member</source>
        <translation>Perbarui anggota</translation>
    </message>
    <message>
        <source>Delete member</source>
        <translation>Hapus anggota</translation>
    </message>
</context>
<context>
    <name>BusinessPayment</name>
    <message>
        <source>Insert Payment</source>
        <translation>Tambah Pembayaran</translation>
    </message>
    <message>
        <source>Update Payment</source>
        <translation>Perbarui Pembayaran</translation>
    </message>
    <message>
        <source>Delete Payment</source>
        <translation>Hapus Pembayaran</translation>
    </message>
    <message>
        <source>what is still due of the purchases that it pays</source>
        <translation>sisa utang pembelian yang dibayarnya</translation>
    </message>
</context>
<context>
    <name>BusinessPenjualan</name>
    <message>
        <source>Add New Order</source>
        <translation>Pesanan Baru</translation>
    </message>
    <message>
        <source>Edit an Order</source>
        <translation>Ubah Pesanan</translation>
    </message>
    <message>
        <source>Delete an Order</source>
        <translation>Hapus Pesanan</translation>
    </message>
    <message>
        <source>Save an Invoice</source>
        <translation>Simpan Faktur</translation>
    </message>
    <message>
        <source>Set Kitchen Status</source>
        <translation>Tetapkan Status Dapur</translation>
    </message>
    <message>
        <source>Pay for an Accounts Receivable</source>
        <translation>Bayar Piutang Usaha</translation>
    </message>
    <message>
        <source>Update an Accounts Receivable</source>
        <translation>Perbarui Piutang Usaha</translation>
    </message>
    <message>
        <source>Pay for Agent Commission</source>
        <translation>Bayar Komisi Agen</translation>
    </message>
    <message>
        <source>Update Agent Commission Payment</source>
        <translation>Perbarui Pembayaran Komisi Agen</translation>
    </message>
    <message>
        <source>Delete a Sales Order</source>
        <translation>Hapus Pesanan Penjualan</translation>
    </message>
    <message>
        <source>Delete Accounts Receivable</source>
        <translation>Hapus Piutang Usaha</translation>
    </message>
    <message>
        <source>Delete Agent Commission Payment</source>
        <translation>Hapus Pembayaran Komisi Agen</translation>
    </message>
    <message>
        <source>Meja sudah terisi</source>
        <translation>Meja sudah terisi</translation>
    </message>
    <message>
        <source>Order sudah dibayar tidak bisa dihapus</source>
        <translation>Pesanan sudah dibayar tidak bisa dihapus</translation>
    </message>
    <message>
        <source>mapper not found</source>
        <translation>mapper tidak ditemukan</translation>
    </message>
    <message>
        <source>Can not find entity with id: %1</source>
        <translation>Data dengan id: %1 tidak ditemukan</translation>
    </message>
    <message>
        <source>This order is already paid</source>
        <translation>Pesanan ini sudah dibayar</translation>
    </message>
</context>
<context>
    <name>BusinessPrinterConfig</name>
    <message>
        <source>Manage Printer Configurations</source>
        <translation>Kelola Konfigurasi Printer</translation>
    </message>
</context>
<context>
    <name>BusinessPrinterType</name>
    <message>
        <source>Add Printer Type</source>
        <translation>Tambah Jenis Printer</translation>
    </message>
    <message>
        <source>Update Printer Type</source>
        <translation>Perbarui Jenis Printer</translation>
    </message>
    <message>
        <source>Delete Printer Type</source>
        <translation>Hapus Jenis Printer</translation>
    </message>
</context>
<context>
    <name>BusinessPurchaseOrder</name>
    <message>
        <source>Insert PO</source>
        <translation>Tambah PO</translation>
    </message>
    <message>
        <source>Update PO</source>
        <translation>Perbarui PO</translation>
    </message>
    <message>
        <source>Delete PO</source>
        <translation>Hapus PO</translation>
    </message>
    <message>
        <source>Insert PO Detail</source>
        <translation>Tambah Rincian PO</translation>
    </message>
    <message>
        <source>Update PO Detail</source>
        <translation>Perbarui Rincian PO</translation>
    </message>
    <message>
        <source>Delete PO Detail</source>
        <translation>Hapus Rincian PO</translation>
    </message>
    <message>
        <source>There is already purchase transaction using this PO, please delete it first: Purchase No: %1</source>
        <translation>Sudah ada transaksi pembelian yang memakai PO ini, hapus dahulu: No. Pembelian: %1</translation>
    </message>
    <message>
        <source>Create transaction failed</source>
        <translation>Pembuatan transaksi gagal</translation>
    </message>
</context>
<context>
    <name>BusinessPurchases</name>
    <message>
        <source>Insert Purchases</source>
        <translation>Tambah Pembelian</translation>
    </message>
    <message>
        <source>Update Purchases</source>
        <translation>Perbarui Pembelian</translation>
    </message>
    <message>
        <source>Delete Purchases</source>
        <translation>Hapus Pembelian</translation>
    </message>
    <message>
        <source>Insert Purchases Detail</source>
        <translation>Tambah Rincian Pembelian</translation>
    </message>
    <message>
        <source>Update Purchases Detail</source>
        <translation>Perbarui Rincian Pembelian</translation>
    </message>
    <message>
        <source>Delete Purchases Detail</source>
        <translation>Hapus Rincian Pembelian</translation>
    </message>
    <message>
        <source>This purchase is paid, please delete the payment first: Payment No: %1</source>
        <translation>Pembelian ini sudah dibayar, hapus pembayarannya dahulu: No. Pembayaran: %1</translation>
    </message>
    <message>
        <source>Can not find entity with id: %1</source>
        <translation>Data dengan id: %1 tidak ditemukan</translation>
    </message>
    <message>
        <source>Create transaction failed</source>
        <translation>Pembuatan transaksi gagal</translation>
    </message>
</context>
<context>
    <name>BusinessSatuan</name>
    <message>
        <source>Manage unit</source>
        <translation>Kelola satuan</translation>
    </message>
</context>
<context>
    <name>BusinessStokAwal</name>
    <message>
        <source>Update Beginning Balance</source>
        <translation>Perbarui Saldo Awal</translation>
    </message>
    <message>
        <source>This item has a beginning balance already, please edit it</source>
        <translation>Barang ini sudah punya saldo awal, silakan ubah</translation>
    </message>
</context>
<context>
    <name>BusinessSupplier</name>
    <message>
        <source>Insert supplier</source>
        <translation>Tambah pemasok</translation>
    </message>
    <message>
        <source>Update supplier</source>
        <translation>Perbarui pemasok</translation>
    </message>
    <message>
        <source>Delete supplier</source>
        <translation>Hapus pemasok</translation>
    </message>
</context>
<context>
    <name>BusinessUser</name>
    <message>
        <source>Create a new user</source>
        <translation>Buat pengguna baru</translation>
    </message>
    <message>
        <source>Update user</source>
        <translation>Perbarui pengguna</translation>
    </message>
    <message>
        <source>Delete user</source>
        <translation>Hapus pengguna</translation>
    </message>
    <message>
        <source>Username already exists</source>
        <translation>Nama pengguna sudah ada</translation>
    </message>
</context>
<context>
    <name>BusinessUserAccess</name>
    <message>
        <source>Update user access</source>
        <translation>Perbarui hak akses pengguna</translation>
    </message>
</context>
<context>
    <name>BusinessUserGroup</name>
    <message>
        <source>Create a new user group</source>
        <translation>Buat grup pengguna baru</translation>
    </message>
    <message>
        <source>Update user group</source>
        <translation>Perbarui grup pengguna</translation>
    </message>
    <message>
        <source>Delete user group</source>
        <translation>Hapus grup pengguna</translation>
    </message>
</context>
<context>
    <name>ConclusionPage</name>
    <message>
        <source>The installation is NOT complete: %1 of its steps failed, see the lines above. Install once more when the reason is gone: the program offers it under &quot;Setup&quot; when it starts.</source>
        <translation>Pemasangan TIDAK lengkap: %1 langkahnya gagal, lihat baris di atas. Pasang sekali lagi setelah sebabnya hilang: program menawarkannya di &quot;Pemasangan&quot; saat dijalankan.</translation>
    </message>
    <message>
        <source>creating your db...</source>
        <translation>membuat db Anda...</translation>
    </message>
    <message>
        <source>restoring your db...</source>
        <translation>memulihkan db Anda...</translation>
    </message>
    <message>
        <source>Error: %1</source>
        <translation>Kesalahan: %1</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Kesalahan</translation>
    </message>
    <message>
        <source>Error %1</source>
        <translation>Kesalahan %1</translation>
    </message>
    <message>
        <source>process exited with code: %1, status: %2</source>
        <translation>proses berakhir dengan kode: %1, status: %2</translation>
    </message>
    <message>
        <source>createdb started...</source>
        <translation>createdb dimulai...</translation>
    </message>
    <message>
        <source>The program that creates databases could not be started. Are PostgreSQL&apos;s client programs installed on this machine?</source>
        <translation>Program pembuat basis data tidak dapat dijalankan. Apakah program klien PostgreSQL terpasang di komputer ini?</translation>
    </message>
    <message>
        <source>The database %1 was NOT created. The backup goes into the database of that name, if there is one.</source>
        <translation>Basis data %1 TIDAK dibuat. Cadangan masuk ke basis data dengan nama itu, bila ada.</translation>
    </message>
    <message>
        <source>pg_restore started...</source>
        <translation>pg_restore dimulai...</translation>
    </message>
    <message>
        <source>The program that restores backups could not be started, and nothing was restored. Are PostgreSQL&apos;s client programs installed on this machine?</source>
        <translation>Program pemulih cadangan tidak dapat dijalankan, dan tidak ada yang dipulihkan. Apakah program klien PostgreSQL terpasang di komputer ini?</translation>
    </message>
    <message>
        <source>The backup was NOT restored completely: pg_restore ended with code %1. What it says stands above.</source>
        <translation>Cadangan TIDAK dipulihkan seluruhnya: pg_restore berakhir dengan kode %1. Pesannya tertulis di atas.</translation>
    </message>
    <message>
        <source>The database %1 cannot be used like this, and the program was not set up for it. &quot;Finish&quot; begins the wizard once more; restore the backup into a new database.</source>
        <translation>Basis data %1 tidak dapat dipakai seperti ini, dan program tidak disiapkan untuknya. &quot;Selesai&quot; memulai panduan sekali lagi; pulihkan cadangan ke basis data baru.</translation>
    </message>
    <message>
        <source>The database %1 holds none of the program&apos;s tables.</source>
        <translation>Basis data %1 tidak berisi satu pun tabel program ini.</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>Your database has been successfully restored</source>
        <translation>Basis data Anda berhasil dipulihkan</translation>
    </message>
    <message>
        <source>The database %1 holds tables. Nothing was restored into them.</source>
        <translation>Basis data %1 berisi tabel. Tidak ada yang dipulihkan ke dalamnya.</translation>
    </message>
</context>
<context>
    <name>ConfigDialog</name>
    <message>
        <source>Configuration</source>
        <translation>Konfigurasi</translation>
    </message>
    <message>
        <source>Database</source>
        <translation>Basis Data</translation>
    </message>
    <message>
        <source>DB Host :</source>
        <translation>Host DB :</translation>
    </message>
    <message>
        <source>DB Name :</source>
        <translation>Nama DB :</translation>
    </message>
    <message>
        <source>DB User :</source>
        <translation>Pengguna DB :</translation>
    </message>
    <message>
        <source>DB Password :</source>
        <translation>Kata Sandi DB :</translation>
    </message>
    <message>
        <source>DB Port :</source>
        <translation>Port DB :</translation>
    </message>
    <message>
        <source>Save and Connect</source>
        <translation>Simpan dan Sambungkan</translation>
    </message>
    <message>
        <source>Setup</source>
        <translation>Pemasangan</translation>
    </message>
    <message>
        <source>Installation Type :</source>
        <translation>Jenis Pemasangan :</translation>
    </message>
    <message>
        <source>Clean</source>
        <translation>Bersih</translation>
    </message>
    <message>
        <source>Make all tables anew, with the first rows; what they held is lost</source>
        <translation>Buat semua tabel dari awal, dengan data awal; isi lamanya hilang</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Perbarui</translation>
    </message>
    <message>
        <source>Bring the tables to this version and keep what they hold</source>
        <translation>Perbarui tabel ke versi ini dan pertahankan isinya</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Pasang</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Umum</translation>
    </message>
    <message>
        <source>Log File :</source>
        <translation>Berkas Log :</translation>
    </message>
    <message>
        <source>Date Time Format :</source>
        <translation>Format Tanggal Waktu :</translation>
    </message>
    <message>
        <source>Locale (ISO 639) :</source>
        <translation>Lokal (ISO 639) :</translation>
    </message>
    <message>
        <source>Show Sidebar on startup</source>
        <translation>Tampilkan Bilah Samping saat mulai</translation>
    </message>
    <message>
        <source>Show Dashboard on startup</source>
        <translation>Tampilkan Dasbor saat mulai</translation>
    </message>
    <message>
        <source>Cleaner</source>
        <translation>Pembersih</translation>
    </message>
    <message>
        <source>Show Live Entities</source>
        <translation>Tampilkan Objek Aktif</translation>
    </message>
    <message>
        <source>Kill Live Entities</source>
        <translation>Buang Objek Aktif</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Kesalahan</translation>
    </message>
    <message>
        <source>Can&apos;t write the settings file: %1</source>
        <translation>Berkas pengaturan tidak dapat ditulis: %1</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>Please wait until the installation completed.</source>
        <translation>Tunggu sampai pemasangan selesai.</translation>
    </message>
    <message>
        <source>There is no connection to a database yet. Please save one under &quot;Database&quot; first.</source>
        <translation>Belum ada sambungan ke basis data. Simpan dahulu pada &quot;Basis Data&quot;.</translation>
    </message>
    <message>
        <source>Question</source>
        <translation>Pertanyaan</translation>
    </message>
    <message>
        <source>Are you sure all the windows has been closed?</source>
        <translation>Apakah semua jendela sudah ditutup?</translation>
    </message>
    <message>
        <source>How numbers and money are written, and in which currency the first items are priced</source>
        <translation>Cara angka dan uang ditulis, dan mata uang harga barang pertama</translation>
    </message>
    <message>
        <source>%1 items and %2 open orders are priced in another currency than %3. Amounts of two currencies would be added as if they were one. Finish the open orders first; the items can be restated: the same figures, in %3.</source>
        <translation>%1 barang dan %2 pesanan terbuka berharga dalam mata uang selain %3. Jumlah dua mata uang akan dijumlahkan seolah-olah satu. Selesaikan dahulu pesanan terbuka; harga barang dapat dinyatakan ulang: angka yang sama, dalam %3.</translation>
    </message>
    <message>
        <source>Restate the Items</source>
        <translation>Nyatakan Ulang Harga</translation>
    </message>
    <message>
        <source>Leave Them</source>
        <translation>Biarkan</translation>
    </message>
    <message>
        <source>Keep the Locale</source>
        <translation>Tetap Lokal Lama</translation>
    </message>
</context>
<context>
    <name>ContactTableModel</name>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Kode</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nama</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Telepon</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>Email</translation>
    </message>
</context>
<context>
    <name>Conversion</name>
    <message>
        <source>amounts rounded to whole units</source>
        <translation>jumlah uang dibulatkan ke satuan penuh</translation>
    </message>
    <message>
        <source>quantities rounded to whole numbers</source>
        <translation>jumlah barang dibulatkan ke bilangan bulat</translation>
    </message>
    <message>
        <source>too long for &quot;%1&quot; and cut, in full &quot;%2&quot;</source>
        <translation>terlalu panjang untuk &quot;%1&quot; dan dipotong, lengkapnya &quot;%2&quot;</translation>
    </message>
    <message>
        <source>an amount or a quantity is larger than the program can hold</source>
        <translation>jumlah uang atau jumlah barang melebihi batas program</translation>
    </message>
</context>
<context>
    <name>ConversionCount</name>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 dan %2 lagi</translation>
    </message>
    <message>
        <source>%1: %2 read, %3 written, %4 skipped</source>
        <translation>%1: %2 dibaca, %3 ditulis, %4 dilewati</translation>
    </message>
    <message>
        <source>not read to the end: %1</source>
        <translation>tidak terbaca sampai akhir: %1</translation>
    </message>
    <message>
        <source>skipped, %1: %2</source>
        <translation>dilewati, %1: %2</translation>
    </message>
    <message>
        <source>changed, %1: %2</source>
        <translation>diubah, %1: %2</translation>
    </message>
</context>
<context>
    <name>ConversionMark</name>
    <message>
        <source>%1, begun %2</source>
        <translation>%1, dimulai %2</translation>
    </message>
    <message>
        <source>Stands while the data of a former system are brought over</source>
        <translation>Ada selama data sistem lama dipindahkan</translation>
    </message>
    <message>
        <source>Bringing over the data of the former system (%1) has not come to its end. What has been brought over is complete in itself. Run the converter once more: it leaves alone what is there already and adds the rest.</source>
        <translation>Pemindahan data dari sistem lama (%1) belum selesai. Yang sudah dipindahkan tetap utuh. Jalankan konverter sekali lagi: yang sudah ada dibiarkan dan sisanya ditambahkan.</translation>
    </message>
</context>
<context>
    <name>CupsSlipSpooler</name>
    <message>
        <source>The print server does not answer</source>
        <translation>Server cetak tidak menjawab</translation>
    </message>
    <message>
        <source>The printer %1 cannot be found</source>
        <translation>Printer %1 tidak ditemukan</translation>
    </message>
    <message>
        <source>The printer %1 takes no jobs</source>
        <translation>Printer %1 tidak menerima tugas</translation>
    </message>
    <message>
        <source>The printer %1 refuses the slip</source>
        <translation>Printer %1 menolak slip</translation>
    </message>
    <message>
        <source>The connection to the print server is lost</source>
        <translation>Sambungan ke server cetak terputus</translation>
    </message>
    <message>
        <source>The print server did not take the slip</source>
        <translation>Server cetak tidak menerima slip</translation>
    </message>
    <message>
        <source>The print server does not list its printers</source>
        <translation>Server cetak tidak menyebutkan printernya</translation>
    </message>
</context>
<context>
    <name>DataMapperAcquisition</name>
    <message>
        <source>error: insert Purchase failed</source>
        <translation>kesalahan: tambah Pembelian gagal</translation>
    </message>
    <message>
        <source>error: insert Purchase detail failed.<byte value="xd"/>
</source>
        <translation>kesalahan: tambah rincian Pembelian gagal.<byte value="xd"/>
</translation>
    </message>
    <message>
        <source>error: update acquisition failed</source>
        <translation>kesalahan: perbarui pembelian gagal</translation>
    </message>
    <message>
        <source>error: update acquisition detail failed<byte value="xd"/>
</source>
        <translation>kesalahan: perbarui rincian pembelian gagal<byte value="xd"/>
</translation>
    </message>
</context>
<context>
    <name>DataMapperAcquisitionDetailMigration11</name>
    <message>
        <source>add constraint foreign key po_detail_id with table purchase_order_detail</source>
        <translation>tambah kunci asing po_detail_id dengan tabel purchase_order_detail</translation>
    </message>
</context>
<context>
    <name>DataMapperAcquisitionMigration11</name>
    <message>
        <source>add constraint foreign key po_id with table purchase_order</source>
        <translation>tambah kunci asing po_id dengan tabel purchase_order</translation>
    </message>
</context>
<context>
    <name>DataMapperBawaPulang</name>
    <message>
        <source>error: insert take away food detail failed</source>
        <translation>kesalahan: tambah rincian bawa pulang gagal</translation>
    </message>
    <message>
        <source>error: insert take away food detail failed.<byte value="xd"/>
</source>
        <translation>kesalahan: tambah rincian bawa pulang gagal.<byte value="xd"/>
</translation>
    </message>
    <message>
        <source>error: update take away food detail failed</source>
        <translation>kesalahan: perbarui rincian bawa pulang gagal</translation>
    </message>
    <message>
        <source>error: update take away food detail failed<byte value="xd"/>
</source>
        <translation>kesalahan: perbarui rincian bawa pulang gagal<byte value="xd"/>
</translation>
    </message>
    <message>
        <source>error: delete take away food detail failed</source>
        <translation>kesalahan: hapus rincian bawa pulang gagal</translation>
    </message>
    <message>
        <source>error: delete take away food detail failed<byte value="xd"/>
</source>
        <translation>kesalahan: hapus rincian bawa pulang gagal<byte value="xd"/>
</translation>
    </message>
    <message>
        <source>error update status</source>
        <translation>kesalahan memperbarui status</translation>
    </message>
</context>
<context>
    <name>DataMapperBusinessMigration11</name>
    <message>
        <source>Add unique constraint to column name</source>
        <translation>Tambah batasan unik pada kolom name</translation>
    </message>
</context>
<context>
    <name>DataMapperCashFlow</name>
    <message>
        <source>Transferring Funds</source>
        <translation>Pemindahan Dana</translation>
    </message>
    <message>
        <source>Deposit Purchase Order</source>
        <translation>Uang Muka Pesanan Pembelian</translation>
    </message>
    <message>
        <source>Purchases</source>
        <translation>Pembelian</translation>
    </message>
    <message>
        <source>Credit Note</source>
        <translation>Nota Kredit</translation>
    </message>
    <message>
        <source>Payment / Pay Bill</source>
        <translation>Pembayaran / Bayar Tagihan</translation>
    </message>
    <message>
        <source>Member Payment</source>
        <translation>Pembayaran Anggota</translation>
    </message>
    <message>
        <source>Agent Commission</source>
        <translation>Komisi Agen</translation>
    </message>
    <message>
        <source>Sales</source>
        <translation>Penjualan</translation>
    </message>
</context>
<context>
    <name>DataMapperCreditNote</name>
    <message>
        <source>error: insert credit note failed</source>
        <translation>kesalahan: tambah nota kredit gagal</translation>
    </message>
    <message>
        <source>error: insert credit note detail failed.<byte value="xd"/>
</source>
        <translation>kesalahan: tambah rincian nota kredit gagal.<byte value="xd"/>
</translation>
    </message>
    <message>
        <source>error: update credit note failed</source>
        <translation>kesalahan: perbarui nota kredit gagal</translation>
    </message>
    <message>
        <source>error: update credit note detail failed<byte value="xd"/>
</source>
        <translation>kesalahan: perbarui rincian nota kredit gagal<byte value="xd"/>
</translation>
    </message>
</context>
<context>
    <name>DataMapperInvoiceBawaPulang</name>
    <message>
        <source>error: insert invoice fast food failed</source>
        <translation>kesalahan: tambah faktur cepat saji gagal.</translation>
    </message>
    <message>
        <source>error: insert invoice fast food detail failed.<byte value="xd"/>
</source>
        <translation>kesalahan: tambah rincian faktur cepat saji gagal.<byte value="xd"/>
</translation>
    </message>
    <message>
        <source>error: insert take away invoice detail failed</source>
        <translation>kesalahan: tambah rincian faktur bawa pulang gagal</translation>
    </message>
    <message>
        <source>error: insert take away invoice detail failed.<byte value="xd"/>
</source>
        <translation>kesalahan: tambah rincian faktur bawa pulang gagal.<byte value="xd"/>
</translation>
    </message>
</context>
<context>
    <name>DataMapperInvoiceFastFood</name>
    <message>
        <source>error: insert fast food invoice failed</source>
        <translation>kesalahan: tambah faktur cepat saji gagal</translation>
    </message>
    <message>
        <source>error: insert fast food invoice  detail failed.<byte value="xd"/>
</source>
        <translation>kesalahan: tambah rincian faktur cepat saji gagal.<byte value="xd"/>
</translation>
    </message>
    <message>
        <source>error: insert fast food detail invoice  failed.<byte value="xd"/>
</source>
        <translation>kesalahan: tambah rincian faktur cepat saji gagal.<byte value="xd"/>
</translation>
    </message>
</context>
<context>
    <name>DataMapperInvoiceLink</name>
    <message>
        <source>This order was billed meanwhile. Nothing was saved.</source>
        <translation>Pesanan ini sementara itu sudah ditagih. Tidak ada yang disimpan.</translation>
    </message>
</context>
<context>
    <name>DataMapperInvoiceMakanDitempat</name>
    <message>
        <source>error: insert dine invoice failed </source>
        <translation>kesalahan: tambah faktur makan di tempat gagal </translation>
    </message>
    <message>
        <source>error: insert dine invoice detail failed.<byte value="xd"/>
</source>
        <translation>kesalahan: tambah rincian faktur makan di tempat gagal.<byte value="xd"/>
</translation>
    </message>
</context>
<context>
    <name>DataMapperKomisiAgen</name>
    <message>
        <source>error: insert agent commision failed</source>
        <translation>kesalahan: tambah komisi agen gagal</translation>
    </message>
    <message>
        <source>error: insert agent commision  detail failed.<byte value="xd"/>
</source>
        <translation>kesalahan: tambah rincian komisi agen gagal.<byte value="xd"/>
</translation>
    </message>
    <message>
        <source>error: update komisi agen failed</source>
        <translation>kesalahan: perbarui komisi agen gagal</translation>
    </message>
    <message>
        <source>error: update agent commision detail failed<byte value="xd"/>
</source>
        <translation>kesalahan: perbarui rincian komisi agen gagal<byte value="xd"/>
</translation>
    </message>
</context>
<context>
    <name>DataMapperMakanDitempat</name>
    <message>
        <source>error: insert dine failed</source>
        <translation>kesalahan: tambah makan di tempat gagal</translation>
    </message>
    <message>
        <source>error: insert dine detail failed.<byte value="xd"/>
</source>
        <translation>kesalahan: tambah rincian makan di tempat gagal.<byte value="xd"/>
</translation>
    </message>
    <message>
        <source>error: update dine failed</source>
        <translation>kesalahan: perbarui makan di tempat gagal</translation>
    </message>
    <message>
        <source>error: update dine detail failed<byte value="xd"/>
</source>
        <translation>kesalahan: perbarui rincian makan di tempat gagal<byte value="xd"/>
</translation>
    </message>
    <message>
        <source>error: delete dine failed</source>
        <translation>kesalahan: hapus makan di tempat gagal</translation>
    </message>
    <message>
        <source>error: delete dine detail failed<byte value="xd"/>
</source>
        <translation>kesalahan: hapus rincian makan di tempat gagal<byte value="xd"/>
</translation>
    </message>
    <message>
        <source>error update status failed</source>
        <translation>kesalahan: pembaruan status gagal</translation>
    </message>
</context>
<context>
    <name>DataMapperOrder</name>
    <message>
        <source>Can not find entity with id: %1</source>
        <translation>Data dengan id: %1 tidak ditemukan</translation>
    </message>
</context>
<context>
    <name>DataMapperPayment</name>
    <message>
        <source>error: insert Purchase failed</source>
        <translation>kesalahan: tambah Pembelian gagal</translation>
    </message>
    <message>
        <source>error: insert payment detail:invoice failed.<byte value="xd"/>
</source>
        <translation>kesalahan: tambah rincian pembayaran: faktur gagal.<byte value="xd"/>
</translation>
    </message>
    <message>
        <source>error: update payment invoice failed</source>
        <translation>kesalahan: perbarui faktur pembayaran gagal</translation>
    </message>
    <message>
        <source>error: update payment invoice failed<byte value="xd"/>
</source>
        <translation>kesalahan: perbarui faktur pembayaran gagal<byte value="xd"/>
</translation>
    </message>
</context>
<context>
    <name>DataMapperPenjualanInfo</name>
    <message>
        <source>The items can not be sorted by: %1 %2</source>
        <translation>Barang tidak dapat diurutkan menurut: %1 %2</translation>
    </message>
    <message>
        <source>Dine</source>
        <translation>Makan di Tempat</translation>
    </message>
    <message>
        <source>Fast Food</source>
        <translation>Makanan Cepat Saji</translation>
    </message>
    <message>
        <source>Take Away Food</source>
        <translation>Makanan Bawa Pulang</translation>
    </message>
</context>
<context>
    <name>DataMapperPermissionMigration11</name>
    <message>
        <source>add unique constraint to column permission_name</source>
        <translation>tambah batasan unik pada kolom permission_name</translation>
    </message>
</context>
<context>
    <name>DataMapperPiutang</name>
    <message>
        <source>error: insert credit invoice failed</source>
        <translation>kesalahan: tambah faktur piutang gagal</translation>
    </message>
    <message>
        <source>error: insert credit detail invoice failed.<byte value="xd"/>
</source>
        <translation>kesalahan: tambah rincian faktur piutang gagal.<byte value="xd"/>
</translation>
    </message>
    <message>
        <source>error: update credit invoice failed</source>
        <translation>kesalahan: perbarui faktur piutang gagal</translation>
    </message>
    <message>
        <source>error: update credit invoice failed<byte value="xd"/>
</source>
        <translation>kesalahan: perbarui faktur piutang gagal<byte value="xd"/>
</translation>
    </message>
</context>
<context>
    <name>DataMapperPurchaseOrder</name>
    <message>
        <source>error: insert PO failed</source>
        <translation>kesalahan: tambah PO gagal</translation>
    </message>
    <message>
        <source>error: insert PO detail failed</source>
        <translation>kesalahan: tambah rincian PO gagal</translation>
    </message>
    <message>
        <source>error: update PO failed</source>
        <translation>kesalahan: perbarui PO gagal</translation>
    </message>
    <message>
        <source>error: update PO detail failed</source>
        <translation>kesalahan: perbarui rincian PO gagal</translation>
    </message>
</context>
<context>
    <name>DataMapperPurchaseOrderDetailMigration11</name>
    <message>
        <source>add constraint foreign key purchase_order_id with table purchase_order</source>
        <translation>tambah kunci asing purchase_order_id dengan tabel purchase_order</translation>
    </message>
</context>
<context>
    <name>DataMapperStockTakeMigration11</name>
    <message>
        <source>update source_acct_code column to varchar(20)</source>
        <translation>ubah kolom source_acct_code menjadi varchar(20)</translation>
    </message>
</context>
<context>
    <name>DatabaseCondition</name>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 dan %2 lagi</translation>
    </message>
    <message>
        <source>Restore your last backup once more, into a new database: rename the file %1, start the program, and choose the restore in the wizard that comes up.</source>
        <translation>Pulihkan cadangan terakhir sekali lagi ke basis data baru: ganti nama berkas %1, jalankan program, lalu pilih pemulihan di panduan yang muncul.</translation>
    </message>
    <message>
        <source>The database is not complete: there are tables missing (%1). An installation or the restore of a backup was cut short.</source>
        <translation>Basis data tidak lengkap: ada tabel yang hilang (%1). Pemasangan atau pemulihan cadangan terputus.</translation>
    </message>
    <message>
        <source>If nothing was ever sold with it, install it anew under &quot;Setup&quot;.</source>
        <translation>Bila belum pernah dipakai berjualan, pasang ulang di &quot;Pemasangan&quot;.</translation>
    </message>
    <message>
        <source>The restore of a backup was cut short: there are tables without a primary key (%1), and rows may be missing.</source>
        <translation>Pemulihan cadangan terputus: ada tabel tanpa kunci utama (%1), dan mungkin ada baris yang hilang.</translation>
    </message>
    <message>
        <source>The installation was cut short: nobody has any right yet. Install the database anew under &quot;Setup&quot;.</source>
        <translation>Pemasangan terputus: belum ada yang punya hak akses. Pasang ulang basis data di &quot;Pemasangan&quot;.</translation>
    </message>
    <message>
        <source>The restore of a backup was cut short before its end: references between tables are missing (%1). The rows are there, but the database does not watch over them: a record that others need can be deleted.</source>
        <translation>Pemulihan cadangan terputus sebelum selesai: hubungan antartabel tidak lengkap (%1). Barisnya ada, tetapi tidak dijaga oleh basis data: data yang dibutuhkan data lain dapat terhapus.</translation>
    </message>
    <message>
        <source>An installation or an update was cut short: the rights of some services are not complete (%1).</source>
        <translation>Pemasangan atau pembaruan terputus: hak akses beberapa layanan tidak lengkap (%1).</translation>
    </message>
    <message>
        <source>Run &quot;Update&quot; under Configuration &gt; General, &quot;Setup&quot;; it keeps what the tables hold. After a first installation that was cut short, with nothing entered yet, install &quot;Clean&quot; instead.</source>
        <translation>Jalankan &quot;Perbarui&quot; di Konfigurasi &gt; Umum, &quot;Pemasangan&quot;; isi tabel tetap dipertahankan. Setelah pemasangan pertama yang terputus dan belum ada isinya, pasang &quot;Bersih&quot; saja.</translation>
    </message>
    <message>
        <source>If sales were made with it, go back to a backup.</source>
        <translation>Bila sudah dipakai berjualan, kembalilah ke cadangan.</translation>
    </message>
    <message>
        <source>The database has to be updated to version %1 before anybody can log in. Close the program on the other workstations and back up the database with the older program. Then run &quot;Update&quot; under &quot;Setup&quot; in the window that opens next, and start the program again.</source>
        <translation>Basis data harus diperbarui ke versi %1 sebelum ada yang dapat masuk. Tutup program di komputer lain dan buat cadangan basis data dengan program yang lama. Lalu jalankan &quot;Perbarui&quot; di bawah &quot;Pemasangan&quot; pada jendela yang terbuka berikutnya, dan jalankan ulang program.</translation>
    </message>
</context>
<context>
    <name>DatabaseSetup</name>
    <message>
        <source>There is no database %1.</source>
        <translation>Tidak ada basis data %1.</translation>
    </message>
    <message>
        <source>Installed: %1, version %2.</source>
        <translation>Terpasang: %1, versi %2.</translation>
    </message>
    <message>
        <source>The database %1 is empty.</source>
        <translation>Basis data %1 kosong.</translation>
    </message>
    <message>
        <source>The database %1 holds tables, but no finished installation.</source>
        <translation>Basis data %1 berisi tabel, tetapi pemasangannya belum selesai.</translation>
    </message>
    <message>
        <source>The database %1 already holds tables. With --replace they are made anew, and what they hold is lost.</source>
        <translation>Basis data %1 sudah berisi tabel. Dengan --replace tabel dibuat dari awal, dan isinya hilang.</translation>
    </message>
    <message>
        <source>The installation is not complete; see the lines above.</source>
        <translation>Pemasangan tidak lengkap; lihat baris di atas.</translation>
    </message>
    <message>
        <source>Nothing is installed in the database %1.</source>
        <translation>Tidak ada yang terpasang di basis data %1.</translation>
    </message>
    <message>
        <source>The update is not complete; see the lines above.</source>
        <translation>Pembaruan tidak lengkap; lihat baris di atas.</translation>
    </message>
    <message>
        <source>The database %1 on %2, port %3, can not be opened as %4: %5</source>
        <translation>Basis data %1 di %2, port %3, tidak dapat dibuka sebagai %4: %5</translation>
    </message>
    <message>
        <source>The database %1 can not be created: %2</source>
        <translation>Basis data %1 tidak dapat dibuat: %2</translation>
    </message>
    <message>
        <source>Can&apos;t write the settings file: %1</source>
        <translation>Berkas pengaturan tidak dapat ditulis: %1</translation>
    </message>
    <message>
        <source>An update to version %1 is due; the command is &quot;update&quot;. Back up the database first.</source>
        <translation>Pembaruan ke versi %1 diperlukan; perintahnya &quot;update&quot;. Buat cadangan basis data terlebih dahulu.</translation>
    </message>
    <message>
        <source>Every update tells this one; nothing is wrong.</source>
        <translation>Pesan ini muncul pada setiap pembaruan; tidak ada yang salah.</translation>
    </message>
    <message>
        <source>The database %1 is of version %2, this program of version %3.</source>
        <translation>Basis data %1 versi %2, program ini versi %3.</translation>
    </message>
</context>
<context>
    <name>DatabaseUpdate</name>
    <message>
        <source>The database is being updated. Please wait...</source>
        <translation>Basis data sedang diperbarui. Harap tunggu...</translation>
    </message>
    <message>
        <source>The update of the database has ended. Please restart the app.</source>
        <translation>Pembaruan basis data sudah selesai. Silakan jalankan ulang aplikasi.</translation>
    </message>
    <message>
        <source>These steps failed; the log file has the particulars:</source>
        <translation>Langkah berikut gagal; rinciannya ada di berkas log:</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>The database is being updated. Please wait until that has ended; the program can be closed then.</source>
        <translation>Basis data sedang diperbarui. Tunggu sampai selesai; setelah itu program dapat ditutup.</translation>
    </message>
</context>
<context>
    <name>DatabaseVersion</name>
    <message>
        <source>The database is of version %1, and this program is of version %2: a newer program has updated the database. Please start the newer program. To go back to this one, restore the backup that was made before the update. Nothing was changed.</source>
        <translation>Basis data ini versi %1, sedangkan program ini versi %2: program yang lebih baru telah memperbarui basis data. Jalankan program yang lebih baru. Untuk kembali ke program ini, pulihkan cadangan yang dibuat sebelum pembaruan. Tidak ada yang diubah.</translation>
    </message>
</context>
<context>
    <name>DialogAbout</name>
    <message>
        <source>About</source>
        <translation>Tentang</translation>
    </message>
    <message>
        <source>Point of sale and back office for restaurants.</source>
        <translation>Kasir dan administrasi untuk restoran.</translation>
    </message>
    <message>
        <source>Icons: Fluent System Icons, MIT licence</source>
        <translation>Ikon: Fluent System Icons, lisensi MIT</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versi %1</translation>
    </message>
    <message>
        <source>Qt %1, PostgreSQL, CUPS</source>
        <translation>Qt %1, PostgreSQL, CUPS</translation>
    </message>
</context>
<context>
    <name>DialogAgent</name>
    <message>
        <source>Agent Form</source>
        <translation>Formulir Agen</translation>
    </message>
    <message>
        <source>Agent ID :</source>
        <translation>ID Agen :</translation>
    </message>
    <message>
        <source>-</source>
        <translation>-</translation>
    </message>
    <message>
        <source>Code :</source>
        <translation>Kode :</translation>
    </message>
    <message>
        <source>Name :</source>
        <translation>Nama :</translation>
    </message>
    <message>
        <source>Address :</source>
        <translation>Alamat :</translation>
    </message>
    <message>
        <source>Phone :</source>
        <translation>Telepon :</translation>
    </message>
    <message>
        <source>Email :</source>
        <translation>Email :</translation>
    </message>
    <message>
        <source>Account :</source>
        <translation>Akun :</translation>
    </message>
    <message>
        <source>Account No. :</source>
        <translation>No. Rekening :</translation>
    </message>
    <message>
        <source>Account Name :</source>
        <translation>Nama Akun :</translation>
    </message>
    <message>
        <source>Description :</source>
        <translation>Keterangan :</translation>
    </message>
    <message>
        <source>Commission :</source>
        <translation>Komisi :</translation>
    </message>
    <message>
        <source>%</source>
        <translation>%</translation>
    </message>
    <message>
        <source>Enter the agent code</source>
        <translation>Isi kode agen</translation>
    </message>
    <message>
        <source>This agent code already used, please choose another code</source>
        <translation>Kode agen ini sudah dipakai, pilih kode lain</translation>
    </message>
    <message>
        <source>Enter the agent name</source>
        <translation>Isi nama agen</translation>
    </message>
    <message>
        <source>Enter the address</source>
        <translation>Isi alamat</translation>
    </message>
    <message>
        <source>Enter the telp no</source>
        <translation>Isi no. telp</translation>
    </message>
    <message>
        <source>Enter the correct email address</source>
        <translation>Isi alamat email yang benar</translation>
    </message>
    <message>
        <source>Enter the number between 0-100</source>
        <translation>Isi angka antara 0-100</translation>
    </message>
</context>
<context>
    <name>DialogBackupDB</name>
    <message>
        <source>Database Management</source>
        <translation>Pengelolaan Basis Data</translation>
    </message>
    <message>
        <source>Backup</source>
        <translation>Cadangkan</translation>
    </message>
    <message>
        <source>DB Host :</source>
        <translation>Host DB :</translation>
    </message>
    <message>
        <source>DB Name :</source>
        <translation>Nama DB :</translation>
    </message>
    <message>
        <source>DB User :</source>
        <translation>Pengguna DB :</translation>
    </message>
    <message>
        <source>DB Password :</source>
        <translation>Kata Sandi DB :</translation>
    </message>
    <message>
        <source>DB Port :</source>
        <translation>Port DB :</translation>
    </message>
    <message>
        <source>Output File :</source>
        <translation>Berkas Keluaran :</translation>
    </message>
    <message>
        <source>Browse</source>
        <translation>Telusuri</translation>
    </message>
    <message>
        <source>Status :</source>
        <translation>Status :</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Pulihkan</translation>
    </message>
    <message>
        <source>Input File :</source>
        <translation>Berkas Masukan :</translation>
    </message>
    <message>
        <source>Create a New Database</source>
        <translation>Buat Basis Data Baru</translation>
    </message>
    <message>
        <source>Make the database of that name first; the server must not have it yet</source>
        <translation>Buat dahulu basis data dengan nama itu; di server belum boleh ada</translation>
    </message>
    <message>
        <source>Set as Active Database</source>
        <translation>Jadikan Basis Data Aktif</translation>
    </message>
    <message>
        <source>Make this program work with the database that is named above</source>
        <translation>Pakai basis data yang disebut di atas untuk program ini</translation>
    </message>
    <message>
        <source>Maintenance</source>
        <translation>Pemeliharaan</translation>
    </message>
    <message>
        <source>Vacuum</source>
        <translation>Bersihkan</translation>
    </message>
    <message>
        <source>Give the room of deleted rows free again</source>
        <translation>Bebaskan kembali ruang dari baris yang sudah dihapus</translation>
    </message>
    <message>
        <source>Reindex</source>
        <translation>Indeks Ulang</translation>
    </message>
    <message>
        <source>Make all indexes anew; nobody can write meanwhile</source>
        <translation>Buat ulang semua indeks; selama itu tidak ada yang dapat menyimpan</translation>
    </message>
    <message>
        <source>process exited with code: %1, status: %2</source>
        <translation>proses berakhir dengan kode: %1, status: %2</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Kesalahan</translation>
    </message>
    <message>
        <source>Enter the ouput file</source>
        <translation>Isi berkas keluaran</translation>
    </message>
    <message>
        <source>dumping your db...</source>
        <translation>mencadangkan db Anda...</translation>
    </message>
    <message>
        <source>pg_dump started...</source>
        <translation>pg_dump dimulai...</translation>
    </message>
    <message>
        <source>process exited with code: %1</source>
        <translation>proses berakhir dengan kode: %1</translation>
    </message>
    <message>
        <source>, status:</source>
        <translation>, status:</translation>
    </message>
    <message>
        <source>DB Backup Selesai</source>
        <translation>Pencadangan DB Selesai</translation>
    </message>
    <message>
        <source>Please enter the input file</source>
        <translation>Isi berkas masukan</translation>
    </message>
    <message>
        <source>Please enter the database name</source>
        <translation>Isi nama basis data</translation>
    </message>
    <message>
        <source>There is no backup file %1.</source>
        <translation>Berkas cadangan %1 tidak ada.</translation>
    </message>
    <message>
        <source>The backup %1 was cut off while it was written. The one before it is %2: please take that.</source>
        <translation>Cadangan %1 terputus saat ditulis. Yang sebelumnya ada di %2: pakailah yang itu.</translation>
    </message>
    <message>
        <source>Nothing was restored. The database %1 is as it was.</source>
        <translation>Tidak ada yang dipulihkan. Basis data %1 tetap seperti semula.</translation>
    </message>
    <message>
        <source>creating your db...</source>
        <translation>membuat db Anda...</translation>
    </message>
    <message>
        <source>createdb started...</source>
        <translation>createdb dimulai...</translation>
    </message>
    <message>
        <source>The database %1 was not created, and nothing was restored.</source>
        <translation>Basis data %1 tidak dibuat, dan tidak ada yang dipulihkan.</translation>
    </message>
    <message>
        <source>The database %1 was not created, the reason stands above.</source>
        <translation>Basis data %1 tidak dibuat, sebabnya tertulis di atas.</translation>
    </message>
    <message>
        <source>restoring your db...</source>
        <translation>memulihkan db Anda...</translation>
    </message>
    <message>
        <source>pg_restore started...</source>
        <translation>pg_restore dimulai...</translation>
    </message>
    <message>
        <source>Nothing was restored. The new database %1 is empty.</source>
        <translation>Tidak ada yang dipulihkan. Basis data baru %1 kosong.</translation>
    </message>
    <message>
        <source>The backup was restored to the database %1.</source>
        <translation>Cadangan sudah dipulihkan ke basis data %1.</translation>
    </message>
    <message>
        <source>The restore failed, the reason stands above. The new database %1 is not complete: do not work with it. Restore into another new one.</source>
        <translation>Pemulihan gagal, sebabnya tertulis di atas. Basis data baru %1 tidak lengkap: jangan dipakai. Pulihkan ke basis data baru yang lain.</translation>
    </message>
    <message>
        <source>The restore failed or left something out, the reason stands above. If there is a database %1, do not work with it: restore into a new one.</source>
        <translation>Pemulihan gagal atau tidak lengkap, sebabnya tertulis di atas. Bila ada basis data %1, jangan dipakai: pulihkan ke basis data baru.</translation>
    </message>
    <message>
        <source>Your database has been successfully restored</source>
        <translation>Basis data Anda berhasil dipulihkan</translation>
    </message>
    <message>
        <source>Update DB Config</source>
        <translation>Perbarui Konfigurasi DB</translation>
    </message>
    <message>
        <source>Are you sure, you want to use this database: %1 for this application?</source>
        <translation>Yakin ingin memakai basis data ini: %1 untuk aplikasi ini?</translation>
    </message>
    <message>
        <source>Can&apos;t write the settings file: %1</source>
        <translation>Berkas pengaturan tidak dapat ditulis: %1</translation>
    </message>
    <message>
        <source>Please restart the app first!</source>
        <translation>Jalankan ulang aplikasi dahulu!</translation>
    </message>
    <message>
        <source>vacuuming your db...</source>
        <translation>membersihkan db Anda...</translation>
    </message>
    <message>
        <source>reindexing your db...</source>
        <translation>mengindeks ulang db Anda...</translation>
    </message>
    <message>
        <source>started...</source>
        <translation>dimulai...</translation>
    </message>
    <message>
        <source>Nothing was done. The database is as it was.</source>
        <translation>Tidak ada yang dilakukan. Basis data tetap seperti semula.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Selesai</translation>
    </message>
    <message>
        <source>The database was tidied.</source>
        <translation>Basis data sudah dirapikan.</translation>
    </message>
    <message>
        <source>The work was not finished, the reason stands above. No data was changed.</source>
        <translation>Pekerjaan tidak selesai, sebabnya tertulis di atas. Tidak ada data yang berubah.</translation>
    </message>
</context>
<context>
    <name>DialogBank</name>
    <message>
        <source>Account Form</source>
        <translation>Formulir Akun</translation>
    </message>
    <message>
        <source>Account ID :</source>
        <translation>ID Akun :</translation>
    </message>
    <message>
        <source>-</source>
        <translation>-</translation>
    </message>
    <message>
        <source>Code :</source>
        <translation>Kode :</translation>
    </message>
    <message>
        <source>Name :</source>
        <translation>Nama :</translation>
    </message>
    <message>
        <source>Type :</source>
        <translation>Jenis :</translation>
    </message>
    <message>
        <source>Cash</source>
        <translation>Tunai</translation>
    </message>
    <message>
        <source>Cost of Sales</source>
        <translation>Harga Pokok Penjualan</translation>
    </message>
    <message>
        <source>Inventory</source>
        <translation>Persediaan</translation>
    </message>
    <message>
        <source>Accounts Payable</source>
        <translation>Utang Usaha</translation>
    </message>
    <message>
        <source>Account Receivable</source>
        <translation>Piutang Usaha</translation>
    </message>
    <message>
        <source>Commisions and Fees Expense</source>
        <translation>Beban Komisi dan Jasa</translation>
    </message>
    <message>
        <source>Enter the account code</source>
        <translation>Isi kode akun</translation>
    </message>
    <message>
        <source>The code you entered is already in use please use another code</source>
        <translation>Kode yang diisi sudah dipakai, gunakan kode lain</translation>
    </message>
    <message>
        <source>Enter the account name</source>
        <translation>Isi nama akun</translation>
    </message>
</context>
<context>
    <name>DialogBayarBawaPulang</name>
    <message>
        <source>Customer Payment Form</source>
        <translation>Formulir Pembayaran Pelanggan</translation>
    </message>
    <message>
        <source>Invoice No. :</source>
        <translation>No. Faktur :</translation>
    </message>
    <message>
        <source>Member :</source>
        <translation>Anggota :</translation>
    </message>
    <message>
        <source>Name :</source>
        <translation>Nama :</translation>
    </message>
    <message>
        <source>Date :</source>
        <translation>Tanggal :</translation>
    </message>
    <message>
        <source>Cash Account :</source>
        <translation>Akun Kas :</translation>
    </message>
    <message>
        <source>Description :</source>
        <translation>Keterangan :</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Cetak</translation>
    </message>
    <message>
        <source>Save the invoice and print the bill (Ctrl+P)</source>
        <translation>Simpan faktur dan cetak bon (Ctrl+P)</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Selesai</translation>
    </message>
    <message>
        <source>The guest has the food: the order is done</source>
        <translation>Tamu sudah menerima makanan: pesanan selesai</translation>
    </message>
    <message>
        <source>Total Invoice :</source>
        <translation>Total Faktur :</translation>
    </message>
    <message>
        <source>Do you want to print the invoice ?</source>
        <translation>Cetak fakturnya ?</translation>
    </message>
    <message>
        <source>Do you want to close this order: %1 ?</source>
        <translation>Apakah pesanan ini ingin ditutup: %1 ?</translation>
    </message>
    <message>
        <source>This order has not been paid yet. Please press the Cancel button to cancel this order</source>
        <translation>Pesanan ini belum dibayar. Tekan tombol Batalkan untuk membatalkan pesanan ini</translation>
    </message>
</context>
<context>
    <name>DialogBayarMakanDitempat</name>
    <message>
        <source>Customer Payment Form</source>
        <translation>Formulir Pembayaran Pelanggan</translation>
    </message>
    <message>
        <source>Invoice No. :</source>
        <translation>No. Faktur :</translation>
    </message>
    <message>
        <source>Table :</source>
        <translation>Meja :</translation>
    </message>
    <message>
        <source>Member :</source>
        <translation>Anggota :</translation>
    </message>
    <message>
        <source>Name :</source>
        <translation>Nama :</translation>
    </message>
    <message>
        <source>Agent :</source>
        <translation>Agen :</translation>
    </message>
    <message>
        <source>Waitress :</source>
        <translation>Pramusaji :</translation>
    </message>
    <message>
        <source>Date :</source>
        <translation>Tanggal :</translation>
    </message>
    <message>
        <source>Due Date :</source>
        <translation>Jatuh Tempo :</translation>
    </message>
    <message>
        <source>Cash Account :</source>
        <translation>Akun Kas :</translation>
    </message>
    <message>
        <source>Description :</source>
        <translation>Keterangan :</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Cetak</translation>
    </message>
    <message>
        <source>Save the invoice and print the bill (Ctrl+P)</source>
        <translation>Simpan faktur dan cetak bon (Ctrl+P)</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Selesai</translation>
    </message>
    <message>
        <source>The guests have left: free the table</source>
        <translation>Tamu sudah pergi: kosongkan meja</translation>
    </message>
    <message>
        <source>Do you want to print this invoice?</source>
        <translation>Cetak faktur ini?</translation>
    </message>
    <message>
        <source>Are you done with this table: %1 ?</source>
        <translation>Apakah meja ini sudah selesai: %1 ?</translation>
    </message>
    <message>
        <source>Please save this invoice first</source>
        <translation>Simpan faktur ini dahulu</translation>
    </message>
    <message>
        <source>Select a table</source>
        <translation>Pilih meja</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>Please split the invoice first</source>
        <translation>Pisahkan faktur dahulu</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Simpan</translation>
    </message>
    <message>
        <source>Are you sure you want to split this invoice? Please make sure everything is correct.</source>
        <translation>Yakin ingin memisah faktur ini? Pastikan semuanya sudah benar.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Kesalahan</translation>
    </message>
    <message>
        <source>This invoice is already paid</source>
        <translation>Faktur ini sudah dibayar</translation>
    </message>
    <message>
        <source>There is no invoice to split</source>
        <translation>Tidak ada faktur untuk dipisah</translation>
    </message>
    <message>
        <source> Split: </source>
        <translation> Pisah: </translation>
    </message>
</context>
<context>
    <name>DialogBayarMakanDitempatDetailSplit</name>
    <message>
        <source>Pay Apart</source>
        <translation>Bayar Terpisah</translation>
    </message>
    <message>
        <source>Code :</source>
        <translation>Kode :</translation>
    </message>
    <message>
        <source>Name :</source>
        <translation>Nama :</translation>
    </message>
    <message>
        <source>Qty :</source>
        <translation>Jml :</translation>
    </message>
    <message>
        <source>Split :</source>
        <translation>Pisah :</translation>
    </message>
    <message>
        <source>Split Group :</source>
        <translation>Kelompok Pisah :</translation>
    </message>
    <message>
        <source>Grp %1</source>
        <translation>Grup %1</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>Split number should be less than equal to the number of orders</source>
        <translation>Jumlah yang dipisah tidak boleh melebihi jumlah pesanan</translation>
    </message>
</context>
<context>
    <name>DialogBayarPiutang</name>
    <message>
        <source>Pay an Invoice</source>
        <translation>Bayar Faktur</translation>
    </message>
    <message>
        <source>Invoice No. :</source>
        <translation>No. Faktur :</translation>
    </message>
    <message>
        <source>Enter the amount paid</source>
        <translation>Isi jumlah bayar</translation>
    </message>
</context>
<context>
    <name>DialogCashFlow</name>
    <message>
        <source>Entry Form</source>
        <translation>Formulir Isian</translation>
    </message>
    <message>
        <source>Trans. No. :</source>
        <translation>No. Trans. :</translation>
    </message>
    <message>
        <source>Operator :</source>
        <translation>Operator :</translation>
    </message>
    <message>
        <source>Date :</source>
        <translation>Tanggal :</translation>
    </message>
    <message>
        <source>Type :</source>
        <translation>Jenis :</translation>
    </message>
    <message>
        <source>Account Code :</source>
        <translation>Kode Akun :</translation>
    </message>
    <message>
        <source>Account Name :</source>
        <translation>Nama Akun :</translation>
    </message>
    <message>
        <source>Amount :</source>
        <translation>Jumlah Uang :</translation>
    </message>
    <message>
        <source>Description :</source>
        <translation>Keterangan :</translation>
    </message>
    <message>
        <source>DEBET</source>
        <translation>DEBET</translation>
    </message>
    <message>
        <source>CREDIT</source>
        <translation>KREDIT</translation>
    </message>
    <message>
        <source>There is no account with the code: %1</source>
        <translation>Tidak ada akun dengan kode: %1</translation>
    </message>
    <message>
        <source>Select account code</source>
        <translation>Pilih kode akun</translation>
    </message>
    <message>
        <source>Enter the amount paid</source>
        <translation>Isi jumlah bayar</translation>
    </message>
    <message>
        <source>Enter valid date</source>
        <translation>Isi tanggal yang benar</translation>
    </message>
</context>
<context>
    <name>DialogCashierAndKitchenPrinter</name>
    <message>
        <source>Cashier Printer Form</source>
        <translation>Formulir Printer Kasir</translation>
    </message>
    <message>
        <source>Printer :</source>
        <translation>Printer :</translation>
    </message>
    <message>
        <source>Type :</source>
        <translation>Jenis :</translation>
    </message>
    <message>
        <source>Auto Cutter :</source>
        <translation>Pemotong Otomatis :</translation>
    </message>
    <message>
        <source>Notes :</source>
        <translation>Catatan :</translation>
    </message>
    <message>
        <source>Number of Copies :</source>
        <translation>Jumlah Salinan :</translation>
    </message>
    <message>
        <source>Columns :</source>
        <translation>Kolom :</translation>
    </message>
    <message>
        <source>Empty Rows :</source>
        <translation>Baris Kosong :</translation>
    </message>
    <message>
        <source>This database has no settings of the cashier printer. Please update the database.</source>
        <translation>Basis data ini tidak punya pengaturan printer kasir. Perbarui basis data.</translation>
    </message>
    <message>
        <source>Print a Test Slip</source>
        <translation>Cetak Slip Uji</translation>
    </message>
    <message>
        <source>Print with these settings, saved or not (F8)</source>
        <translation>Cetak dengan pengaturan ini, sudah disimpan atau belum (F8)</translation>
    </message>
    <message>
        <source>F8</source>
        <translation>F8</translation>
    </message>
</context>
<context>
    <name>DialogClearTransactions</name>
    <message>
        <source>Clear Transactions</source>
        <translation>Kosongkan Transaksi</translation>
    </message>
    <message>
        <source>Empties everything that was sold, bought, paid and counted. Items, tables, people, users, rights, numbers and settings stay. A backup is made first; without a good one nothing is cleared.</source>
        <translation>Mengosongkan semua penjualan, pembelian, pembayaran dan hitungan. Barang, meja, orang, pengguna, hak, nomor dan pengaturan tetap. Cadangan dibuat dahulu; tanpa cadangan yang baik tidak ada yang dikosongkan.</translation>
    </message>
    <message>
        <source>DB Host :</source>
        <translation>Host DB :</translation>
    </message>
    <message>
        <source>DB Name :</source>
        <translation>Nama DB :</translation>
    </message>
    <message>
        <source>DB User :</source>
        <translation>Pengguna DB :</translation>
    </message>
    <message>
        <source>DB Password :</source>
        <translation>Kata Sandi DB :</translation>
    </message>
    <message>
        <source>DB Port :</source>
        <translation>Port DB :</translation>
    </message>
    <message>
        <source>Backup File :</source>
        <translation>Berkas Cadangan :</translation>
    </message>
    <message>
        <source>Browse</source>
        <translation>Telusuri</translation>
    </message>
    <message>
        <source>Backup and Clear Transactions</source>
        <translation>Cadangkan dan Kosongkan Transaksi</translation>
    </message>
    <message>
        <source>Status :</source>
        <translation>Status :</translation>
    </message>
    <message>
        <source>Enter a valid backup file path</source>
        <translation>Isi lokasi berkas cadangan yang benar</translation>
    </message>
    <message>
        <source>The program has no connection to its database. Nothing was cleared.</source>
        <translation>Program tidak tersambung ke basis datanya. Tidak ada yang dikosongkan.</translation>
    </message>
    <message>
        <source>The connection above leads to another database than the one that this program works with. Nothing was backed up, and nothing was cleared.</source>
        <translation>Sambungan di atas menuju basis data lain dari yang dipakai program ini. Tidak ada yang dicadangkan, dan tidak ada yang dikosongkan.</translation>
    </message>
    <message>
        <source>dumping your db...</source>
        <translation>mencadangkan db Anda...</translation>
    </message>
    <message>
        <source>pg_dump started...</source>
        <translation>pg_dump dimulai...</translation>
    </message>
    <message>
        <source>Nothing was cleared.</source>
        <translation>Tidak ada yang dikosongkan.</translation>
    </message>
    <message>
        <source>process exited with code: %1 , status: %2</source>
        <translation>proses berakhir dengan kode: %1 , status: %2</translation>
    </message>
    <message>
        <source>Nothing was cleared: it could not be made sure that the backup is one of the database that this program works with.</source>
        <translation>Tidak ada yang dikosongkan: tidak dapat dipastikan bahwa cadangan itu berasal dari basis data yang dipakai program ini.</translation>
    </message>
    <message>
        <source>The backup can not be read again. Nothing was cleared.</source>
        <translation>Cadangan tidak dapat dibaca kembali. Tidak ada yang dikosongkan.</translation>
    </message>
    <message>
        <source>Somebody saved something while the backup was made, and the backup does not hold it: %1. Nothing was cleared. Please close the program at all other workstations and try again.</source>
        <translation>Ada yang menyimpan sesuatu saat cadangan dibuat, dan itu tidak ada di cadangan: %1. Tidak ada yang dikosongkan. Tutup program di semua komputer lain lalu coba lagi.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Kesalahan</translation>
    </message>
    <message>
        <source>All transactions were cleared. They are in the backup.</source>
        <translation>Semua transaksi sudah dikosongkan. Semuanya ada di cadangan.</translation>
    </message>
    <message>
        <source>What is marked by [error] was not cleared; the reason stands there. Everything is in the backup.</source>
        <translation>Yang bertanda [gagal] tidak dikosongkan; sebabnya tertulis di sana. Semuanya ada di cadangan.</translation>
    </message>
    <message>
        <source>Done. </source>
        <translation>Selesai. </translation>
    </message>
    <message>
        <source>Error: %1</source>
        <translation>Kesalahan: %1</translation>
    </message>
    <message>
        <source>resetting transactions: %1</source>
        <translation>mengosongkan transaksi: %1</translation>
    </message>
    <message>
        <source> [ok]</source>
        <translation> [ok]</translation>
    </message>
    <message>
        <source> [error]</source>
        <translation> [gagal]</translation>
    </message>
</context>
<context>
    <name>DialogConverter</name>
    <message>
        <source>Converter</source>
        <translation>Konverter</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Asal</translation>
    </message>
    <message>
        <source>Host :</source>
        <translation>Host :</translation>
    </message>
    <message>
        <source>User :</source>
        <translation>Pengguna :</translation>
    </message>
    <message>
        <source>Password :</source>
        <translation>Kata Sandi :</translation>
    </message>
    <message>
        <source>Port :</source>
        <translation>Port :</translation>
    </message>
    <message>
        <source>Database :</source>
        <translation>Basis Data :</translation>
    </message>
    <message>
        <source>Target</source>
        <translation>Tujuan</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Status:</translation>
    </message>
    <message>
        <source>Convert</source>
        <translation>Konversi</translation>
    </message>
    <message>
        <source>%1 on %2:%3, as %4</source>
        <translation>%1 pada %2:%3, sebagai %4</translation>
    </message>
    <message>
        <source>Enter the source host</source>
        <translation>Isi host asal</translation>
    </message>
    <message>
        <source>Enter the source database username</source>
        <translation>Isi nama pengguna basis data asal</translation>
    </message>
    <message>
        <source>Enter the source database password</source>
        <translation>Isi kata sandi basis data asal</translation>
    </message>
    <message>
        <source>Enter the source database port</source>
        <translation>Isi port basis data asal</translation>
    </message>
    <message>
        <source>Enter the source database name</source>
        <translation>Isi nama basis data asal</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>Question</source>
        <translation>Pertanyaan</translation>
    </message>
    <message>
        <source>The data are still being brought over. Do you want to stop? What has been brought over stays, and another run adds the rest.</source>
        <translation>Data masih dipindahkan. Ingin berhenti? Yang sudah dipindahkan tetap ada, dan sisanya ditambahkan pada proses berikutnya.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Kesalahan</translation>
    </message>
</context>
<context>
    <name>DialogCreditNote</name>
    <message>
        <source>Credit Note Form</source>
        <translation>Formulir Nota Kredit</translation>
    </message>
    <message>
        <source>Supplier :</source>
        <translation>Pemasok :</translation>
    </message>
    <message>
        <source>Name :</source>
        <translation>Nama :</translation>
    </message>
    <message>
        <source>Address :</source>
        <translation>Alamat :</translation>
    </message>
    <message>
        <source>Phone :</source>
        <translation>Telepon :</translation>
    </message>
    <message>
        <source>Description :</source>
        <translation>Keterangan :</translation>
    </message>
    <message>
        <source>Credit Note No. :</source>
        <translation>No. Nota Kredit :</translation>
    </message>
    <message>
        <source>Date :</source>
        <translation>Tanggal :</translation>
    </message>
    <message>
        <source>Status :</source>
        <translation>Status :</translation>
    </message>
    <message>
        <source>Purchase No. :</source>
        <translation>No. Pembelian :</translation>
    </message>
    <message>
        <source>Amount Paid :</source>
        <translation>Dibayar :</translation>
    </message>
    <message>
        <source>Select a supplier</source>
        <translation>Pilih pemasok</translation>
    </message>
    <message>
        <source>Add one or more items</source>
        <translation>Tambahkan satu barang atau lebih</translation>
    </message>
    <message>
        <source>Enter the Accounts Payable</source>
        <translation>Isi Utang Usaha</translation>
    </message>
    <message>
        <source>Enter the valid Accounts Payable</source>
        <translation>Isi Utang Usaha yang benar</translation>
    </message>
    <message>
        <source>[F3] From Invoice</source>
        <translation>[F3] Dari Faktur</translation>
    </message>
    <message>
        <source>[F4] Item</source>
        <translation>[F4] Barang</translation>
    </message>
    <message>
        <source>Full Paid</source>
        <translation>Lunas</translation>
    </message>
    <message>
        <source>Unpaid</source>
        <translation>Belum Dibayar</translation>
    </message>
    <message>
        <source>Partially Paid</source>
        <translation>Dibayar Sebagian</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Dibatalkan</translation>
    </message>
    <message>
        <source>There should be minimal one item returned</source>
        <translation>Paling sedikit satu barang harus dikembalikan</translation>
    </message>
    <message>
        <source>The purchase is of another supplier</source>
        <translation>Pembelian ini dari pemasok lain</translation>
    </message>
    <message>
        <source>Enter the amount paid</source>
        <translation>Isi jumlah bayar</translation>
    </message>
</context>
<context>
    <name>DialogCreditNoteInvoice</name>
    <message>
        <source>Enter the item code</source>
        <translation>Isi kode barang</translation>
    </message>
    <message>
        <source>Enter the purchase price of this item</source>
        <translation>Isi harga beli barang ini</translation>
    </message>
    <message>
        <source>Enter the qty</source>
        <translation>Isi jumlah</translation>
    </message>
    <message>
        <source>Returned :</source>
        <translation>Dikembalikan :</translation>
    </message>
    <message>
        <source>Item from Invoice</source>
        <translation>Barang dari Faktur</translation>
    </message>
    <message>
        <source>Bought :</source>
        <translation>Dibeli :</translation>
    </message>
    <message>
        <source>Returned before :</source>
        <translation>Sudah dikembalikan :</translation>
    </message>
    <message>
        <source>No more than %1 of this item can go back for the purchase</source>
        <translation>Dari pembelian ini paling banyak %1 yang dapat dikembalikan</translation>
    </message>
</context>
<context>
    <name>DialogCreditNotePurchases</name>
    <message>
        <source>Enter the item code</source>
        <translation>Isi kode barang</translation>
    </message>
    <message>
        <source>Enter the purchase price of this item</source>
        <translation>Isi harga beli barang ini</translation>
    </message>
    <message>
        <source>Enter the qty</source>
        <translation>Isi jumlah</translation>
    </message>
    <message>
        <source>Qty :</source>
        <translation>Jml :</translation>
    </message>
    <message>
        <source>Returned Item</source>
        <translation>Barang Retur</translation>
    </message>
</context>
<context>
    <name>DialogDataPerusahaan</name>
    <message>
        <source>Company Profile</source>
        <translation>Profil Perusahaan</translation>
    </message>
    <message>
        <source>Company Name * :</source>
        <translation>Nama Perusahaan * :</translation>
    </message>
    <message>
        <source>Address * :</source>
        <translation>Alamat * :</translation>
    </message>
    <message>
        <source>Phone * :</source>
        <translation>Telepon * :</translation>
    </message>
    <message>
        <source>Fax :</source>
        <translation>Faks :</translation>
    </message>
    <message>
        <source>Tax ID Numbers :</source>
        <translation>NPWP :</translation>
    </message>
    <message>
        <source>Date of Establishment :</source>
        <translation>Tanggal Pengukuhan PKP :</translation>
    </message>
    <message>
        <source>Logo :</source>
        <translation>Logo :</translation>
    </message>
    <message>
        <source>Load Image</source>
        <translation>Muat Gambar</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Ulang dari Awal</translation>
    </message>
    <message>
        <source>Enter company name</source>
        <translation>Isi nama perusahaan</translation>
    </message>
    <message>
        <source>Enter company address</source>
        <translation>Isi alamat perusahaan</translation>
    </message>
    <message>
        <source>Enter phone no</source>
        <translation>Isi no. telepon</translation>
    </message>
    <message>
        <source>Open Image</source>
        <translation>Buka Gambar</translation>
    </message>
    <message>
        <source>Image Files (*.png)</source>
        <translation>Berkas Gambar (*.png)</translation>
    </message>
    <message>
        <source>The file is no PNG picture: %1</source>
        <translation>Berkas ini bukan gambar PNG: %1</translation>
    </message>
</context>
<context>
    <name>DialogEmployee</name>
    <message>
        <source>Employee Form</source>
        <translation>Formulir Karyawan</translation>
    </message>
    <message>
        <source>Employee ID :</source>
        <translation>ID Karyawan :</translation>
    </message>
    <message>
        <source>-</source>
        <translation>-</translation>
    </message>
    <message>
        <source>Code :</source>
        <translation>Kode :</translation>
    </message>
    <message>
        <source>Name :</source>
        <translation>Nama :</translation>
    </message>
    <message>
        <source>Address :</source>
        <translation>Alamat :</translation>
    </message>
    <message>
        <source>Phone :</source>
        <translation>Telepon :</translation>
    </message>
    <message>
        <source>Email :</source>
        <translation>Email :</translation>
    </message>
    <message>
        <source>Enter the employee code</source>
        <translation>Isi kode karyawan</translation>
    </message>
    <message>
        <source>This employee code is already in use, please enter another code</source>
        <translation>Kode karyawan ini sudah dipakai, isi kode lain</translation>
    </message>
    <message>
        <source>Enter the employee name</source>
        <translation>Isi nama karyawan</translation>
    </message>
    <message>
        <source>Enter the employee address</source>
        <translation>Isi alamat karyawan</translation>
    </message>
    <message>
        <source>Enter the phone no</source>
        <translation>Isi no. telepon</translation>
    </message>
    <message>
        <source>Enter the valid email address</source>
        <translation>Isi alamat email yang benar</translation>
    </message>
</context>
<context>
    <name>DialogFastFood</name>
    <message>
        <source>Fast Food Form</source>
        <translation>Formulir Makanan Cepat Saji</translation>
    </message>
    <message>
        <source>Invoice No. :</source>
        <translation>No. Faktur :</translation>
    </message>
    <message>
        <source>Member :</source>
        <translation>Anggota :</translation>
    </message>
    <message>
        <source>Name :</source>
        <translation>Nama :</translation>
    </message>
    <message>
        <source>Agent :</source>
        <translation>Agen :</translation>
    </message>
    <message>
        <source>Waitress :</source>
        <translation>Pramusaji :</translation>
    </message>
    <message>
        <source>Date :</source>
        <translation>Tanggal :</translation>
    </message>
    <message>
        <source>Cash Account :</source>
        <translation>Akun Kas :</translation>
    </message>
    <message>
        <source>Description :</source>
        <translation>Keterangan :</translation>
    </message>
    <message>
        <source>Total Invoice :</source>
        <translation>Total Faktur :</translation>
    </message>
</context>
<context>
    <name>DialogFilterJenisItem</name>
    <message>
        <source>Select Item Types</source>
        <translation>Pilih Jenis Barang</translation>
    </message>
</context>
<context>
    <name>DialogInventoryAdj</name>
    <message>
        <source>Inventory Adjustment Form</source>
        <translation>Formulir Penyesuaian Persediaan</translation>
    </message>
    <message>
        <source>Item Code :</source>
        <translation>Kode Barang :</translation>
    </message>
    <message>
        <source>Name :</source>
        <translation>Nama :</translation>
    </message>
    <message>
        <source>Date :</source>
        <translation>Tanggal :</translation>
    </message>
    <message>
        <source>Qty on Hand :</source>
        <translation>Jumlah Stok :</translation>
    </message>
    <message>
        <source>Adjust Qty by :</source>
        <translation>Sesuaikan Jumlah :</translation>
    </message>
    <message>
        <source>What was counted beyond the quantity on hand; with a minus, what is missing</source>
        <translation>Kelebihan hitungan dari jumlah stok; dengan tanda minus, kekurangannya</translation>
    </message>
    <message>
        <source>New Qty :</source>
        <translation>Jumlah Baru :</translation>
    </message>
    <message>
        <source>Reason to Adjust :</source>
        <translation>Alasan Penyesuaian :</translation>
    </message>
    <message>
        <source>Other Reason :</source>
        <translation>Alasan Lain :</translation>
    </message>
    <message>
        <source>GL Source Account :</source>
        <translation>Akun GL Asal :</translation>
    </message>
    <message>
        <source>Account Name :</source>
        <translation>Nama Akun :</translation>
    </message>
    <message>
        <source>Broken</source>
        <translation>Rusak</translation>
    </message>
    <message>
        <source>Loss</source>
        <translation>Rugi</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Lainnya</translation>
    </message>
    <message>
        <source>Enter the item code</source>
        <translation>Isi kode barang</translation>
    </message>
    <message>
        <source>The quantity on hand is not known, please choose the item again</source>
        <translation>Jumlah stok tidak diketahui, pilih barang sekali lagi</translation>
    </message>
    <message>
        <source>Enter the qty adjustment of the item</source>
        <translation>Isi jumlah penyesuaian barang</translation>
    </message>
    <message>
        <source>The new qty is more than can be counted</source>
        <translation>Jumlah baru melebihi yang dapat dihitung</translation>
    </message>
    <message>
        <source>Select GL Source Account</source>
        <translation>Pilih Akun GL Asal</translation>
    </message>
    <message>
        <source>Select a valid GL Source Account</source>
        <translation>Pilih Akun GL Asal yang benar</translation>
    </message>
    <message>
        <source>On %1 %2 of this item were bought, %3 sold and %4 returned. They count on top of an adjustment of that day, although the quantity on hand that you see includes them.</source>
        <translation>Pada %1 barang ini dibeli %2, dijual %3, dan dikembalikan %4. Semua itu dihitung lagi di atas penyesuaian hari itu, padahal stok yang tampak sudah termasuk itu.</translation>
    </message>
    <message>
        <source>Question</source>
        <translation>Pertanyaan</translation>
    </message>
    <message>
        <source>Do you want to date it on %1?</source>
        <translation>Apakah tanggalnya dijadikan %1?</translation>
    </message>
</context>
<context>
    <name>DialogItem</name>
    <message>
        <source>Item Form</source>
        <translation>Formulir Barang</translation>
    </message>
    <message>
        <source>&amp;Item detail</source>
        <translation>R&amp;incian barang</translation>
    </message>
    <message>
        <source>Item ID:</source>
        <translation>ID Barang:</translation>
    </message>
    <message>
        <source>-</source>
        <translation>-</translation>
    </message>
    <message>
        <source>Class:</source>
        <translation>Kelas:</translation>
    </message>
    <message>
        <source>Stock Item (INV)</source>
        <translation>Barang Stok (INV)</translation>
    </message>
    <message>
        <source>Menu / Service (SRV)</source>
        <translation>Menu / Jasa (SRV)</translation>
    </message>
    <message>
        <source>Code:</source>
        <translation>Kode:</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Nama:</translation>
    </message>
    <message>
        <source>Item Type:</source>
        <translation>Jenis Barang:</translation>
    </message>
    <message>
        <source>Unit:</source>
        <translation>Satuan:</translation>
    </message>
    <message>
        <source>Unit Cost:</source>
        <translation>Biaya Satuan:</translation>
    </message>
    <message>
        <source>Sales Price :</source>
        <translation>Harga Jual :</translation>
    </message>
    <message>
        <source>Notes:</source>
        <translation>Catatan:</translation>
    </message>
    <message>
        <source>Grouped:</source>
        <translation>Paket:</translation>
    </message>
    <message>
        <source>Yes [Please click Save then enter the Components]</source>
        <translation>Ya [Klik Simpan lalu isi Komponennya]</translation>
    </message>
    <message>
        <source>&amp;Components</source>
        <translation>&amp;Komponen</translation>
    </message>
    <message>
        <source>&amp;GL Accounts</source>
        <translation>Akun &amp;GL</translation>
    </message>
    <message>
        <source>Enter the item code</source>
        <translation>Isi kode barang</translation>
    </message>
    <message>
        <source>This item code is already in use please use another code</source>
        <translation>Kode barang ini sudah dipakai, gunakan kode lain</translation>
    </message>
    <message>
        <source>Enter the item name</source>
        <translation>Isi nama barang</translation>
    </message>
    <message>
        <source>Select the item type</source>
        <translation>Pilih jenis barang</translation>
    </message>
    <message>
        <source>Select the item unit</source>
        <translation>Pilih satuan barang</translation>
    </message>
    <message>
        <source>Enter the unit cost</source>
        <translation>Isi harga satuan</translation>
    </message>
    <message>
        <source>Enter sales price</source>
        <translation>Isi harga jual</translation>
    </message>
    <message>
        <source>Enter the Sales Account</source>
        <translation>Isi Akun Penjualan</translation>
    </message>
    <message>
        <source>Enter the Inventory Account</source>
        <translation>Isi Akun Persediaan</translation>
    </message>
    <message>
        <source>Enter the Cost of Sales Account</source>
        <translation>Isi Akun Harga Pokok Penjualan</translation>
    </message>
</context>
<context>
    <name>DialogJenisItem</name>
    <message>
        <source>Item Type Form</source>
        <translation>Formulir Jenis Barang</translation>
    </message>
    <message>
        <source>Item Type ID :</source>
        <translation>ID Jenis Barang :</translation>
    </message>
    <message>
        <source>-</source>
        <translation>-</translation>
    </message>
    <message>
        <source>Code :</source>
        <translation>Kode :</translation>
    </message>
    <message>
        <source>Name :</source>
        <translation>Nama :</translation>
    </message>
    <message>
        <source>Enter the code</source>
        <translation>Isi kode</translation>
    </message>
    <message>
        <source>This code is already in use please use another code</source>
        <translation>Kode ini sudah dipakai, gunakan kode lain</translation>
    </message>
    <message>
        <source>Enter the name</source>
        <translation>Isi nama</translation>
    </message>
</context>
<context>
    <name>DialogKeyTable</name>
    <message>
        <source>Running Number Form</source>
        <translation>Formulir Nomor Urut</translation>
    </message>
    <message>
        <source>Name :</source>
        <translation>Nama :</translation>
    </message>
    <message>
        <source>Next Id :</source>
        <translation>Id Berikutnya :</translation>
    </message>
    <message>
        <source>Increment By :</source>
        <translation>Kenaikan :</translation>
    </message>
    <message>
        <source>Number of Zero :</source>
        <translation>Jumlah Nol :</translation>
    </message>
    <message>
        <source>Format :</source>
        <translation>Format :</translation>
    </message>
    <message>
        <source>Description :</source>
        <translation>Keterangan :</translation>
    </message>
    <message>
        <source>Enter Next Id</source>
        <translation>Isi Id Berikutnya</translation>
    </message>
    <message>
        <source>Enter valid number for Next Id</source>
        <translation>Isi angka yang benar untuk Id Berikutnya</translation>
    </message>
    <message>
        <source>Enter Increment Value</source>
        <translation>Isi Nilai Kenaikan</translation>
    </message>
    <message>
        <source>Enter valid number for Increment value</source>
        <translation>Isi angka yang benar untuk Nilai Kenaikan</translation>
    </message>
    <message>
        <source>Enter Number of zero</source>
        <translation>Isi Jumlah Nol</translation>
    </message>
    <message>
        <source>Enter valid number for Number of zero</source>
        <translation>Isi angka yang benar untuk Jumlah Nol</translation>
    </message>
    <message>
        <source>Enter Format</source>
        <translation>Isi Format</translation>
    </message>
    <message>
        <source>Enter Description</source>
        <translation>Isi Keterangan</translation>
    </message>
</context>
<context>
    <name>DialogKeyboard</name>
    <message>
        <source>Keyboard</source>
        <translation>Papan Ketik</translation>
    </message>
    <message>
        <source>1</source>
        <translation>1</translation>
    </message>
    <message>
        <source>2</source>
        <translation>2</translation>
    </message>
    <message>
        <source>3</source>
        <translation>3</translation>
    </message>
    <message>
        <source>4</source>
        <translation>4</translation>
    </message>
    <message>
        <source>5</source>
        <translation>5</translation>
    </message>
    <message>
        <source>6</source>
        <translation>6</translation>
    </message>
    <message>
        <source>7</source>
        <translation>7</translation>
    </message>
    <message>
        <source>8</source>
        <translation>8</translation>
    </message>
    <message>
        <source>9</source>
        <translation>9</translation>
    </message>
    <message>
        <source>0</source>
        <translation>0</translation>
    </message>
    <message>
        <source>BACKSPACE</source>
        <translation>HAPUS HURUF</translation>
    </message>
    <message>
        <source>Q</source>
        <translation>Q</translation>
    </message>
    <message>
        <source>W</source>
        <translation>W</translation>
    </message>
    <message>
        <source>E</source>
        <translation>E</translation>
    </message>
    <message>
        <source>R</source>
        <translation>R</translation>
    </message>
    <message>
        <source>T</source>
        <translation>T</translation>
    </message>
    <message>
        <source>Y</source>
        <translation>Y</translation>
    </message>
    <message>
        <source>U</source>
        <translation>U</translation>
    </message>
    <message>
        <source>I</source>
        <translation>I</translation>
    </message>
    <message>
        <source>O</source>
        <translation>O</translation>
    </message>
    <message>
        <source>P</source>
        <translation>P</translation>
    </message>
    <message>
        <source>A</source>
        <translation>A</translation>
    </message>
    <message>
        <source>S</source>
        <translation>S</translation>
    </message>
    <message>
        <source>D</source>
        <translation>D</translation>
    </message>
    <message>
        <source>F</source>
        <translation>F</translation>
    </message>
    <message>
        <source>G</source>
        <translation>G</translation>
    </message>
    <message>
        <source>H</source>
        <translation>H</translation>
    </message>
    <message>
        <source>J</source>
        <translation>J</translation>
    </message>
    <message>
        <source>K</source>
        <translation>K</translation>
    </message>
    <message>
        <source>L</source>
        <translation>L</translation>
    </message>
    <message>
        <source>;</source>
        <translation>;</translation>
    </message>
    <message>
        <source>ENTER</source>
        <translation>ENTER</translation>
    </message>
    <message>
        <source>Z</source>
        <translation>Z</translation>
    </message>
    <message>
        <source>X</source>
        <translation>X</translation>
    </message>
    <message>
        <source>C</source>
        <translation>C</translation>
    </message>
    <message>
        <source>V</source>
        <translation>V</translation>
    </message>
    <message>
        <source>B</source>
        <translation>B</translation>
    </message>
    <message>
        <source>N</source>
        <translation>N</translation>
    </message>
    <message>
        <source>M</source>
        <translation>M</translation>
    </message>
    <message>
        <source>,</source>
        <translation>,</translation>
    </message>
    <message>
        <source>.</source>
        <translation>.</translation>
    </message>
    <message>
        <source>/</source>
        <translation>/</translation>
    </message>
    <message>
        <source>CLEAR</source>
        <translation>KOSONG</translation>
    </message>
    <message>
        <source>SPACE</source>
        <translation>SPASI</translation>
    </message>
</context>
<context>
    <name>DialogKitchenFoodPrinter</name>
    <message>
        <source>Kitchen Printer Form</source>
        <translation>Formulir Printer Dapur</translation>
    </message>
    <message>
        <source>Kitchen * :</source>
        <translation>Dapur * :</translation>
    </message>
    <message>
        <source>Printer :</source>
        <translation>Printer :</translation>
    </message>
    <message>
        <source>Auto Print :</source>
        <translation>Cetak Otomatis :</translation>
    </message>
    <message>
        <source>Print the slip by itself when an order is sent</source>
        <translation>Cetak slip otomatis saat pesanan dikirim</translation>
    </message>
    <message>
        <source>Type :</source>
        <translation>Jenis :</translation>
    </message>
    <message>
        <source>Auto Cutter :</source>
        <translation>Pemotong Otomatis :</translation>
    </message>
    <message>
        <source>Number of Copies :</source>
        <translation>Jumlah Salinan :</translation>
    </message>
    <message>
        <source>Columns :</source>
        <translation>Kolom :</translation>
    </message>
    <message>
        <source>Empty Rows :</source>
        <translation>Baris Kosong :</translation>
    </message>
    <message>
        <source>Item Types :</source>
        <translation>Jenis Barang :</translation>
    </message>
    <message>
        <source>Browse</source>
        <translation>Telusuri</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Kosongkan</translation>
    </message>
    <message>
        <source>Note: Clear this text box to print all item types</source>
        <translation>Catatan: Kosongkan kotak ini untuk mencetak semua jenis barang</translation>
    </message>
    <message>
        <source>Enter the kitchen name</source>
        <translation>Isi nama dapur</translation>
    </message>
    <message>
        <source>Say what a changed line was</source>
        <translation>Sebutkan baris berubah dari apa</translation>
    </message>
    <message>
        <source>A changed dish is printed with its quantity in all, and with the quantity and the wish that it had before</source>
        <translation>Masakan yang berubah dicetak dengan jumlah seluruhnya, serta jumlah dan pesan semula</translation>
    </message>
    <message>
        <source>Print a Test Slip</source>
        <translation>Cetak Slip Uji</translation>
    </message>
    <message>
        <source>Print with these settings, saved or not (F8)</source>
        <translation>Cetak dengan pengaturan ini, sudah disimpan atau belum (F8)</translation>
    </message>
    <message>
        <source>F8</source>
        <translation>F8</translation>
    </message>
    <message>
        <source>(no printer: the kitchen&apos;s screen)</source>
        <translation>(tanpa printer: layar dapur)</translation>
    </message>
    <message>
        <source>A kitchen&apos;s slips are cut as the type of the cashier printer says.</source>
        <translation>Slip dapur dipotong menurut jenis printer kasir.</translation>
    </message>
</context>
<context>
    <name>DialogKomisiAgen</name>
    <message>
        <source>Agent Commission Payment Form</source>
        <translation>Formulir Pembayaran Komisi Agen</translation>
    </message>
    <message>
        <source>Payment No. :</source>
        <translation>No. Pembayaran :</translation>
    </message>
    <message>
        <source>Agent :</source>
        <translation>Agen :</translation>
    </message>
    <message>
        <source>Name :</source>
        <translation>Nama :</translation>
    </message>
    <message>
        <source>Address :</source>
        <translation>Alamat :</translation>
    </message>
    <message>
        <source>Phone :</source>
        <translation>Telepon :</translation>
    </message>
    <message>
        <source>E-mail :</source>
        <translation>E-mail :</translation>
    </message>
    <message>
        <source>Commission (%) :</source>
        <translation>Komisi (%) :</translation>
    </message>
    <message>
        <source>Total :</source>
        <translation>Total :</translation>
    </message>
    <message>
        <source>Date :</source>
        <translation>Tanggal :</translation>
    </message>
    <message>
        <source>Expense Account :</source>
        <translation>Akun Beban :</translation>
    </message>
    <message>
        <source>Reference No. :</source>
        <translation>No. Referensi :</translation>
    </message>
    <message>
        <source>Amount Paid :</source>
        <translation>Dibayar :</translation>
    </message>
    <message>
        <source>Less :</source>
        <translation>Kurang :</translation>
    </message>
    <message>
        <source>Description :</source>
        <translation>Keterangan :</translation>
    </message>
    <message>
        <source>[F3] Sales Invoices</source>
        <translation>[F3] Faktur Penjualan</translation>
    </message>
    <message>
        <source>Select an agent</source>
        <translation>Pilih agen</translation>
    </message>
    <message>
        <source>Add one or more sales invoices</source>
        <translation>Tambahkan satu faktur penjualan atau lebih</translation>
    </message>
    <message>
        <source>Enter the amount paid for this Invoice no: %1</source>
        <translation>Isi jumlah bayar untuk Faktur no: %1 ini</translation>
    </message>
    <message>
        <source>Please select an Expense Account</source>
        <translation>Pilih Akun Beban</translation>
    </message>
    <message>
        <source>Please select a valid Expense Account</source>
        <translation>Pilih Akun Beban yang benar</translation>
    </message>
    <message>
        <source>Change :</source>
        <translation>Kembali :</translation>
    </message>
    <message>
        <source>The amount paid less than the total invoice</source>
        <translation>Jumlah bayar kurang dari total faktur</translation>
    </message>
</context>
<context>
    <name>DialogLogin</name>
    <message>
        <source>Login</source>
        <translation>Login</translation>
    </message>
    <message>
        <source>Username :</source>
        <translation>Nama Pengguna :</translation>
    </message>
    <message>
        <source>Password :</source>
        <translation>Kata Sandi :</translation>
    </message>
    <message>
        <source>Default login: admin / Qx7!Rm2z</source>
        <translation>Login awal: admin / Qx7!Rm2z</translation>
    </message>
    <message>
        <source>Please enter username and password</source>
        <translation>Isi nama pengguna dan kata sandi</translation>
    </message>
    <message>
        <source>Invalid login</source>
        <translation>Login salah</translation>
    </message>
</context>
<context>
    <name>DialogMakanDitempat</name>
    <message>
        <source>Please select a table</source>
        <translation>Pilih meja</translation>
    </message>
</context>
<context>
    <name>DialogMeja</name>
    <message>
        <source>Table Form</source>
        <translation>Formulir Meja</translation>
    </message>
    <message>
        <source>Table ID :</source>
        <translation>ID Meja :</translation>
    </message>
    <message>
        <source>-</source>
        <translation>-</translation>
    </message>
    <message>
        <source>Code :</source>
        <translation>Kode :</translation>
    </message>
    <message>
        <source>Name :</source>
        <translation>Nama :</translation>
    </message>
    <message>
        <source>Enter the table code</source>
        <translation>Isi kode meja</translation>
    </message>
    <message>
        <source>This table code is already in use please use another code</source>
        <translation>Kode meja ini sudah dipakai, gunakan kode lain</translation>
    </message>
    <message>
        <source>Enter the table name</source>
        <translation>Isi nama meja</translation>
    </message>
</context>
<context>
    <name>DialogMember</name>
    <message>
        <source>Member Form</source>
        <translation>Formulir Anggota</translation>
    </message>
    <message>
        <source>Member ID :</source>
        <translation>ID Anggota :</translation>
    </message>
    <message>
        <source>-</source>
        <translation>-</translation>
    </message>
    <message>
        <source>Code :</source>
        <translation>Kode :</translation>
    </message>
    <message>
        <source>Name :</source>
        <translation>Nama :</translation>
    </message>
    <message>
        <source>Address :</source>
        <translation>Alamat :</translation>
    </message>
    <message>
        <source>Phone :</source>
        <translation>Telepon :</translation>
    </message>
    <message>
        <source>Email :</source>
        <translation>Email :</translation>
    </message>
    <message>
        <source>Expired Date :</source>
        <translation>Tanggal Kedaluwarsa :</translation>
    </message>
    <message>
        <source>Discount :</source>
        <translation>Diskon :</translation>
    </message>
    <message>
        <source>%</source>
        <translation>%</translation>
    </message>
    <message>
        <source>Enter the member code</source>
        <translation>Isi kode anggota</translation>
    </message>
    <message>
        <source>This member code is already used please use another code</source>
        <translation>Kode anggota ini sudah dipakai, gunakan kode lain</translation>
    </message>
    <message>
        <source>Enter the member name</source>
        <translation>Isi nama anggota</translation>
    </message>
    <message>
        <source>Enter the address</source>
        <translation>Isi alamat</translation>
    </message>
    <message>
        <source>enter the telp no.</source>
        <translation>isi no. telp.</translation>
    </message>
    <message>
        <source>Enter the valid email address</source>
        <translation>Isi alamat email yang benar</translation>
    </message>
</context>
<context>
    <name>DialogPayment</name>
    <message>
        <source>Bill Payment Form</source>
        <translation>Formulir Pembayaran Tagihan</translation>
    </message>
    <message>
        <source>Payment No. :</source>
        <translation>No. Pembayaran :</translation>
    </message>
    <message>
        <source>Supplier :</source>
        <translation>Pemasok :</translation>
    </message>
    <message>
        <source>Name :</source>
        <translation>Nama :</translation>
    </message>
    <message>
        <source>Address :</source>
        <translation>Alamat :</translation>
    </message>
    <message>
        <source>Phone :</source>
        <translation>Telepon :</translation>
    </message>
    <message>
        <source>Cash Account :</source>
        <translation>Akun Kas :</translation>
    </message>
    <message>
        <source>Total :</source>
        <translation>Total :</translation>
    </message>
    <message>
        <source>Date :</source>
        <translation>Tanggal :</translation>
    </message>
    <message>
        <source>Payment Type :</source>
        <translation>Jenis Bayar :</translation>
    </message>
    <message>
        <source>Check No. :</source>
        <translation>No. Cek :</translation>
    </message>
    <message>
        <source>Reference No. :</source>
        <translation>No. Referensi :</translation>
    </message>
    <message>
        <source>Description :</source>
        <translation>Keterangan :</translation>
    </message>
    <message>
        <source>[F3] Purchase Invoices</source>
        <translation>[F3] Faktur Pembelian</translation>
    </message>
    <message>
        <source>[F4] Items</source>
        <translation>[F4] Barang</translation>
    </message>
    <message>
        <source>Select a supplier</source>
        <translation>Pilih pemasok</translation>
    </message>
    <message>
        <source>Please select a valid Cash Accounts</source>
        <translation>Pilih Akun Kas yang benar</translation>
    </message>
    <message>
        <source>The quantity received for this item: %1 should be more than zero</source>
        <translation>Jumlah diterima untuk barang ini: %1 harus lebih dari nol</translation>
    </message>
    <message>
        <source>Enter the amount paid for one or more purchase invoices, or add an item</source>
        <translation>Isi jumlah bayar untuk satu faktur pembelian atau lebih, atau tambahkan barang</translation>
    </message>
    <message>
        <source>Purchase invoice no: %1 was paid or changed by somebody else meanwhile. Do you want to pay it all the same?</source>
        <translation>Faktur pembelian no: %1 sementara itu dibayar atau diubah orang lain. Tetap ingin membayarnya?</translation>
    </message>
    <message>
        <source>Question</source>
        <translation>Pertanyaan</translation>
    </message>
</context>
<context>
    <name>DialogPaymentExpenses</name>
    <message>
        <source>Enter the item code</source>
        <translation>Isi kode barang</translation>
    </message>
    <message>
        <source>Enter the purchase price of this item</source>
        <translation>Isi harga beli barang ini</translation>
    </message>
    <message>
        <source>Enter the quantity of this item</source>
        <translation>Isi jumlah barang ini</translation>
    </message>
    <message>
        <source>Qty :</source>
        <translation>Jml :</translation>
    </message>
    <message>
        <source>Pay for an Item</source>
        <translation>Bayar Barang</translation>
    </message>
</context>
<context>
    <name>DialogPaymentInvoice</name>
    <message>
        <source>Pay a Purchase Invoice</source>
        <translation>Bayar Faktur Pembelian</translation>
    </message>
    <message>
        <source>Purchase Invoice No. :</source>
        <translation>No. Faktur Pembelian :</translation>
    </message>
    <message>
        <source>Enter a valid value for the amount paid</source>
        <translation>Isi jumlah bayar yang benar</translation>
    </message>
</context>
<context>
    <name>DialogPiutang</name>
    <message>
        <source>Member Payment Form</source>
        <translation>Formulir Pembayaran Anggota</translation>
    </message>
    <message>
        <source>Payment No. :</source>
        <translation>No. Pembayaran :</translation>
    </message>
    <message>
        <source>Member :</source>
        <translation>Anggota :</translation>
    </message>
    <message>
        <source>Name :</source>
        <translation>Nama :</translation>
    </message>
    <message>
        <source>Receivable Account :</source>
        <translation>Akun Piutang :</translation>
    </message>
    <message>
        <source>Description :</source>
        <translation>Keterangan :</translation>
    </message>
    <message>
        <source>Total :</source>
        <translation>Total :</translation>
    </message>
    <message>
        <source>Date :</source>
        <translation>Tanggal :</translation>
    </message>
    <message>
        <source>Payment Type :</source>
        <translation>Jenis Bayar :</translation>
    </message>
    <message>
        <source>Check No. :</source>
        <translation>No. Cek :</translation>
    </message>
    <message>
        <source>Reference No. :</source>
        <translation>No. Referensi :</translation>
    </message>
    <message>
        <source>[F3] Sales Invoices</source>
        <translation>[F3] Faktur Penjualan</translation>
    </message>
    <message>
        <source>Select a member</source>
        <translation>Pilih anggota</translation>
    </message>
    <message>
        <source>Enter one or more sales invoice</source>
        <translation>Isi satu faktur penjualan atau lebih</translation>
    </message>
    <message>
        <source>Enter the amount paid for the invoice no: %1</source>
        <translation>Isi jumlah bayar untuk faktur no: %1</translation>
    </message>
    <message>
        <source>Please select an Accounts Receivable</source>
        <translation>Pilih Piutang Usaha</translation>
    </message>
    <message>
        <source>Please select a valid Accounts Receivable</source>
        <translation>Pilih Piutang Usaha yang benar</translation>
    </message>
    <message>
        <source>%1 on %2</source>
        <translation>%1 pada %2</translation>
    </message>
    <message>
        <source>Question</source>
        <translation>Pertanyaan</translation>
    </message>
    <message>
        <source>Credit stands on these invoices that no member&apos;s payment accounts for, as of a card at the sale: %1. This payment takes its place, and the sum is due again.</source>
        <translation>Pada faktur ini ada kredit tanpa pembayaran anggota, misalnya kartu saat penjualan: %1. Pembayaran ini menggantikannya, dan jumlah itu terutang lagi.</translation>
    </message>
    <message>
        <source>Do you want to save this payment all the same?</source>
        <translation>Apakah pembayaran ini tetap disimpan?</translation>
    </message>
</context>
<context>
    <name>DialogPrinter</name>
    <message>
        <source>Printer Test</source>
        <translation>Uji Printer</translation>
    </message>
    <message>
        <source>Printer :</source>
        <translation>Printer :</translation>
    </message>
    <message>
        <source>Text :</source>
        <translation>Teks :</translation>
    </message>
    <message>
        <source>Test</source>
        <translation>Uji</translation>
    </message>
    <message>
        <source>[default]</source>
        <translation>[bawaan]</translation>
    </message>
</context>
<context>
    <name>DialogPurchaseDetail</name>
    <message>
        <source>Enter the item code</source>
        <translation>Isi kode barang</translation>
    </message>
    <message>
        <source>Enter the purchase price of the item</source>
        <translation>Isi harga beli barang</translation>
    </message>
    <message>
        <source>Enter the qty of the item</source>
        <translation>Isi jumlah barang</translation>
    </message>
    <message>
        <source>Qty :</source>
        <translation>Jml :</translation>
    </message>
    <message>
        <source>Purchase Item</source>
        <translation>Barang Pembelian</translation>
    </message>
</context>
<context>
    <name>DialogPurchaseDetailPO</name>
    <message>
        <source>Enter the item code</source>
        <translation>Isi kode barang</translation>
    </message>
    <message>
        <source>Enter the purchase price of the item</source>
        <translation>Isi harga beli barang</translation>
    </message>
    <message>
        <source>Enter the qty received</source>
        <translation>Isi jumlah yang diterima</translation>
    </message>
    <message>
        <source>Received :</source>
        <translation>Diterima :</translation>
    </message>
    <message>
        <source>Item from Purchase Order</source>
        <translation>Barang dari Pesanan Pembelian</translation>
    </message>
    <message>
        <source>Ordered :</source>
        <translation>Dipesan :</translation>
    </message>
</context>
<context>
    <name>DialogPurchaseOrder</name>
    <message>
        <source>Purchase Order Form</source>
        <translation>Formulir Pesanan Pembelian</translation>
    </message>
    <message>
        <source>Supplier :</source>
        <translation>Pemasok :</translation>
    </message>
    <message>
        <source>Name :</source>
        <translation>Nama :</translation>
    </message>
    <message>
        <source>Address :</source>
        <translation>Alamat :</translation>
    </message>
    <message>
        <source>Phone :</source>
        <translation>Telepon :</translation>
    </message>
    <message>
        <source>Description : [F4]</source>
        <translation>Keterangan : [F4]</translation>
    </message>
    <message>
        <source>PO No. :</source>
        <translation>No. PO :</translation>
    </message>
    <message>
        <source>Date :</source>
        <translation>Tanggal :</translation>
    </message>
    <message>
        <source>Ship Date :</source>
        <translation>Tanggal Kirim :</translation>
    </message>
    <message>
        <source>Status :</source>
        <translation>Status :</translation>
    </message>
    <message>
        <source>Bank Account No. :</source>
        <translation>No. Rekening Bank :</translation>
    </message>
    <message>
        <source>Sent to Supplier</source>
        <translation>Dikirim ke Pemasok</translation>
    </message>
    <message>
        <source>Received</source>
        <translation>Diterima</translation>
    </message>
    <message>
        <source>Order Changed</source>
        <translation>Pesanan Diubah</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Dibatalkan</translation>
    </message>
    <message>
        <source>Closed</source>
        <translation>Ditutup</translation>
    </message>
    <message>
        <source>Deposit :</source>
        <translation>Uang Muka :</translation>
    </message>
    <message>
        <source>Select a supplier</source>
        <translation>Pilih pemasok</translation>
    </message>
    <message>
        <source>Insert one or more item</source>
        <translation>Tambahkan satu barang atau lebih</translation>
    </message>
    <message>
        <source>Please select an Accounts Payable</source>
        <translation>Pilih Utang Usaha</translation>
    </message>
    <message>
        <source>Please select a valid Accounts Payable</source>
        <translation>Pilih Utang Usaha yang benar</translation>
    </message>
    <message>
        <source>[F3] Items</source>
        <translation>[F3] Barang</translation>
    </message>
</context>
<context>
    <name>DialogPurchaseOrderDetail</name>
    <message>
        <source>Enter the item code</source>
        <translation>Isi kode barang</translation>
    </message>
    <message>
        <source>Enter the purchase price of the item</source>
        <translation>Isi harga beli barang</translation>
    </message>
    <message>
        <source>Enter the qty of the item</source>
        <translation>Isi jumlah barang</translation>
    </message>
    <message>
        <source>Qty :</source>
        <translation>Jml :</translation>
    </message>
    <message>
        <source>Purchase Order Item</source>
        <translation>Barang Pesanan Pembelian</translation>
    </message>
</context>
<context>
    <name>DialogPurchases</name>
    <message>
        <source>Purchase/Receive Inventory Form</source>
        <translation>Formulir Pembelian/Penerimaan Barang</translation>
    </message>
    <message>
        <source>Supplier :</source>
        <translation>Pemasok :</translation>
    </message>
    <message>
        <source>Name :</source>
        <translation>Nama :</translation>
    </message>
    <message>
        <source>Address :</source>
        <translation>Alamat :</translation>
    </message>
    <message>
        <source>Phone :</source>
        <translation>Telepon :</translation>
    </message>
    <message>
        <source>Description :</source>
        <translation>Keterangan :</translation>
    </message>
    <message>
        <source>Purchase No. :</source>
        <translation>No. Pembelian :</translation>
    </message>
    <message>
        <source>Date :</source>
        <translation>Tanggal :</translation>
    </message>
    <message>
        <source>Due Date :</source>
        <translation>Jatuh Tempo :</translation>
    </message>
    <message>
        <source>Invoice No. :</source>
        <translation>No. Faktur :</translation>
    </message>
    <message>
        <source>Select a supplier</source>
        <translation>Pilih pemasok</translation>
    </message>
    <message>
        <source>Please add one or more items</source>
        <translation>Tambahkan satu barang atau lebih</translation>
    </message>
    <message>
        <source>Please select an Accounts Payable</source>
        <translation>Pilih Utang Usaha</translation>
    </message>
    <message>
        <source>Please select a valid Accounts Payable</source>
        <translation>Pilih Utang Usaha yang benar</translation>
    </message>
    <message>
        <source>[F3] Purchases</source>
        <translation>[F3] Pembelian</translation>
    </message>
    <message>
        <source>[F4] from Purchase Order</source>
        <translation>[F4] dari Pesanan Pembelian</translation>
    </message>
    <message>
        <source>Please enter a valid qty for this item %1</source>
        <translation>Isi jumlah yang benar untuk barang %1</translation>
    </message>
    <message>
        <source>The purchase order is of another supplier</source>
        <translation>Pesanan pembelian ini dari pemasok lain</translation>
    </message>
</context>
<context>
    <name>DialogSatuan</name>
    <message>
        <source>Unit Form</source>
        <translation>Formulir Satuan</translation>
    </message>
    <message>
        <source>Unit ID :</source>
        <translation>ID Satuan :</translation>
    </message>
    <message>
        <source>-</source>
        <translation>-</translation>
    </message>
    <message>
        <source>Name :</source>
        <translation>Nama :</translation>
    </message>
    <message>
        <source>Code :</source>
        <translation>Kode :</translation>
    </message>
    <message>
        <source>Enter the unit name</source>
        <translation>Isi nama satuan</translation>
    </message>
    <message>
        <source>Enter the unit code</source>
        <translation>Isi kode satuan</translation>
    </message>
    <message>
        <source>This unit code is already in use please use another code</source>
        <translation>Kode satuan ini sudah dipakai, gunakan kode lain</translation>
    </message>
</context>
<context>
    <name>DialogSelectInventory</name>
    <message>
        <source>Select an inventory item</source>
        <translation>Pilih barang persediaan</translation>
    </message>
</context>
<context>
    <name>DialogSelectMenu</name>
    <message>
        <source>Select a menu</source>
        <translation>Pilih menu</translation>
    </message>
</context>
<context>
    <name>DialogSelectPO</name>
    <message>
        <source>Select Open Purchase Order Form</source>
        <translation>Formulir Pilih Pesanan Pembelian Terbuka</translation>
    </message>
    <message>
        <source>Purchase Orders</source>
        <translation>Pesanan Pembelian</translation>
    </message>
</context>
<context>
    <name>DialogSelectPurchases</name>
    <message>
        <source>Select Purchases</source>
        <translation>Pilih Pembelian</translation>
    </message>
    <message>
        <source>Purchases</source>
        <translation>Pembelian</translation>
    </message>
</context>
<context>
    <name>DialogSelectSplitInvoice</name>
    <message>
        <source>Select an Invoice</source>
        <translation>Pilih Faktur</translation>
    </message>
    <message>
        <source>Invoices</source>
        <translation>Faktur</translation>
    </message>
</context>
<context>
    <name>DialogSetPercentage</name>
    <message>
        <source>Set the Commission</source>
        <translation>Tetapkan Komisi</translation>
    </message>
    <message>
        <source>Invoice No. :</source>
        <translation>No. Faktur :</translation>
    </message>
    <message>
        <source>Invoice Total :</source>
        <translation>Total Faktur :</translation>
    </message>
    <message>
        <source>Commission (%) :</source>
        <translation>Komisi (%) :</translation>
    </message>
    <message>
        <source>Total Commission :</source>
        <translation>Total Komisi :</translation>
    </message>
    <message>
        <source>Enter a valid value between 0-100</source>
        <translation>Isi nilai yang benar antara 0-100</translation>
    </message>
</context>
<context>
    <name>DialogStokAwal</name>
    <message>
        <source>Beginning Balance Form</source>
        <translation>Formulir Saldo Awal</translation>
    </message>
    <message>
        <source>Item Code :</source>
        <translation>Kode Barang :</translation>
    </message>
    <message>
        <source>Name :</source>
        <translation>Nama :</translation>
    </message>
    <message>
        <source>Unit Cost :</source>
        <translation>Biaya Satuan :</translation>
    </message>
    <message>
        <source>Qty :</source>
        <translation>Jml :</translation>
    </message>
    <message>
        <source>Enter the item code</source>
        <translation>Isi kode barang</translation>
    </message>
    <message>
        <source>Enter the unit cost</source>
        <translation>Isi harga satuan</translation>
    </message>
    <message>
        <source>Enter the qty of the item</source>
        <translation>Isi jumlah barang</translation>
    </message>
</context>
<context>
    <name>DialogSubItem</name>
    <message>
        <source>Subitem Form</source>
        <translation>Formulir Sub Barang</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Kode</translation>
    </message>
    <message>
        <source>Name :</source>
        <translation>Nama :</translation>
    </message>
    <message>
        <source>Unit Cost :</source>
        <translation>Biaya Satuan :</translation>
    </message>
    <message>
        <source>Qty :</source>
        <translation>Jml :</translation>
    </message>
    <message>
        <source>Enter the item code</source>
        <translation>Isi kode barang</translation>
    </message>
    <message>
        <source>Enter the qty</source>
        <translation>Isi jumlah</translation>
    </message>
    <message>
        <source>This item is already in the list, please update it</source>
        <translation>Barang ini sudah ada di daftar, silakan perbarui</translation>
    </message>
    <message>
        <source>An item cannot be its own component</source>
        <translation>Barang tidak dapat menjadi komponennya sendiri</translation>
    </message>
    <message>
        <source>%1 is made of this item, it cannot be a component of it</source>
        <translation>%1 dibuat dari barang ini, jadi tidak dapat menjadi komponennya</translation>
    </message>
</context>
<context>
    <name>DialogSupplier</name>
    <message>
        <source>Supplier Form</source>
        <translation>Formulir Pemasok</translation>
    </message>
    <message>
        <source>Supplier ID :</source>
        <translation>ID Pemasok :</translation>
    </message>
    <message>
        <source>-</source>
        <translation>-</translation>
    </message>
    <message>
        <source>Code :</source>
        <translation>Kode :</translation>
    </message>
    <message>
        <source>Name :</source>
        <translation>Nama :</translation>
    </message>
    <message>
        <source>Address :</source>
        <translation>Alamat :</translation>
    </message>
    <message>
        <source>Phone :</source>
        <translation>Telepon :</translation>
    </message>
    <message>
        <source>Email :</source>
        <translation>Email :</translation>
    </message>
    <message>
        <source>Account :</source>
        <translation>Akun :</translation>
    </message>
    <message>
        <source>Account No. :</source>
        <translation>No. Rekening :</translation>
    </message>
    <message>
        <source>Account Name :</source>
        <translation>Nama Akun :</translation>
    </message>
    <message>
        <source>Description :</source>
        <translation>Keterangan :</translation>
    </message>
    <message>
        <source>Enter the supplier code</source>
        <translation>Isi kode pemasok</translation>
    </message>
    <message>
        <source>This supplier code is already in use please use another code</source>
        <translation>Kode pemasok ini sudah dipakai, gunakan kode lain</translation>
    </message>
    <message>
        <source>Enter the supplier name</source>
        <translation>Isi nama pemasok</translation>
    </message>
    <message>
        <source>Enter the supplier address</source>
        <translation>Isi alamat pemasok</translation>
    </message>
    <message>
        <source>Enter the telp no</source>
        <translation>Isi no. telp</translation>
    </message>
    <message>
        <source>Enter the valid email address</source>
        <translation>Isi alamat email yang benar</translation>
    </message>
</context>
<context>
    <name>DialogTransaction</name>
    <message>
        <source>Transfer Form</source>
        <translation>Formulir Pemindahan Dana</translation>
    </message>
    <message>
        <source>Trans. No. :</source>
        <translation>No. Trans. :</translation>
    </message>
    <message>
        <source>Operator :</source>
        <translation>Operator :</translation>
    </message>
    <message>
        <source>Date :</source>
        <translation>Tanggal :</translation>
    </message>
    <message>
        <source>Source Acc. Code :</source>
        <translation>Kode Akun Asal :</translation>
    </message>
    <message>
        <source>Source Acc. Name :</source>
        <translation>Nama Akun Asal :</translation>
    </message>
    <message>
        <source>Destination Acc. Code :</source>
        <translation>Kode Akun Tujuan :</translation>
    </message>
    <message>
        <source>Destination Acc. Name :</source>
        <translation>Nama Akun Tujuan :</translation>
    </message>
    <message>
        <source>Amount Paid :</source>
        <translation>Dibayar :</translation>
    </message>
    <message>
        <source>Description :</source>
        <translation>Keterangan :</translation>
    </message>
    <message>
        <source>There is no account with the code: %1</source>
        <translation>Tidak ada akun dengan kode: %1</translation>
    </message>
    <message>
        <source>Enter the source account code</source>
        <translation>Isi kode akun asal</translation>
    </message>
    <message>
        <source>Enter the destination account code</source>
        <translation>Isi kode akun tujuan</translation>
    </message>
    <message>
        <source>The source account code should not be the same as the destination account code</source>
        <translation>Kode akun asal tidak boleh sama dengan kode akun tujuan</translation>
    </message>
    <message>
        <source>Enter amount paid</source>
        <translation>Isi jumlah bayar</translation>
    </message>
    <message>
        <source>Enter date</source>
        <translation>Isi tanggal</translation>
    </message>
</context>
<context>
    <name>DialogUser</name>
    <message>
        <source>User Form</source>
        <translation>Formulir Pengguna</translation>
    </message>
    <message>
        <source>User ID :</source>
        <translation>ID Pengguna :</translation>
    </message>
    <message>
        <source>Username :</source>
        <translation>Nama Pengguna :</translation>
    </message>
    <message>
        <source>First Name :</source>
        <translation>Nama Depan :</translation>
    </message>
    <message>
        <source>Last Name :</source>
        <translation>Nama Belakang :</translation>
    </message>
    <message>
        <source>Password :</source>
        <translation>Kata Sandi :</translation>
    </message>
    <message>
        <source>User Group :</source>
        <translation>Grup Pengguna :</translation>
    </message>
    <message>
        <source>Enter Username</source>
        <translation>Isi Nama Pengguna</translation>
    </message>
    <message>
        <source>Enter alpha numeric for Username</source>
        <translation>Nama Pengguna hanya boleh huruf dan angka</translation>
    </message>
    <message>
        <source>Username already exists</source>
        <translation>Nama pengguna sudah ada</translation>
    </message>
    <message>
        <source>Enter First Name</source>
        <translation>Isi Nama Depan</translation>
    </message>
    <message>
        <source>Enter Last Name</source>
        <translation>Isi Nama Belakang</translation>
    </message>
    <message>
        <source>Select the user group</source>
        <translation>Pilih grup pengguna</translation>
    </message>
</context>
<context>
    <name>DialogUserAccess</name>
    <message>
        <source>User Access Form</source>
        <translation>Formulir Hak Akses Pengguna</translation>
    </message>
    <message>
        <source>Group :</source>
        <translation>Grup :</translation>
    </message>
    <message>
        <source>Business :</source>
        <translation>Bisnis :</translation>
    </message>
    <message>
        <source>Permission :</source>
        <translation>Izin :</translation>
    </message>
    <message>
        <source>Access Type :</source>
        <translation>Jenis Akses :</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Tidak ada</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Semua</translation>
    </message>
    <message>
        <source>Owner</source>
        <translation>Pemilik</translation>
    </message>
</context>
<context>
    <name>DialogUserGroup</name>
    <message>
        <source>User Group Form</source>
        <translation>Formulir Grup Pengguna</translation>
    </message>
    <message>
        <source>Group ID :</source>
        <translation>ID Grup :</translation>
    </message>
    <message>
        <source>Group Name :</source>
        <translation>Nama Grup :</translation>
    </message>
    <message>
        <source>Enter Group Name</source>
        <translation>Isi Nama Grup</translation>
    </message>
    <message>
        <source>This group name already exists</source>
        <translation>Nama grup ini sudah ada</translation>
    </message>
</context>
<context>
    <name>DocumentNumber</name>
    <message>
        <source>Can not draw a new number for %1. Please try again.</source>
        <translation>Nomor baru untuk %1 tidak dapat diambil. Silakan coba lagi.</translation>
    </message>
</context>
<context>
    <name>DocumentStep</name>
    <message>
        <source>row %1</source>
        <translation>baris %1</translation>
    </message>
    <message>
        <source>it has no number</source>
        <translation>tidak ada nomornya</translation>
    </message>
    <message>
        <source>the number exists already</source>
        <translation>nomornya sudah ada</translation>
    </message>
    <message>
        <source>too long for &quot;%1&quot; and cut, in full &quot;%2&quot;</source>
        <translation>terlalu panjang untuk &quot;%1&quot; dan dipotong, lengkapnya &quot;%2&quot;</translation>
    </message>
    <message>
        <source>deleted in the former system</source>
        <translation>dihapus di sistem lama</translation>
    </message>
    <message>
        <source>without a date, %1 took its place</source>
        <translation>tanpa tanggal, %1 dipakai sebagai gantinya</translation>
    </message>
    <message>
        <source>its lines could not be read</source>
        <translation>barisnya tidak dapat dibaca</translation>
    </message>
    <message>
        <source>its document was not written</source>
        <translation>dokumennya tidak ditulis</translation>
    </message>
</context>
<context>
    <name>EmployeeTextBox</name>
    <message>
        <source>Code</source>
        <translation>Kode</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nama</translation>
    </message>
</context>
<context>
    <name>EntityAcquisition</name>
    <message>
        <source>Fully Paid</source>
        <translation>Lunas</translation>
    </message>
    <message>
        <source>Unpaid</source>
        <translation>Belum Dibayar</translation>
    </message>
    <message>
        <source>Partially Paid</source>
        <translation>Dibayar Sebagian</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Tidak ada</translation>
    </message>
</context>
<context>
    <name>FolderSlipSpooler</name>
    <message>
        <source>The folder %1 cannot be made.</source>
        <translation>Folder %1 tidak dapat dibuat.</translation>
    </message>
    <message>
        <source>The printer %1 does not exist.</source>
        <translation>Printer %1 tidak ada.</translation>
    </message>
</context>
<context>
    <name>FreshInstallPage</name>
    <message>
        <source>Fresh Installation Details</source>
        <translation>Rincian Pemasangan Baru</translation>
    </message>
    <message>
        <source>Below you should enter your database connection details and administrator account profiles.</source>
        <translation>Isi rincian sambungan basis data dan akun administrator di bawah ini.</translation>
    </message>
    <message>
        <source>Hostname:</source>
        <translation>Nama Host:</translation>
    </message>
    <message>
        <source>Username:</source>
        <translation>Nama Pengguna:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Kata Sandi:</translation>
    </message>
    <message>
        <source>Database Name:</source>
        <translation>Nama Basis Data:</translation>
    </message>
    <message>
        <source>Database Port:</source>
        <translation>Port Basis Data:</translation>
    </message>
    <message>
        <source>Admin Username:</source>
        <translation>Nama Pengguna Admin:</translation>
    </message>
    <message>
        <source>Admin Password:</source>
        <translation>Kata Sandi Admin:</translation>
    </message>
    <message>
        <source>How numbers and money are written, and in which currency the first items are priced</source>
        <translation>Cara angka dan uang ditulis, dan mata uang harga barang pertama</translation>
    </message>
    <message>
        <source>Locale (ISO 639) :</source>
        <translation>Lokal (ISO 639) :</translation>
    </message>
    <message>
        <source>Where the server has no database of this name yet, the program offers to create it</source>
        <translation>Bila server belum memiliki basis data bernama ini, program menawarkan untuk membuatnya</translation>
    </message>
</context>
<context>
    <name>HelpWindow</name>
    <message>
        <source>Manual</source>
        <translation>Panduan</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Kembali</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Maju</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Daftar Isi</translation>
    </message>
    <message>
        <source>Find in the page:</source>
        <translation>Cari di halaman:</translation>
    </message>
    <message>
        <source>Return goes on to the next place (Ctrl+F)</source>
        <translation>Return melanjutkan ke tempat berikutnya (Ctrl+F)</translation>
    </message>
    <message>
        <source>The manual is not here</source>
        <translation>Panduan tidak ada di sini</translation>
    </message>
    <message>
        <source>Its pages were not installed with the program. They belong into this folder: %1</source>
        <translation>Halamannya tidak terpasang bersama program. Tempatnya di folder ini: %1</translation>
    </message>
</context>
<context>
    <name>InstallProgressPage</name>
    <message>
        <source>Installing...</source>
        <translation>Memasang...</translation>
    </message>
    <message>
        <source>Please wait until the installation completed.</source>
        <translation>Tunggu sampai pemasangan selesai.</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Status:</translation>
    </message>
    <message>
        <source>Every update tells this one; nothing is wrong.</source>
        <translation>Pesan ini muncul pada setiap pembaruan; tidak ada yang salah.</translation>
    </message>
    <message>
        <source>Failed steps: %1. The particulars are in the log file.</source>
        <translation>Langkah yang gagal: %1. Rinciannya ada di berkas log.</translation>
    </message>
</context>
<context>
    <name>IntroPage</name>
    <message>
        <source>&amp;Fresh Installation</source>
        <translation>Pasang &amp;Baru</translation>
    </message>
    <message>
        <source>Introduction</source>
        <translation>Pengantar</translation>
    </message>
    <message>
        <source>This wizard will help you install ZavelPOS on your computer. Please select installation type.</source>
        <translation>Panduan ini membantu memasang ZavelPOS di komputer Anda. Pilih jenis pemasangan.</translation>
    </message>
    <message>
        <source>&amp;Restore from Backup File</source>
        <translation>&amp;Pulihkan dari Berkas Cadangan</translation>
    </message>
    <message>
        <source>Lay down empty tables in a database that exists already</source>
        <translation>Buat tabel kosong di basis data yang sudah ada</translation>
    </message>
    <message>
        <source>Go on with the data of a backup, in a new database or in an existing one</source>
        <translation>Lanjutkan dengan data dari cadangan, di basis data baru atau yang sudah ada</translation>
    </message>
</context>
<context>
    <name>InventoryTextBox</name>
    <message>
        <source>Code</source>
        <translation>Kode</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nama</translation>
    </message>
</context>
<context>
    <name>Invoice</name>
    <message>
        <source>Fully Paid</source>
        <translation>Lunas</translation>
    </message>
    <message>
        <source>Unpaid</source>
        <translation>Belum Dibayar</translation>
    </message>
    <message>
        <source>Partially Paid</source>
        <translation>Dibayar Sebagian</translation>
    </message>
</context>
<context>
    <name>InvoiceLinesModel</name>
    <message>
        <source>Code</source>
        <translation>Kode</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nama</translation>
    </message>
    <message>
        <source>Qty</source>
        <translation>Jml</translation>
    </message>
    <message>
        <source>Split</source>
        <translation>Pisah</translation>
    </message>
    <message>
        <source>Split Group</source>
        <translation>Kelompok</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Satuan</translation>
    </message>
    <message>
        <source>Unit Price</source>
        <translation>Harga Satuan</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Jumlah Uang</translation>
    </message>
</context>
<context>
    <name>InvoiceLinesTab</name>
    <message>
        <source>%1 Items</source>
        <translation>%1 Barang</translation>
    </message>
</context>
<context>
    <name>ItemTextBox</name>
    <message>
        <source>Code of an item (Ctrl+F)</source>
        <translation>Kode barang (Ctrl+F)</translation>
    </message>
    <message>
        <source>Item :</source>
        <translation>Barang :</translation>
    </message>
    <message>
        <source>Item Code</source>
        <translation>Kode Barang</translation>
    </message>
    <message>
        <source>Item Name</source>
        <translation>Nama Barang</translation>
    </message>
</context>
<context>
    <name>KorBusinessLogic</name>
    <message>
        <source>create transaction failed</source>
        <translation>pembuatan transaksi gagal</translation>
    </message>
</context>
<context>
    <name>KorDialog</name>
    <message>
        <source>Error</source>
        <translation>Kesalahan</translation>
    </message>
    <message>
        <source>Question</source>
        <translation>Pertanyaan</translation>
    </message>
    <message>
        <source>Do you want to go on?</source>
        <translation>Apakah Anda ingin melanjutkan?</translation>
    </message>
</context>
<context>
    <name>KorEmptyHint</name>
    <message>
        <source>Nothing to show here.</source>
        <translation>Tidak ada data.</translation>
    </message>
</context>
<context>
    <name>KorFailure</name>
    <message>
        <source>This code, name or number is already in use.</source>
        <translation>Kode, nama, atau nomor ini sudah dipakai.</translation>
    </message>
    <message>
        <source>This is still in use, so it can not be deleted.</source>
        <translation>Ini masih dipakai, jadi tidak bisa dihapus.</translation>
    </message>
    <message>
        <source>Something that this refers to has been deleted, or is still in use.</source>
        <translation>Data yang dirujuk sudah dihapus, atau masih dipakai.</translation>
    </message>
    <message>
        <source>A value is missing.</source>
        <translation>Ada isian yang belum diisi.</translation>
    </message>
    <message>
        <source>A text is longer than there is room for.</source>
        <translation>Ada teks yang terlalu panjang.</translation>
    </message>
    <message>
        <source>A number is larger than there is room for.</source>
        <translation>Ada angka yang terlalu besar.</translation>
    </message>
    <message>
        <source>A text holds a character that can not be stored.</source>
        <translation>Ada teks dengan karakter yang tidak bisa disimpan.</translation>
    </message>
    <message>
        <source>The disk of the database server is full. Nothing can be saved until there is room.</source>
        <translation>Disk server basis data penuh. Tidak ada yang bisa disimpan sampai ada ruang lagi.</translation>
    </message>
    <message>
        <source>The database server is read-only at the moment. Nothing can be saved.</source>
        <translation>Server basis data saat ini hanya bisa dibaca. Tidak ada yang bisa disimpan.</translation>
    </message>
    <message>
        <source>Another workstation was working on the same records at this moment.</source>
        <translation>Komputer lain sedang mengerjakan data yang sama pada saat ini.</translation>
    </message>
    <message>
        <source>The program&apos;s user of the database may not do this.</source>
        <translation>Pengguna basis data program ini tidak berhak melakukannya.</translation>
    </message>
    <message>
        <source>The database lacks something that this program needs. It may have to be updated.</source>
        <translation>Basis data tidak punya sesuatu yang diperlukan program ini. Mungkin perlu diperbarui.</translation>
    </message>
    <message>
        <source>The database could not do this.</source>
        <translation>Basis data tidak dapat melakukannya.</translation>
    </message>
    <message>
        <source>The connection to the database was lost at the very moment of saving, so it is not certain whether it was saved.</source>
        <translation>Sambungan ke basis data terputus tepat saat menyimpan, sehingga tidak pasti apakah sudah tersimpan.</translation>
    </message>
    <message>
        <source>Please look for it before you save it again.</source>
        <translation>Periksa dahulu sebelum menyimpan lagi.</translation>
    </message>
    <message>
        <source>The connection to the database is lost.</source>
        <translation>Sambungan ke basis data terputus.</translation>
    </message>
    <message>
        <source>Please try again in a moment; if that does not help, see whether the database server is running.</source>
        <translation>Coba lagi sebentar; bila tidak membantu, periksa apakah server basis data berjalan.</translation>
    </message>
    <message>
        <source>Somebody else is working on the same records, and did not let go of them: %1.</source>
        <translation>Orang lain sedang mengerjakan catatan yang sama dan belum melepaskannya: %1.</translation>
    </message>
    <message>
        <source>Please try again in a moment.</source>
        <translation>Silakan coba lagi sebentar lagi.</translation>
    </message>
</context>
<context>
    <name>KorInstaller</name>
    <message>
        <source>Initializing...</source>
        <translation>Mempersiapkan...</translation>
    </message>
    <message>
        <source>Creating/Updating tables...</source>
        <translation>Membuat/memperbarui tabel...</translation>
    </message>
    <message>
        <source>Inserting initial datas...</source>
        <translation>Memasukkan data awal...</translation>
    </message>
    <message>
        <source>Registering permissions...</source>
        <translation>Mendaftarkan izin...</translation>
    </message>
    <message>
        <source>Done. Please restart the app</source>
        <translation>Selesai. Silakan jalankan ulang aplikasi</translation>
    </message>
    <message>
        <source>This database is being installed or updated at this very moment, from here or from another workstation. Please wait until that has ended.</source>
        <translation>Basis data ini sedang dipasang atau diperbarui, dari sini atau dari komputer lain. Tunggu sampai selesai.</translation>
    </message>
    <message>
        <source>The connection to the database was lost on the way, and steps failed. Please run it again.</source>
        <translation>Sambungan ke basis data terputus di tengah jalan, dan ada langkah yang gagal. Jalankan sekali lagi.</translation>
    </message>
    <message>
        <source> installed</source>
        <translation> terpasang</translation>
    </message>
    <message>
        <source> error: </source>
        <translation> kesalahan: </translation>
    </message>
    <message>
        <source>Tables or columns of the new version could not be made. The database keeps the version that it had; please run the update again.</source>
        <translation>Tabel atau kolom versi baru tidak dapat dibuat. Basis data tetap pada versi sebelumnya; jalankan pembaruan sekali lagi.</translation>
    </message>
</context>
<context>
    <name>KorNumberEdit</name>
    <message>
        <source>&quot;%1&quot; is no number here, please write it like %2</source>
        <translation>&quot;%1&quot; bukan angka di sini, tulislah seperti %2</translation>
    </message>
    <message>
        <source>Please enter a number</source>
        <translation>Isi dengan angka</translation>
    </message>
</context>
<context>
    <name>KorServerWitness</name>
    <message>
        <source>Another program</source>
        <translation>Program lain</translation>
    </message>
    <message>
        <source>%1, since %2</source>
        <translation>%1, sejak %2</translation>
    </message>
</context>
<context>
    <name>KorTextBoxExtender</name>
    <message>
        <source>No result</source>
        <translation>Tidak ada hasil</translation>
    </message>
</context>
<context>
    <name>KorWaitingPanel</name>
    <message>
        <source>Waiting for the server...</source>
        <translation>Menunggu server...</translation>
    </message>
    <message>
        <source>Stop waiting</source>
        <translation>Berhenti menunggu</translation>
    </message>
    <message>
        <source>or press Esc</source>
        <translation>atau tekan Esc</translation>
    </message>
    <message>
        <source>Working on the same records: %1</source>
        <translation>Sedang mengerjakan catatan yang sama: %1</translation>
    </message>
</context>
<context>
    <name>LedgerTotals</name>
    <message>
        <source>Total Debit :</source>
        <translation>Total Debet :</translation>
    </message>
    <message>
        <source>Total Credit :</source>
        <translation>Total Kredit :</translation>
    </message>
    <message>
        <source>Ending Balance :</source>
        <translation>Saldo Akhir :</translation>
    </message>
</context>
<context>
    <name>LinesPage</name>
    <message>
        <source>Add</source>
        <translation>Tambah</translation>
    </message>
    <message>
        <source>Add lines, one after the other (F12)</source>
        <translation>Tambah baris satu per satu (F12)</translation>
    </message>
    <message>
        <source>F12</source>
        <translation>F12</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Ubah</translation>
    </message>
    <message>
        <source>Change the selected lines (F2)</source>
        <translation>Ubah baris yang dipilih (F2)</translation>
    </message>
    <message>
        <source>F2</source>
        <translation>F2</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Hapus</translation>
    </message>
    <message>
        <source>Take the selected lines off (Del)</source>
        <translation>Keluarkan baris yang dipilih (Del)</translation>
    </message>
    <message>
        <source>Del</source>
        <translation>Del</translation>
    </message>
</context>
<context>
    <name>ListPage</name>
    <message>
        <source>Filter</source>
        <translation>Saring</translation>
    </message>
    <message>
        <source>Part of a code or a name (Ctrl+F)</source>
        <translation>Sebagian kode atau nama (Ctrl+F)</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Cari</translation>
    </message>
    <message>
        <source>Search (Return)</source>
        <translation>Cari (Return)</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Retur</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Tambah</translation>
    </message>
    <message>
        <source>Add (F12)</source>
        <translation>Tambah (F12)</translation>
    </message>
    <message>
        <source>F12</source>
        <translation>F12</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Ubah</translation>
    </message>
    <message>
        <source>Edit the selected rows (F2)</source>
        <translation>Ubah baris yang dipilih (F2)</translation>
    </message>
    <message>
        <source>F2</source>
        <translation>F2</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Segarkan</translation>
    </message>
    <message>
        <source>Refresh (F5)</source>
        <translation>Segarkan (F5)</translation>
    </message>
    <message>
        <source>F5</source>
        <translation>F5</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Hapus</translation>
    </message>
    <message>
        <source>Delete the selected rows (Del)</source>
        <translation>Hapus baris yang dipilih (Del)</translation>
    </message>
    <message>
        <source>Del</source>
        <translation>Del</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Tutup</translation>
    </message>
    <message>
        <source>Close (Esc)</source>
        <translation>Tutup (Esc)</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Zavel POS</source>
        <translation>Zavel POS</translation>
    </message>
    <message>
        <source>Master &amp;Data</source>
        <translation>&amp;Data Induk</translation>
    </message>
    <message>
        <source>Invento&amp;ry</source>
        <translation>Pe&amp;rsediaan</translation>
    </message>
    <message>
        <source>Purchases</source>
        <translation>Pembelian</translation>
    </message>
    <message>
        <source>Sales</source>
        <translation>Penjualan</translation>
    </message>
    <message>
        <source>Agent Commissions</source>
        <translation>Komisi Agen</translation>
    </message>
    <message>
        <source>Cash Flow</source>
        <translation>Arus Kas</translation>
    </message>
    <message>
        <source>Reports</source>
        <translation>Laporan</translation>
    </message>
    <message>
        <source>C&amp;onfiguration</source>
        <translation>K&amp;onfigurasi</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Printer</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Bahasa</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Bantuan</translation>
    </message>
    <message>
        <source>Tool Bar</source>
        <translation>Bilah Alat</translation>
    </message>
    <message>
        <source>Tables</source>
        <translation>Meja</translation>
    </message>
    <message>
        <source>Alt+M</source>
        <translation>Alt+M</translation>
    </message>
    <message>
        <source>Users</source>
        <translation>Pengguna</translation>
    </message>
    <message>
        <source>Alt+U</source>
        <translation>Alt+U</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Umum</translation>
    </message>
    <message>
        <source>Alt+C</source>
        <translation>Alt+C</translation>
    </message>
    <message>
        <source>User Groups</source>
        <translation>Grup Pengguna</translation>
    </message>
    <message>
        <source>Alt+G</source>
        <translation>Alt+G</translation>
    </message>
    <message>
        <source>User Access</source>
        <translation>Hak Akses Pengguna</translation>
    </message>
    <message>
        <source>Alt+A</source>
        <translation>Alt+A</translation>
    </message>
    <message>
        <source>Company Profile</source>
        <translation>Profil Perusahaan</translation>
    </message>
    <message>
        <source>Alt+P</source>
        <translation>Alt+P</translation>
    </message>
    <message>
        <source>Item Types</source>
        <translation>Jenis Barang</translation>
    </message>
    <message>
        <source>Alt+J</source>
        <translation>Alt+J</translation>
    </message>
    <message>
        <source>Units</source>
        <translation>Satuan</translation>
    </message>
    <message>
        <source>Alt+S</source>
        <translation>Alt+S</translation>
    </message>
    <message>
        <source>Suppliers</source>
        <translation>Pemasok</translation>
    </message>
    <message>
        <source>Alt+L</source>
        <translation>Alt+L</translation>
    </message>
    <message>
        <source>Members</source>
        <translation>Anggota</translation>
    </message>
    <message>
        <source>Alt+E</source>
        <translation>Alt+E</translation>
    </message>
    <message>
        <source>Agents</source>
        <translation>Agen</translation>
    </message>
    <message>
        <source>Alt+N</source>
        <translation>Alt+N</translation>
    </message>
    <message>
        <source>Accounts</source>
        <translation>Akun</translation>
    </message>
    <message>
        <source>Alt+B</source>
        <translation>Alt+B</translation>
    </message>
    <message>
        <source>Items</source>
        <translation>Barang</translation>
    </message>
    <message>
        <source>Alt+I</source>
        <translation>Alt+I</translation>
    </message>
    <message>
        <source>Beginning Balances</source>
        <translation>Saldo Awal</translation>
    </message>
    <message>
        <source>Alt+K</source>
        <translation>Alt+K</translation>
    </message>
    <message>
        <source>Inventory Adjustments</source>
        <translation>Penyesuaian Persediaan</translation>
    </message>
    <message>
        <source>Alt+D</source>
        <translation>Alt+D</translation>
    </message>
    <message>
        <source>Purchase Orders</source>
        <translation>Pesanan Pembelian</translation>
    </message>
    <message>
        <source>Alt+O</source>
        <translation>Alt+O</translation>
    </message>
    <message>
        <source>Purchases / Receive Inventory</source>
        <translation>Pembelian / Penerimaan Barang</translation>
    </message>
    <message>
        <source>Alt+V</source>
        <translation>Alt+V</translation>
    </message>
    <message>
        <source>Credit Notes</source>
        <translation>Nota Kredit</translation>
    </message>
    <message>
        <source>Alt+T</source>
        <translation>Alt+T</translation>
    </message>
    <message>
        <source>Pay Bills</source>
        <translation>Bayar Tagihan</translation>
    </message>
    <message>
        <source>Alt+Y</source>
        <translation>Alt+Y</translation>
    </message>
    <message>
        <source>Employees</source>
        <translation>Karyawan</translation>
    </message>
    <message>
        <source>Alt+W</source>
        <translation>Alt+W</translation>
    </message>
    <message>
        <source>Item History</source>
        <translation>Kartu Stok</translation>
    </message>
    <message>
        <source>Alt+X</source>
        <translation>Alt+X</translation>
    </message>
    <message>
        <source>Running Numbers</source>
        <translation>Nomor Urut</translation>
    </message>
    <message>
        <source>Alt+Q</source>
        <translation>Alt+Q</translation>
    </message>
    <message>
        <source>Dine</source>
        <translation>Makan di Tempat</translation>
    </message>
    <message>
        <source>Ctrl+M</source>
        <translation>Ctrl+M</translation>
    </message>
    <message>
        <source>Fast Foods</source>
        <translation>Makanan Cepat Saji</translation>
    </message>
    <message>
        <source>Ctrl+O</source>
        <translation>Ctrl+O</translation>
    </message>
    <message>
        <source>Take Away Foods</source>
        <translation>Makanan Bawa Pulang</translation>
    </message>
    <message>
        <source>Ctrl+P</source>
        <translation>Ctrl+P</translation>
    </message>
    <message>
        <source>Incoming Orders </source>
        <translation>Pesanan Masuk </translation>
    </message>
    <message>
        <source>Ctrl+K</source>
        <translation>Ctrl+K</translation>
    </message>
    <message>
        <source>Customer Payments</source>
        <translation>Pembayaran Pelanggan</translation>
    </message>
    <message>
        <source>Ctrl+L</source>
        <translation>Ctrl+L</translation>
    </message>
    <message>
        <source>Member Payments</source>
        <translation>Pembayaran Anggota</translation>
    </message>
    <message>
        <source>Ctrl+I</source>
        <translation>Ctrl+I</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Tentang</translation>
    </message>
    <message>
        <source>Agent Commission Payments</source>
        <translation>Pembayaran Komisi Agen</translation>
    </message>
    <message>
        <source>Ctrl+D</source>
        <translation>Ctrl+D</translation>
    </message>
    <message>
        <source>Ctrl+G</source>
        <translation>Ctrl+G</translation>
    </message>
    <message>
        <source>General Journal Entries</source>
        <translation>Jurnal Umum</translation>
    </message>
    <message>
        <source>Alt+F</source>
        <translation>Alt+F</translation>
    </message>
    <message>
        <source>Transferring Funds</source>
        <translation>Pemindahan Dana</translation>
    </message>
    <message>
        <source>Alt+H</source>
        <translation>Alt+H</translation>
    </message>
    <message>
        <source>Cashier Printer</source>
        <translation>Printer Kasir</translation>
    </message>
    <message>
        <source>Alt+Z</source>
        <translation>Alt+Z</translation>
    </message>
    <message>
        <source>Kitchen Printers</source>
        <translation>Printer Dapur</translation>
    </message>
    <message>
        <source>Master Data</source>
        <translation>Data Induk</translation>
    </message>
    <message>
        <source>Inventory</source>
        <translation>Persediaan</translation>
    </message>
    <message>
        <source>Dashboard</source>
        <translation>Dasbor</translation>
    </message>
    <message>
        <source>Show Sidebar</source>
        <translation>Tampilkan Bilah Samping</translation>
    </message>
    <message>
        <source>Show Dashboard</source>
        <translation>Tampilkan Dasbor</translation>
    </message>
    <message>
        <source>Database Management</source>
        <translation>Pengelolaan Basis Data</translation>
    </message>
    <message>
        <source>Optimize Database</source>
        <translation>Optimalkan Basis Data</translation>
    </message>
    <message>
        <source>Converter</source>
        <translation>Konverter</translation>
    </message>
    <message>
        <source>Clear Transactions</source>
        <translation>Kosongkan Transaksi</translation>
    </message>
    <message>
        <source>English</source>
        <translation>Bahasa Inggris</translation>
    </message>
    <message>
        <source>Current Language changed to %1</source>
        <translation>Bahasa saat ini diganti ke %1</translation>
    </message>
    <message>
        <source>Could not load the plugin</source>
        <translation>Plugin tidak dapat dimuat</translation>
    </message>
    <message>
        <source>Username: </source>
        <translation>Nama Pengguna: </translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Kesalahan</translation>
    </message>
    <message>
        <source>can not load tab: %1</source>
        <translation>tidak dapat memuat tab: %1</translation>
    </message>
    <message>
        <source>The report can not be shown, because no plug-in with reports is installed: %1</source>
        <translation>Laporan tidak dapat ditampilkan karena plugin laporan tidak terpasang: %1</translation>
    </message>
    <message>
        <source>.<byte value="xd"/>
Please fill the db connection fields and install the initial data</source>
        <translation>.<byte value="xd"/>
Isi kolom sambungan db dan pasang data awal</translation>
    </message>
    <message>
        <source>Can&apos;t open settings file: %1</source>
        <translation>Berkas pengaturan tidak dapat dibuka: %1</translation>
    </message>
    <message>
        <source>Failed open db. Host: %1, dbname: %2, dbuser: %3, dbpass: %4,  port: %5. %6</source>
        <translation>Gagal membuka db. Host: %1, nama db: %2, pengguna db: %3, sandi db: %4,  port: %5. %6</translation>
    </message>
    <message>
        <source>Table: Config corrupted</source>
        <translation>Tabel: Config rusak</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>Connected!</source>
        <translation>Tersambung!</translation>
    </message>
    <message>
        <source>Question</source>
        <translation>Pertanyaan</translation>
    </message>
    <message>
        <source>Do you want to open the converter now? Ignore: do not tell this again.</source>
        <translation>Buka konverter sekarang? Abaikan: jangan beri tahu lagi.</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Panduan</translation>
    </message>
    <message>
        <source>F1</source>
        <translation>F1</translation>
    </message>
    <message>
        <source>Printed Slips</source>
        <translation>Slip Tercetak</translation>
    </message>
    <message>
        <source>Ctrl+R</source>
        <translation>Ctrl+R</translation>
    </message>
    <message>
        <source>%1 - Sample</source>
        <translation>%1 - Contoh</translation>
    </message>
    <message>
        <source>Sample data: nothing here was really sold</source>
        <translation>Data contoh: tidak ada yang benar-benar terjual di sini</translation>
    </message>
</context>
<context>
    <name>MasterSteps</name>
    <message>
        <source>a percentage outside of 0 to 100 became 0</source>
        <translation>persentase di luar 0 sampai 100 menjadi 0</translation>
    </message>
    <message>
        <source>the unit&apos;s name was taken, its code has been put behind it</source>
        <translation>nama satuan sudah dipakai, kodenya ditambahkan di belakang</translation>
    </message>
    <message>
        <source>row %1</source>
        <translation>baris %1</translation>
    </message>
    <message>
        <source>it has no code</source>
        <translation>tidak ada kodenya</translation>
    </message>
    <message>
        <source>the code exists already</source>
        <translation>kodenya sudah ada</translation>
    </message>
    <message>
        <source>too long for &quot;%1&quot; and cut, in full &quot;%2&quot;</source>
        <translation>terlalu panjang untuk &quot;%1&quot; dan dipotong, lengkapnya &quot;%2&quot;</translation>
    </message>
    <message>
        <source>without a name, the code took its place</source>
        <translation>tanpa nama, kodenya dipakai sebagai gantinya</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was missing and has been added (%2)</source>
        <translation>&quot;%1&quot; tidak ada dan telah ditambahkan (%2)</translation>
    </message>
    <message>
        <source>Without type</source>
        <translation>Tanpa jenis</translation>
    </message>
    <message>
        <source>Without unit</source>
        <translation>Tanpa satuan</translation>
    </message>
    <message>
        <source>it has no name</source>
        <translation>tidak ada namanya</translation>
    </message>
    <message>
        <source>the company profile has been entered already</source>
        <translation>profil perusahaan sudah diisi</translation>
    </message>
    <message>
        <source>Contact: %1</source>
        <translation>Kontak: %1</translation>
    </message>
    <message>
        <source>Discount in the former system: %1</source>
        <translation>Diskon di sistem lama: %1</translation>
    </message>
</context>
<context>
    <name>MemberTextBox</name>
    <message>
        <source>Code</source>
        <translation>Kode</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nama</translation>
    </message>
</context>
<context>
    <name>MoneyEdit</name>
    <message>
        <source>The amount must not be negative</source>
        <translation>Jumlah tidak boleh negatif</translation>
    </message>
    <message>
        <source>The amount is too large, the largest is %1</source>
        <translation>Jumlah terlalu besar, paling besar %1</translation>
    </message>
    <message>
        <source>%1 will be stored as %2</source>
        <translation>%1 akan disimpan sebagai %2</translation>
    </message>
</context>
<context>
    <name>OrderBoard</name>
    <message>
        <source>%1 Items</source>
        <translation>%1 Barang</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Kesalahan</translation>
    </message>
    <message>
        <source>Can not find entity with id: %1</source>
        <translation>Data dengan id: %1 tidak ditemukan</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>This order is billed already: %1. What you change now is not on the bill. Press Pay afterwards.</source>
        <translation>Pesanan ini sudah ditagih: %1. Yang Anda ubah sekarang tidak ada di tagihan. Tekan Bayar sesudahnya.</translation>
    </message>
</context>
<context>
    <name>OrderBoardModel</name>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menu</translation>
    </message>
</context>
<context>
    <name>OrderDialog</name>
    <message>
        <source>Table :</source>
        <translation>Meja :</translation>
    </message>
    <message>
        <source>Code or name of a table; another table moves the order there</source>
        <translation>Kode atau nama meja; meja lain memindahkan pesanan ke sana</translation>
    </message>
    <message>
        <source>Member :</source>
        <translation>Anggota :</translation>
    </message>
    <message>
        <source>Code or name of a member</source>
        <translation>Kode atau nama anggota</translation>
    </message>
    <message>
        <source>Guest :</source>
        <translation>Tamu :</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Total</translation>
    </message>
    <message>
        <source>[F3] Menu</source>
        <translation>[F3] Menu</translation>
    </message>
    <message>
        <source>Please select a member</source>
        <translation>Pilih anggota</translation>
    </message>
    <message>
        <source>Add one or more menu</source>
        <translation>Tambahkan satu menu atau lebih</translation>
    </message>
    <message>
        <source>The total of this order is too large. Please take it as two orders</source>
        <translation>Total pesanan ini terlalu besar. Buatlah sebagai dua pesanan</translation>
    </message>
</context>
<context>
    <name>OrderItemPicker</name>
    <message>
        <source>Item Type :</source>
        <translation>Jenis Barang :</translation>
    </message>
    <message>
        <source>Code :</source>
        <translation>Kode :</translation>
    </message>
    <message>
        <source>Code or name; Return finds it</source>
        <translation>Kode atau nama; Return mencarinya</translation>
    </message>
    <message>
        <source>Name :</source>
        <translation>Nama :</translation>
    </message>
    <message>
        <source>Unit Price :</source>
        <translation>Harga Satuan :</translation>
    </message>
    <message>
        <source>Qty :</source>
        <translation>Jml :</translation>
    </message>
    <message>
        <source>Amount :</source>
        <translation>Jumlah Uang :</translation>
    </message>
    <message>
        <source>Notes :</source>
        <translation>Catatan :</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Semua</translation>
    </message>
    <message>
        <source>Enter the item code</source>
        <translation>Isi kode barang</translation>
    </message>
    <message>
        <source>Please enter a valid item code</source>
        <translation>Isi kode barang yang benar</translation>
    </message>
    <message>
        <source>Enter the qty of the item</source>
        <translation>Isi jumlah barang</translation>
    </message>
    <message>
        <source>This amount is too large for one line. Please enter a smaller qty</source>
        <translation>Jumlah ini terlalu besar untuk satu baris. Isi jumlah yang lebih kecil</translation>
    </message>
</context>
<context>
    <name>OrderLinesModel</name>
    <message>
        <source>Code</source>
        <translation>Kode</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nama</translation>
    </message>
    <message>
        <source>Qty</source>
        <translation>Jml</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Satuan</translation>
    </message>
    <message>
        <source>Unit Price</source>
        <translation>Harga Satuan</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Jumlah Uang</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Keterangan</translation>
    </message>
</context>
<context>
    <name>OrderLinesTab</name>
    <message>
        <source>Add Menu</source>
        <translation>Tambah Menu</translation>
    </message>
    <message>
        <source>Add menu items, one after the other (F12)</source>
        <translation>Tambah menu satu per satu (F12)</translation>
    </message>
    <message>
        <source>F12</source>
        <translation>F12</translation>
    </message>
    <message>
        <source>Add Inventory</source>
        <translation>Tambah Persediaan</translation>
    </message>
    <message>
        <source>Add stock items, one after the other (F11)</source>
        <translation>Tambah barang stok satu per satu (F11)</translation>
    </message>
    <message>
        <source>F11</source>
        <translation>F11</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Ubah</translation>
    </message>
    <message>
        <source>Change the selected lines (F2)</source>
        <translation>Ubah baris yang dipilih (F2)</translation>
    </message>
    <message>
        <source>F2</source>
        <translation>F2</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Hapus</translation>
    </message>
    <message>
        <source>Take the selected lines off the order (Del)</source>
        <translation>Keluarkan baris yang dipilih dari pesanan (Del)</translation>
    </message>
    <message>
        <source>Del</source>
        <translation>Del</translation>
    </message>
    <message>
        <source>This item: %1 is already exist in the list. Do you want to update it with this data?</source>
        <translation>Barang ini: %1 sudah ada di daftar. Perbarui dengan data ini?</translation>
    </message>
    <message>
        <source>Question</source>
        <translation>Pertanyaan</translation>
    </message>
    <message>
        <source>The items are priced in %1, and the total adds them as if they were one currency. The owner can restate the items under Configuration &gt; General.</source>
        <translation>Harga barang dalam %1, dan totalnya dijumlahkan seolah-olah satu mata uang. Pemilik dapat menyatakan ulang harga di Konfigurasi &gt; Umum.</translation>
    </message>
    <message>
        <source>Do you want to save it all the same?</source>
        <translation>Apakah tetap disimpan?</translation>
    </message>
</context>
<context>
    <name>OrderPaymentDialog</name>
    <message>
        <source>Can not find entity with id: %1</source>
        <translation>Data dengan id: %1 tidak ditemukan</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Kesalahan</translation>
    </message>
    <message>
        <source>%1 of %2, by %3 at %4</source>
        <translation>%1 sebesar %2, oleh %3 pukul %4</translation>
    </message>
    <message>
        <source>This order was billed meanwhile: %1. Nothing was saved.</source>
        <translation>Pesanan ini sementara itu sudah ditagih: %1. Tidak ada yang disimpan.</translation>
    </message>
    <message>
        <source>Do you want to open that bill?</source>
        <translation>Apakah Anda ingin membuka tagihan itu?</translation>
    </message>
    <message>
        <source>Question</source>
        <translation>Pertanyaan</translation>
    </message>
    <message>
        <source>This order has changed since it was billed.</source>
        <translation>Pesanan ini berubah sesudah ditagih.</translation>
    </message>
    <message>
        <source>Take Off the Bill</source>
        <translation>Keluarkan dari Tagihan</translation>
    </message>
    <message>
        <source>Add to This Bill</source>
        <translation>Tambahkan ke Tagihan Ini</translation>
    </message>
    <message>
        <source>Make a Second Bill</source>
        <translation>Buat Tagihan Kedua</translation>
    </message>
    <message>
        <source>Leave the Bill</source>
        <translation>Biarkan Tagihan</translation>
    </message>
    <message>
        <source>Do you want to end this order all the same?</source>
        <translation>Apakah pesanan ini tetap diakhiri?</translation>
    </message>
    <message>
        <source>the status of its order</source>
        <translation>status pesanannya</translation>
    </message>
    <message>
        <source>Later, press OK in this form again.</source>
        <translation>Nanti, tekan OK lagi di formulir ini.</translation>
    </message>
    <message>
        <source>reading it again</source>
        <translation>membacanya kembali</translation>
    </message>
</context>
<context>
    <name>OrderText</name>
    <message>
        <source>Telp : </source>
        <translation>Telp : </translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Total</translation>
    </message>
    <message>
        <source>Order Cancelled.
</source>
        <translation>Pesanan Dibatalkan.
</translation>
    </message>
    <message>
        <source>Taken back:</source>
        <translation>Ditarik kembali:</translation>
    </message>
    <message>
        <source>Moved from table %1 to table %2</source>
        <translation>Pindah dari meja %1 ke meja %2</translation>
    </message>
    <message>
        <source>was %1</source>
        <translation>semula %1</translation>
    </message>
    <message>
        <source>was %1, %2</source>
        <translation>semula %1, %2</translation>
    </message>
</context>
<context>
    <name>PaperCut</name>
    <message>
        <source>This type cuts nothing.</source>
        <translation>Jenis ini tidak memotong.</translation>
    </message>
    <message>
        <source>This type&apos;s cut lacks its end: some printers wait for it and swallow the first letters of the next slip.</source>
        <translation>Potongan jenis ini tidak lengkap: sebagian printer menunggu sisanya dan menelan huruf pertama slip berikutnya.</translation>
    </message>
    <message>
        <source>Cuts the paper and leaves a point that holds it.</source>
        <translation>Memotong kertas dan menyisakan satu titik yang menahannya.</translation>
    </message>
    <message>
        <source>Cuts the paper through.</source>
        <translation>Memotong kertas sampai putus.</translation>
    </message>
    <message>
        <source>Feeds the paper to the knife and cuts it through.</source>
        <translation>Mendorong kertas ke pisau dan memotongnya sampai putus.</translation>
    </message>
    <message>
        <source>Feeds the paper to the knife, cuts it and leaves a point that holds it.</source>
        <translation>Mendorong kertas ke pisau, memotongnya dan menyisakan satu titik yang menahannya.</translation>
    </message>
    <message>
        <source>Sends the bytes %1 to cut the paper.</source>
        <translation>Mengirim bita %1 untuk memotong kertas.</translation>
    </message>
</context>
<context>
    <name>PartPaymentDialog</name>
    <message>
        <source>Amount Due :</source>
        <translation>Jumlah Terutang :</translation>
    </message>
    <message>
        <source>Amount Paid :</source>
        <translation>Dibayar :</translation>
    </message>
    <message>
        <source>Remaining :</source>
        <translation>Sisa :</translation>
    </message>
    <message>
        <source>This amount is too large. Please check the figures.</source>
        <translation>Jumlah ini terlalu besar. Periksa kembali angkanya.</translation>
    </message>
    <message>
        <source>Question</source>
        <translation>Pertanyaan</translation>
    </message>
    <message>
        <source>The amount paid is larger than the amount due. Do you want to book all of it?</source>
        <translation>Jumlah bayar lebih besar dari tagihan. Bukukan semuanya?</translation>
    </message>
</context>
<context>
    <name>PayeeDialog</name>
    <message>
        <source>none</source>
        <translation>tidak ada</translation>
    </message>
</context>
<context>
    <name>PaymentDialog</name>
    <message>
        <source>[F3] Menu</source>
        <translation>[F3] Menu</translation>
    </message>
    <message>
        <source>Save the invoice</source>
        <translation>Simpan faktur</translation>
    </message>
    <message>
        <source>Add one or more menu</source>
        <translation>Tambahkan satu menu atau lebih</translation>
    </message>
    <message>
        <source>An amount is larger than an invoice can hold. Please check the figures.</source>
        <translation>Ada jumlah uang yang melebihi batas faktur. Periksa kembali angkanya.</translation>
    </message>
    <message>
        <source>Question</source>
        <translation>Pertanyaan</translation>
    </message>
</context>
<context>
    <name>PaymentMoneyPane</name>
    <message>
        <source>Total :</source>
        <translation>Total :</translation>
    </message>
    <message>
        <source>Sub Total :</source>
        <translation>Sub Total :</translation>
    </message>
    <message>
        <source>Discount :</source>
        <translation>Diskon :</translation>
    </message>
    <message>
        <source>Tax         :</source>
        <translation>Pajak       :</translation>
    </message>
    <message>
        <source>Services :</source>
        <translation>Servis :</translation>
    </message>
    <message>
        <source>Invoice Total :</source>
        <translation>Total Faktur :</translation>
    </message>
    <message>
        <source>[F9] Amount Paid at Sale :</source>
        <translation>[F9] Dibayar saat Penjualan :</translation>
    </message>
    <message>
        <source>[F10] Other Applied Credit :</source>
        <translation>[F10] Kredit Lain :</translation>
    </message>
    <message>
        <source>Net Due :</source>
        <translation>Sisa Tagihan :</translation>
    </message>
</context>
<context>
    <name>PaymentParties</name>
    <message>
        <source>There is no record with the code: %1</source>
        <translation>Tidak ada data dengan kode: %1</translation>
    </message>
    <message>
        <source>Please select a Cash Accounts</source>
        <translation>Pilih Akun Kas</translation>
    </message>
    <message>
        <source>Please select a valid Cash Accounts</source>
        <translation>Pilih Akun Kas yang benar</translation>
    </message>
</context>
<context>
    <name>PaymentStep</name>
    <message>
        <source>there is no supplier &quot;%1&quot;</source>
        <translation>tidak ada pemasok &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Still owed to the supplier then: %1</source>
        <translation>Saat itu masih terutang kepada pemasok: %1</translation>
    </message>
    <message>
        <source>none of its purchases is there</source>
        <translation>tidak satu pun pembeliannya ada</translation>
    </message>
    <message>
        <source>its lines do not add up to what was paid</source>
        <translation>barisnya tidak sama dengan jumlah yang dibayar</translation>
    </message>
    <message>
        <source>there is no such purchase</source>
        <translation>pembelian itu tidak ada</translation>
    </message>
</context>
<context>
    <name>PaymentType</name>
    <message>
        <source>Cash</source>
        <translation>Tunai</translation>
    </message>
    <message>
        <source>Electronic Funds Transfer</source>
        <translation>Transfer Dana Elektronik</translation>
    </message>
    <message>
        <source>Check</source>
        <translation>Cek</translation>
    </message>
    <message>
        <source>Electronic funds transfer</source>
        <translation>Transfer dana elektronik</translation>
    </message>
    <message>
        <source>Checks</source>
        <translation>Cek</translation>
    </message>
</context>
<context>
    <name>PercentEdit</name>
    <message>
        <source>The percentage must not be negative</source>
        <translation>Persentase tidak boleh negatif</translation>
    </message>
    <message>
        <source>%1 is not between 0 and 100</source>
        <translation>%1 tidak di antara 0 dan 100</translation>
    </message>
</context>
<context>
    <name>PosInstaller</name>
    <message>
        <source>POS Data</source>
        <translation>Data POS</translation>
    </message>
    <message>
        <source> error: </source>
        <translation> kesalahan: </translation>
    </message>
    <message>
        <source>Cash on Hand</source>
        <translation>Kas di Tangan</translation>
    </message>
    <message>
        <source>Checking Account</source>
        <translation>Rekening Giro</translation>
    </message>
    <message>
        <source>Cost of Sales</source>
        <translation>Harga Pokok Penjualan</translation>
    </message>
    <message>
        <source>Inventory</source>
        <translation>Persediaan</translation>
    </message>
    <message>
        <source>Accounts Payable</source>
        <translation>Utang Usaha</translation>
    </message>
    <message>
        <source>Account Receivable</source>
        <translation>Piutang Usaha</translation>
    </message>
    <message>
        <source>Commisions and Fees Expense</source>
        <translation>Beban Komisi dan Jasa</translation>
    </message>
    <message>
        <source>Sales of Materials</source>
        <translation>Penjualan Barang</translation>
    </message>
    <message>
        <source>Thank You</source>
        <translation>Terima Kasih</translation>
    </message>
</context>
<context>
    <name>PrinterConfigDialog</name>
    <message>
        <source>Yes</source>
        <translation>Ya</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Tidak</translation>
    </message>
    <message>
        <source>Error!</source>
        <translation>Kesalahan!</translation>
    </message>
    <message>
        <source>Choose %1 instead.</source>
        <translation>Pilih %1 saja.</translation>
    </message>
</context>
<context>
    <name>PurchaseStep</name>
    <message>
        <source>the purchase order %1 was not found</source>
        <translation>pesanan pembelian %1 tidak ditemukan</translation>
    </message>
    <message>
        <source>there is no supplier &quot;%1&quot;</source>
        <translation>tidak ada pemasok &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Reference: %1</source>
        <translation>Referensi: %1</translation>
    </message>
    <message>
        <source>Bank: %1</source>
        <translation>Bank: %1</translation>
    </message>
    <message>
        <source>Account No.: %1</source>
        <translation>No. Rekening: %1</translation>
    </message>
    <message>
        <source>there is no such item</source>
        <translation>barang itu tidak ada</translation>
    </message>
    <message>
        <source>the lines do not add up to the sub total</source>
        <translation>baris-barisnya tidak sama dengan sub total</translation>
    </message>
</context>
<context>
    <name>PurchasingDialog</name>
    <message>
        <source>An amount is larger than a document can hold. Please check the figures.</source>
        <translation>Ada jumlah uang yang melebihi batas dokumen. Periksa kembali angkanya.</translation>
    </message>
    <message>
        <source>The account is not of the type Cash: the day&apos;s close does not count the amount paid.</source>
        <translation>Akun ini bukan jenis Tunai: tutup hari tidak menghitung jumlah yang dibayar.</translation>
    </message>
</context>
<context>
    <name>PurchasingLineDialog</name>
    <message>
        <source>Code :</source>
        <translation>Kode :</translation>
    </message>
    <message>
        <source>Name :</source>
        <translation>Nama :</translation>
    </message>
    <message>
        <source>Unit Price :</source>
        <translation>Harga Satuan :</translation>
    </message>
    <message>
        <source>Qty :</source>
        <translation>Jml :</translation>
    </message>
    <message>
        <source>Discount :</source>
        <translation>Diskon :</translation>
    </message>
    <message>
        <source>Amount :</source>
        <translation>Jumlah Uang :</translation>
    </message>
    <message>
        <source>This quantity is too large for one line</source>
        <translation>Jumlah ini terlalu besar untuk satu baris</translation>
    </message>
    <message>
        <source>Please enter a valid item code</source>
        <translation>Isi kode barang yang benar</translation>
    </message>
    <message>
        <source>The discount should be between zero and the amount of the line</source>
        <translation>Diskon harus antara nol dan jumlah baris</translation>
    </message>
    <message>
        <source>This amount is too large for one line. Please enter a smaller qty</source>
        <translation>Jumlah ini terlalu besar untuk satu baris. Isi jumlah yang lebih kecil</translation>
    </message>
</context>
<context>
    <name>PurchasingLinesModel</name>
    <message>
        <source>Code</source>
        <translation>Kode</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nama</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Satuan</translation>
    </message>
    <message>
        <source>Unit Price</source>
        <translation>Harga Satuan</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Jumlah Uang</translation>
    </message>
</context>
<context>
    <name>PurchasingLinesTab</name>
    <message>
        <source>This item: %1 is already in the list. Do you want to update it with this data?</source>
        <translation>Barang ini: %1 sudah ada di daftar. Perbarui dengan data ini?</translation>
    </message>
</context>
<context>
    <name>PurchasingListTab</name>
    <message>
        <source>From Date :</source>
        <translation>Dari :</translation>
    </message>
    <message>
        <source>To Date :</source>
        <translation>Sampai :</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Semua</translation>
    </message>
    <message>
        <source>Supplier :</source>
        <translation>Pemasok :</translation>
    </message>
    <message>
        <source>Search :</source>
        <translation>Cari :</translation>
    </message>
    <message>
        <source>In :</source>
        <translation>Masuk :</translation>
    </message>
</context>
<context>
    <name>PurchasingTotalsPane</name>
    <message>
        <source>Sub Total :</source>
        <translation>Sub Total :</translation>
    </message>
    <message>
        <source>Discount :</source>
        <translation>Diskon :</translation>
    </message>
    <message>
        <source>Tax         :</source>
        <translation>Pajak       :</translation>
    </message>
    <message>
        <source>Grand Total :</source>
        <translation>Total Akhir :</translation>
    </message>
    <message>
        <source>Amount Paid at Purchase :</source>
        <translation>Dibayar saat Pembelian :</translation>
    </message>
    <message>
        <source>Other Payments and Credits :</source>
        <translation>Pembayaran dan Kredit Lain :</translation>
    </message>
    <message>
        <source>Net Due :</source>
        <translation>Sisa Tagihan :</translation>
    </message>
    <message>
        <source>Account Payable :</source>
        <translation>Utang Usaha :</translation>
    </message>
</context>
<context>
    <name>QuantityEdit</name>
    <message>
        <source>Please enter a whole number from %1 to %2</source>
        <translation>Masukkan bilangan bulat dari %1 sampai %2</translation>
    </message>
    <message>
        <source>Please enter a whole number</source>
        <translation>Masukkan bilangan bulat</translation>
    </message>
    <message>
        <source>%1 will be stored as %2</source>
        <translation>%1 akan disimpan sebagai %2</translation>
    </message>
</context>
<context>
    <name>ReplaceQuestion</name>
    <message>
        <source>Question</source>
        <translation>Pertanyaan</translation>
    </message>
    <message>
        <source>The database %1 is in use already. A clean installation makes all tables anew, and everything that they hold is lost. Do you want that?</source>
        <translation>Basis data %1 sudah dipakai. Pemasangan bersih membuat semua tabel dari awal, dan semua isinya hilang. Ingin melakukannya?</translation>
    </message>
    <message>
        <source>A further workstation of the restaurant uses it as it is.</source>
        <translation>Komputer restoran yang lain memakainya apa adanya.</translation>
    </message>
    <message>
        <source>&amp;Use It As It Is</source>
        <translation>&amp;Pakai Apa Adanya</translation>
    </message>
</context>
<context>
    <name>ReportBill</name>
    <message>
        <source>The bill is saved. Only its slip is missing.</source>
        <translation>Nota sudah disimpan. Hanya slipnya yang belum tercetak.</translation>
    </message>
</context>
<context>
    <name>ReportTestSlip</name>
    <message>
        <source>Test slip of the printer %1</source>
        <translation>Slip uji printer %1</translation>
    </message>
    <message>
        <source>Columns: %1</source>
        <translation>Kolom: %1</translation>
    </message>
    <message>
        <source>Type: %1</source>
        <translation>Jenis: %1</translation>
    </message>
    <message>
        <source>This line is bold.</source>
        <translation>Baris ini tebal.</translation>
    </message>
    <message>
        <source>The paper is cut below.</source>
        <translation>Kertas dipotong di bawah ini.</translation>
    </message>
    <message>
        <source>The paper is not cut.</source>
        <translation>Kertas tidak dipotong.</translation>
    </message>
</context>
<context>
    <name>Reports</name>
    <message>
        <source>Cash Flow Reports</source>
        <translation>Laporan Arus Kas</translation>
    </message>
    <message>
        <source>Master Data Reports</source>
        <translation>Laporan Data Induk</translation>
    </message>
    <message>
        <source>Purchases Reports</source>
        <translation>Laporan Pembelian</translation>
    </message>
    <message>
        <source>Type of sale:</source>
        <translation>Jenis:</translation>
    </message>
    <message>
        <source>Dine in</source>
        <translation>Di tempat</translation>
    </message>
    <message>
        <source>Fast food</source>
        <translation>Cepat saji</translation>
    </message>
    <message>
        <source>Take away</source>
        <translation>Bawa pulang</translation>
    </message>
    <message>
        <source>Cashier:</source>
        <translation>Kasir:</translation>
    </message>
    <message>
        <source>Item type:</source>
        <translation>Jenis barang:</translation>
    </message>
    <message>
        <source>Item:</source>
        <translation>Barang:</translation>
    </message>
    <message>
        <source>Member:</source>
        <translation>Anggota:</translation>
    </message>
    <message>
        <source>Supplier:</source>
        <translation>Pemasok:</translation>
    </message>
    <message>
        <source>Agent:</source>
        <translation>Agen:</translation>
    </message>
    <message>
        <source>Waitress:</source>
        <translation>Pramusaji:</translation>
    </message>
    <message>
        <source>Account:</source>
        <translation>Akun:</translation>
    </message>
    <message>
        <source>Sales by day</source>
        <translation>Penjualan per hari</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Tanggal</translation>
    </message>
    <message>
        <source>Sales</source>
        <translation>Penjualan</translation>
    </message>
    <message>
        <source>Subtotal</source>
        <translation>Subtotal</translation>
    </message>
    <message>
        <source>Discount</source>
        <translation>Diskon</translation>
    </message>
    <message>
        <source>Tax</source>
        <translation>Pajak</translation>
    </message>
    <message>
        <source>Service</source>
        <translation>Servis</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Total</translation>
    </message>
    <message>
        <source>Average sale</source>
        <translation>Rata-rata penjualan</translation>
    </message>
    <message>
        <source>Sales Reports</source>
        <translation>Laporan Penjualan</translation>
    </message>
    <message>
        <source>Inventory Reports</source>
        <translation>Laporan Persediaan</translation>
    </message>
    <message>
        <source>Total %1</source>
        <translation>Total %1</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Halaman %1 dari %2</translation>
    </message>
    <message>
        <source>Others</source>
        <translation>Lainnya</translation>
    </message>
    <message>
        <source>This month</source>
        <translation>Bulan ini</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Hari ini</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Kemarin</translation>
    </message>
    <message>
        <source>This week</source>
        <translation>Minggu ini</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Minggu lalu</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Bulan lalu</translation>
    </message>
    <message>
        <source>This year</source>
        <translation>Tahun ini</translation>
    </message>
    <message>
        <source>Last year</source>
        <translation>Tahun lalu</translation>
    </message>
    <message>
        <source>Five years</source>
        <translation>Lima tahun</translation>
    </message>
    <message>
        <source>Other period</source>
        <translation>Periode lain</translation>
    </message>
    <message>
        <source>Period:</source>
        <translation>Periode:</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Semua</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Tampilkan</translation>
    </message>
    <message>
        <source>Read the report</source>
        <translation>Baca laporan</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Batal</translation>
    </message>
    <message>
        <source>Stop reading</source>
        <translation>Hentikan pembacaan</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Pratinjau</translation>
    </message>
    <message>
        <source>See the pages</source>
        <translation>Lihat halaman</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Cetak</translation>
    </message>
    <message>
        <source>Print the report</source>
        <translation>Cetak laporan</translation>
    </message>
    <message>
        <source>PDF</source>
        <translation>PDF</translation>
    </message>
    <message>
        <source>Save the pages as a file</source>
        <translation>Simpan halaman sebagai berkas</translation>
    </message>
    <message>
        <source>CSV</source>
        <translation>CSV</translation>
    </message>
    <message>
        <source>Save the rows for a spreadsheet</source>
        <translation>Simpan baris untuk lembar kerja</translation>
    </message>
    <message>
        <source>Press Show (F5) to read the report.</source>
        <translation>Tekan Tampilkan (F5) untuk membaca laporan.</translation>
    </message>
    <message>
        <source>The report could not be read. %1</source>
        <translation>Laporan tidak dapat dibaca. %1</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>Dibatalkan.</translation>
    </message>
    <message>
        <source>Reading... %1 rows, %2 s</source>
        <translation>Membaca... %1 baris, %2 dtk</translation>
    </message>
    <message>
        <source>Nothing was found for these questions.</source>
        <translation>Tidak ada data untuk pilihan ini.</translation>
    </message>
    <message>
        <source>Only the first %1 rows are shown, and the totals are theirs alone. Please ask for a shorter period.</source>
        <translation>Hanya %1 baris pertama yang ditampilkan, dan totalnya hanya dari baris itu. Pilih periode yang lebih pendek.</translation>
    </message>
    <message>
        <source>%1 rows, read on %2 in %3 s</source>
        <translation>%1 baris, dibaca pada %2 dalam %3 dtk</translation>
    </message>
    <message>
        <source>Saved as %1</source>
        <translation>Disimpan sebagai %1</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Kesalahan</translation>
    </message>
    <message>
        <source>The file %1 could not be written.</source>
        <translation>Berkas %1 tidak dapat ditulis.</translation>
    </message>
    <message>
        <source>Printed %1 by %2</source>
        <translation>Dicetak %1 oleh %2</translation>
    </message>
    <message>
        <source>The report could not be printed.</source>
        <translation>Laporan tidak dapat dicetak.</translation>
    </message>
    <message>
        <source>Day&apos;s close</source>
        <translation>Tutup hari</translation>
    </message>
    <message>
        <source>What each cashier took on the day. Expected cash is the cash of the sales without the change, the cash from members, and what else came into and left accounts of the type Cash; the change in the drawer at opening comes on top. Credit is what the sales of the day had settled otherwise, and later by members.</source>
        <translation>Penerimaan tiap kasir pada hari itu. Kas seharusnya adalah uang tunai penjualan tanpa kembalian, uang tunai dari anggota, dan yang lain yang masuk ke dan keluar dari akun berjenis Tunai; uang receh di laci saat buka ditambahkan lagi. Kredit adalah penjualan hari itu yang dilunasi dengan cara lain, juga kemudian oleh anggota.</translation>
    </message>
    <message>
        <source>Day:</source>
        <translation>Hari:</translation>
    </message>
    <message>
        <source>Cashier</source>
        <translation>Kasir</translation>
    </message>
    <message>
        <source>Not known</source>
        <translation>Tidak diketahui</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Akun</translation>
    </message>
    <message>
        <source>Cash</source>
        <translation>Tunai</translation>
    </message>
    <message>
        <source>Credit</source>
        <translation>Kredit</translation>
    </message>
    <message>
        <source>Still due</source>
        <translation>Masih terutang</translation>
    </message>
    <message>
        <source>Members: cash</source>
        <translation>Anggota: tunai</translation>
    </message>
    <message>
        <source>Members: transfer</source>
        <translation>Anggota: transfer</translation>
    </message>
    <message>
        <source>Members: check</source>
        <translation>Anggota: cek</translation>
    </message>
    <message>
        <source>Other in</source>
        <translation>Masuk lainnya</translation>
    </message>
    <message>
        <source>Paid out</source>
        <translation>Dikeluarkan</translation>
    </message>
    <message>
        <source>Expected cash</source>
        <translation>Kas seharusnya</translation>
    </message>
    <message>
        <source>Opening balance</source>
        <translation>Saldo awal</translation>
    </message>
    <message>
        <source>Member payment</source>
        <translation>Pembayaran anggota</translation>
    </message>
    <message>
        <source>Returned to supplier</source>
        <translation>Diretur ke pemasok</translation>
    </message>
    <message>
        <source>Purchases</source>
        <translation>Pembelian</translation>
    </message>
    <message>
        <source>Purchase order</source>
        <translation>Pesanan pembelian</translation>
    </message>
    <message>
        <source>Bill paid</source>
        <translation>Tagihan dibayar</translation>
    </message>
    <message>
        <source>Agent commission</source>
        <translation>Komisi agen</translation>
    </message>
    <message>
        <source>Transfer of funds</source>
        <translation>Pemindahan dana</translation>
    </message>
    <message>
        <source>Journal entry</source>
        <translation>Entri jurnal</translation>
    </message>
    <message>
        <source>Closing balance</source>
        <translation>Saldo akhir</translation>
    </message>
    <message>
        <source>Debit</source>
        <translation>Debet</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Macam</translation>
    </message>
    <message>
        <source>Ledger by account</source>
        <translation>Buku besar per akun</translation>
    </message>
    <message>
        <source>Every movement of each account with its balance, as in the general journal: documents with their whole total, whatever was paid of it, and none without an account.</source>
        <translation>Setiap mutasi tiap akun dengan saldonya, seperti di jurnal umum: dokumen dengan total penuhnya, berapa pun yang sudah dibayar, dan tidak ada yang tanpa akun.</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Nomor</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Keterangan</translation>
    </message>
    <message>
        <source>Balance</source>
        <translation>Saldo</translation>
    </message>
    <message>
        <source>Entered by</source>
        <translation>Diisi oleh</translation>
    </message>
    <message>
        <source>Account balances</source>
        <translation>Saldo akun</translation>
    </message>
    <message>
        <source>What each account had at the beginning of the period, what came and went, and what it had at the end, reckoned from all documents since the first as the general journal has them.</source>
        <translation>Saldo tiap akun pada awal periode, yang masuk dan keluar, dan saldonya pada akhir periode, dihitung dari semua dokumen sejak yang pertama seperti di jurnal umum.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nama</translation>
    </message>
    <message>
        <source>Movements</source>
        <translation>Mutasi</translation>
    </message>
    <message>
        <source>Money in</source>
        <translation>Uang masuk</translation>
    </message>
    <message>
        <source>Money out</source>
        <translation>Uang keluar</translation>
    </message>
    <message>
        <source>In less out</source>
        <translation>Masuk dikurangi keluar</translation>
    </message>
    <message>
        <source>Money in and out by kind</source>
        <translation>Uang masuk dan keluar per macam</translation>
    </message>
    <message>
        <source>The movements of the general journal by their kind. A transfer counts on both of its accounts; choose an account to see one side alone.</source>
        <translation>Mutasi jurnal umum menurut macamnya. Pemindahan dana dihitung pada kedua akunnya; pilih satu akun untuk melihat satu sisi saja.</translation>
    </message>
    <message>
        <source>Money in and out by day</source>
        <translation>Uang masuk dan keluar per hari</translation>
    </message>
    <message>
        <source>The movements of the general journal day by day, and the balance at the end of each day since the first document.</source>
        <translation>Mutasi jurnal umum hari demi hari, dan saldo pada akhir setiap hari sejak dokumen pertama.</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Kode</translation>
    </message>
    <message>
        <source>Item</source>
        <translation>Barang</translation>
    </message>
    <message>
        <source>Item type</source>
        <translation>Jenis barang</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Satuan</translation>
    </message>
    <message>
        <source>Supplier</source>
        <translation>Pemasok</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>No.</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Catatan</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Pengguna</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Fully paid</source>
        <translation>Lunas</translation>
    </message>
    <message>
        <source>Unpaid</source>
        <translation>Belum Dibayar</translation>
    </message>
    <message>
        <source>Partially paid</source>
        <translation>Dibayar sebagian</translation>
    </message>
    <message>
        <source>Class</source>
        <translation>Kelas</translation>
    </message>
    <message>
        <source>Stock</source>
        <translation>Stok</translation>
    </message>
    <message>
        <source>Menu or service</source>
        <translation>Menu atau layanan</translation>
    </message>
    <message>
        <source>Items and prices</source>
        <translation>Barang dan harga</translation>
    </message>
    <message>
        <source>Every item with its unit cost, the price of its last purchase, and the margin that its sales price leaves over the unit cost.</source>
        <translation>Setiap barang dengan biaya satuannya, harga pembelian terakhir, dan margin harga jual di atas biaya satuan.</translation>
    </message>
    <message>
        <source>Class:</source>
        <translation>Kelas:</translation>
    </message>
    <message>
        <source>Unit cost</source>
        <translation>Biaya satuan</translation>
    </message>
    <message>
        <source>Last bought at</source>
        <translation>Harga beli terakhir</translation>
    </message>
    <message>
        <source>Last purchase</source>
        <translation>Pembelian terakhir</translation>
    </message>
    <message>
        <source>Sales price</source>
        <translation>Harga jual</translation>
    </message>
    <message>
        <source>Margin</source>
        <translation>Margin</translation>
    </message>
    <message>
        <source>Margin %</source>
        <translation>Margin %</translation>
    </message>
    <message>
        <source>Items and accounts</source>
        <translation>Barang dan akun</translation>
    </message>
    <message>
        <source>The accounts that each item&apos;s sales, stock and cost are booked on.</source>
        <translation>Akun tempat penjualan, stok dan biaya tiap barang dibukukan.</translation>
    </message>
    <message>
        <source>Sales account</source>
        <translation>Akun penjualan</translation>
    </message>
    <message>
        <source>Inventory account</source>
        <translation>Akun persediaan</translation>
    </message>
    <message>
        <source>Cost of sales account</source>
        <translation>Akun harga pokok penjualan</translation>
    </message>
    <message>
        <source>Components of grouped items</source>
        <translation>Komponen barang paket</translation>
    </message>
    <message>
        <source>What each grouped item is made of, and what that costs at the components&apos; unit costs.</source>
        <translation>Isi tiap barang paket, dan biayanya menurut biaya satuan komponennya.</translation>
    </message>
    <message>
        <source>Grouped item</source>
        <translation>Barang paket</translation>
    </message>
    <message>
        <source>Component</source>
        <translation>Komponen</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Jumlah</translation>
    </message>
    <message>
        <source>Cost</source>
        <translation>Biaya</translation>
    </message>
    <message>
        <source>Accounts</source>
        <translation>Akun</translation>
    </message>
    <message>
        <source>The ledger&apos;s accounts by their types.</source>
        <translation>Akun buku besar menurut jenisnya.</translation>
    </message>
    <message>
        <source>Accounts payable</source>
        <translation>Utang usaha</translation>
    </message>
    <message>
        <source>Accounts receivable</source>
        <translation>Piutang usaha</translation>
    </message>
    <message>
        <source>Income</source>
        <translation>Pendapatan</translation>
    </message>
    <message>
        <source>Expense</source>
        <translation>Beban</translation>
    </message>
    <message>
        <source>Assets</source>
        <translation>Aset</translation>
    </message>
    <message>
        <source>Other current liabilities</source>
        <translation>Kewajiban lancar lainnya</translation>
    </message>
    <message>
        <source>Inventory</source>
        <translation>Persediaan</translation>
    </message>
    <message>
        <source>Cost of sales</source>
        <translation>Harga pokok penjualan</translation>
    </message>
    <message>
        <source>Type of account:</source>
        <translation>Jenis akun:</translation>
    </message>
    <message>
        <source>Type of account</source>
        <translation>Jenis akun</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>Aktif</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ya</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Tidak</translation>
    </message>
    <message>
        <source>Tables</source>
        <translation>Meja</translation>
    </message>
    <message>
        <source>The tables of the restaurant.</source>
        <translation>Meja-meja restoran.</translation>
    </message>
    <message>
        <source>Stock items</source>
        <translation>Barang stok</translation>
    </message>
    <message>
        <source>Menu and service items</source>
        <translation>Menu dan layanan</translation>
    </message>
    <message>
        <source>Items</source>
        <translation>Barang</translation>
    </message>
    <message>
        <source>Item types</source>
        <translation>Jenis barang</translation>
    </message>
    <message>
        <source>The kinds of items, and how many items are of each.</source>
        <translation>Jenis barang, dan jumlah barang pada tiap jenis.</translation>
    </message>
    <message>
        <source>Units</source>
        <translation>Satuan</translation>
    </message>
    <message>
        <source>The units that items are counted in, and how many items use each.</source>
        <translation>Satuan untuk menghitung barang, dan jumlah barang yang memakainya.</translation>
    </message>
    <message>
        <source>Age on:</source>
        <translation>Umur per:</translation>
    </message>
    <message>
        <source>Open orders</source>
        <translation>Pesanan terbuka</translation>
    </message>
    <message>
        <source>Orders that are not received, closed or cancelled, with what has come of each item so far. Late is counted from the ship date.</source>
        <translation>Pesanan yang belum diterima, ditutup atau dibatalkan, dengan yang sudah datang dari tiap barang. Keterlambatan dihitung dari tanggal kirim.</translation>
    </message>
    <message>
        <source>Ship date</source>
        <translation>Tanggal kirim</translation>
    </message>
    <message>
        <source>Days late</source>
        <translation>Hari terlambat</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Baru</translation>
    </message>
    <message>
        <source>Sent to supplier</source>
        <translation>Dikirim ke pemasok</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Diubah</translation>
    </message>
    <message>
        <source>Ordered</source>
        <translation>Dipesan</translation>
    </message>
    <message>
        <source>Received</source>
        <translation>Diterima</translation>
    </message>
    <message>
        <source>To come</source>
        <translation>Akan datang</translation>
    </message>
    <message>
        <source>Worth to come</source>
        <translation>Nilai yang akan datang</translation>
    </message>
    <message>
        <source>Returns to suppliers</source>
        <translation>Retur ke pemasok</translation>
    </message>
    <message>
        <source>What went back to suppliers, item by item. Cancelled returns are not in it; they moved nothing.</source>
        <translation>Yang diretur ke pemasok, barang demi barang. Retur yang dibatalkan tidak termasuk; tidak ada yang berpindah.</translation>
    </message>
    <message>
        <source>Purchase No.</source>
        <translation>No. Pembelian</translation>
    </message>
    <message>
        <source>Price each</source>
        <translation>Harga satuan</translation>
    </message>
    <message>
        <source>Unpaid purchases</source>
        <translation>Pembelian belum lunas</translation>
    </message>
    <message>
        <source>Every purchase that is not fully paid today, the first due first.</source>
        <translation>Setiap pembelian yang belum lunas hari ini, yang paling dulu jatuh tempo di atas.</translation>
    </message>
    <message>
        <source>Invoice No.</source>
        <translation>No. Faktur</translation>
    </message>
    <message>
        <source>Due date</source>
        <translation>Jatuh tempo</translation>
    </message>
    <message>
        <source>Paid</source>
        <translation>Dibayar</translation>
    </message>
    <message>
        <source>Net due</source>
        <translation>Sisa tagihan</translation>
    </message>
    <message>
        <source>Payables by age</source>
        <translation>Utang menurut umur</translation>
    </message>
    <message>
        <source>What is still to be paid to each supplier today, by the days that have gone since it was due.</source>
        <translation>Yang masih harus dibayar kepada tiap pemasok hari ini, menurut jumlah hari sejak jatuh tempo.</translation>
    </message>
    <message>
        <source>Not yet due</source>
        <translation>Belum jatuh tempo</translation>
    </message>
    <message>
        <source>1-30 days</source>
        <translation>1-30 hari</translation>
    </message>
    <message>
        <source>31-60 days</source>
        <translation>31-60 hari</translation>
    </message>
    <message>
        <source>61-90 days</source>
        <translation>61-90 hari</translation>
    </message>
    <message>
        <source>Over 90 days</source>
        <translation>Lebih dari 90 hari</translation>
    </message>
    <message>
        <source>Bills paid</source>
        <translation>Tagihan dibayar</translation>
    </message>
    <message>
        <source>What was paid to suppliers for earlier purchases and for expenses. What was paid with the purchase itself is not in it.</source>
        <translation>Yang dibayar kepada pemasok untuk pembelian terdahulu dan untuk beban. Yang dibayar bersama pembeliannya tidak termasuk.</translation>
    </message>
    <message>
        <source>Paid by</source>
        <translation>Dibayar dengan</translation>
    </message>
    <message>
        <source>Electronic funds transfer</source>
        <translation>Transfer dana elektronik</translation>
    </message>
    <message>
        <source>Check</source>
        <translation>Cek</translation>
    </message>
    <message>
        <source>Expenses</source>
        <translation>Beban</translation>
    </message>
    <message>
        <source>Code or name:</source>
        <translation>Kode atau nama:</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Alamat</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Telepon</translation>
    </message>
    <message>
        <source>E-mail</source>
        <translation>E-mail</translation>
    </message>
    <message>
        <source>Account No.</source>
        <translation>No. Rekening</translation>
    </message>
    <message>
        <source>Account holder</source>
        <translation>Pemilik rekening</translation>
    </message>
    <message>
        <source>Show:</source>
        <translation>Tampilkan:</translation>
    </message>
    <message>
        <source>Suppliers</source>
        <translation>Pemasok</translation>
    </message>
    <message>
        <source>The suppliers with their bank accounts, and what is to be paid to each today.</source>
        <translation>Pemasok dengan rekening banknya, dan yang harus dibayar kepada masing-masing hari ini.</translation>
    </message>
    <message>
        <source>Only those to be paid</source>
        <translation>Hanya yang harus dibayar</translation>
    </message>
    <message>
        <source>To be paid</source>
        <translation>Harus dibayar</translation>
    </message>
    <message>
        <source>Members</source>
        <translation>Anggota</translation>
    </message>
    <message>
        <source>The members with their discounts, and what each owes today on invoices that are not fully paid.</source>
        <translation>Anggota dengan diskonnya, dan utang masing-masing hari ini pada faktur yang belum lunas.</translation>
    </message>
    <message>
        <source>Only those who owe</source>
        <translation>Hanya yang berutang</translation>
    </message>
    <message>
        <source>Expires</source>
        <translation>Berakhir</translation>
    </message>
    <message>
        <source>Open invoices</source>
        <translation>Faktur belum lunas</translation>
    </message>
    <message>
        <source>Owes</source>
        <translation>Utang</translation>
    </message>
    <message>
        <source>Agents</source>
        <translation>Agen</translation>
    </message>
    <message>
        <source>The agents with their commissions and bank accounts.</source>
        <translation>Agen dengan komisi dan rekening banknya.</translation>
    </message>
    <message>
        <source>Commission</source>
        <translation>Komisi</translation>
    </message>
    <message>
        <source>Employees</source>
        <translation>Karyawan</translation>
    </message>
    <message>
        <source>The employees who serve the tables.</source>
        <translation>Karyawan yang melayani meja.</translation>
    </message>
    <message>
        <source>User group:</source>
        <translation>Grup pengguna:</translation>
    </message>
    <message>
        <source>User group</source>
        <translation>Grup pengguna</translation>
    </message>
    <message>
        <source>Users</source>
        <translation>Pengguna</translation>
    </message>
    <message>
        <source>Who can log in, and in which group.</source>
        <translation>Siapa yang dapat masuk, dan di grup mana.</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Dibuat</translation>
    </message>
    <message>
        <source>Rights by group</source>
        <translation>Hak akses per grup</translation>
    </message>
    <message>
        <source>What each group of users may do. Own records are those that the user entered.</source>
        <translation>Yang boleh dilakukan tiap grup pengguna. Data sendiri adalah data yang diisi pengguna itu.</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Tidak ada</translation>
    </message>
    <message>
        <source>Own records</source>
        <translation>Data sendiri</translation>
    </message>
    <message>
        <source>All records</source>
        <translation>Semua data</translation>
    </message>
    <message>
        <source>Right:</source>
        <translation>Hak:</translation>
    </message>
    <message>
        <source>Subject</source>
        <translation>Bidang</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Hak</translation>
    </message>
    <message>
        <source>Granted on</source>
        <translation>Diberikan pada</translation>
    </message>
    <message>
        <source>Purchases by day</source>
        <translation>Pembelian per hari</translation>
    </message>
    <message>
        <source>What was bought on each day, paid or not. Returns are not taken off.</source>
        <translation>Yang dibeli setiap hari, sudah dibayar atau belum. Retur tidak dikurangkan.</translation>
    </message>
    <message>
        <source>Purchases by supplier</source>
        <translation>Pembelian per pemasok</translation>
    </message>
    <message>
        <source>What was bought from each supplier, and what of it is still to be paid. Returns are not taken off the totals.</source>
        <translation>Yang dibeli dari tiap pemasok, dan yang masih harus dibayar. Retur tidak mengurangi total.</translation>
    </message>
    <message>
        <source>Average</source>
        <translation>Rata-rata</translation>
    </message>
    <message>
        <source>Purchases by item</source>
        <translation>Pembelian per barang</translation>
    </message>
    <message>
        <source>What was bought of each item at the prices of the lines: discount and tax of the whole purchase are not in it.</source>
        <translation>Yang dibeli dari tiap barang menurut harga baris: diskon dan pajak seluruh pembelian tidak termasuk.</translation>
    </message>
    <message>
        <source>Lowest price</source>
        <translation>Harga terendah</translation>
    </message>
    <message>
        <source>Highest price</source>
        <translation>Harga tertinggi</translation>
    </message>
    <message>
        <source>Average price</source>
        <translation>Harga rata-rata</translation>
    </message>
    <message>
        <source>List of purchases</source>
        <translation>Daftar pembelian</translation>
    </message>
    <message>
        <source>Every purchase with what was paid at once, what was paid or credited later, and what is still due.</source>
        <translation>Setiap pembelian dengan yang dibayar langsung, yang dibayar atau dikreditkan kemudian, dan yang masih terutang.</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Status:</translation>
    </message>
    <message>
        <source>Paid later</source>
        <translation>Dibayar kemudian</translation>
    </message>
    <message>
        <source>Price history by item</source>
        <translation>Riwayat harga per barang</translation>
    </message>
    <message>
        <source>What each supplier asked for an item from purchase to purchase. The change is against the item&apos;s purchase before, from whomever it was.</source>
        <translation>Harga barang dari tiap pemasok dari pembelian ke pembelian. Perubahan dibandingkan dengan pembelian barang itu sebelumnya, dari pemasok mana pun.</translation>
    </message>
    <message>
        <source>Net price</source>
        <translation>Harga bersih</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Perubahan</translation>
    </message>
    <message>
        <source>Commissions earned</source>
        <translation>Komisi diperoleh</translation>
    </message>
    <message>
        <source>The invoices that agents brought, with the commission at the percentage that the agent has today, and what was paid for it. Percentages of former times are known only where the commission was paid.</source>
        <translation>Faktur yang dibawa agen, dengan komisi menurut persentase agen hari ini, dan yang sudah dibayar. Persentase dahulu hanya diketahui bila komisinya sudah dibayar.</translation>
    </message>
    <message>
        <source>Not yet paid</source>
        <translation>Belum dibayar</translation>
    </message>
    <message>
        <source>Agent</source>
        <translation>Agen</translation>
    </message>
    <message>
        <source>Percent</source>
        <translation>Persen</translation>
    </message>
    <message>
        <source>Paid on</source>
        <translation>Dibayar pada</translation>
    </message>
    <message>
        <source>Amount paid</source>
        <translation>Jumlah dibayar</translation>
    </message>
    <message>
        <source>Commissions paid</source>
        <translation>Komisi dibayar</translation>
    </message>
    <message>
        <source>The payments to agents, by the day of the payment. Amount paid is what was handed over: more than the commission means change came back.</source>
        <translation>Pembayaran kepada agen menurut hari pembayarannya. Jumlah dibayar adalah uang yang diserahkan: lebih dari komisi berarti ada kembalian.</translation>
    </message>
    <message>
        <source>Payment No.</source>
        <translation>No. Pembayaran</translation>
    </message>
    <message>
        <source>Invoices</source>
        <translation>Faktur</translation>
    </message>
    <message>
        <source>Reference</source>
        <translation>Referensi</translation>
    </message>
    <message>
        <source>Invoice number missing</source>
        <translation>Nomor faktur hilang</translation>
    </message>
    <message>
        <source>Order without its invoice</source>
        <translation>Pesanan tanpa fakturnya</translation>
    </message>
    <message>
        <source>Invoice without its order</source>
        <translation>Faktur tanpa pesanannya</translation>
    </message>
    <message>
        <source>Payment for a deleted invoice</source>
        <translation>Pembayaran untuk faktur yang sudah dihapus</translation>
    </message>
    <message>
        <source>Invoice saved again</source>
        <translation>Faktur disimpan lagi</translation>
    </message>
    <message>
        <source>Credit unlike the payments</source>
        <translation>Kredit tidak sama dengan pembayaran</translation>
    </message>
    <message>
        <source>Large discount</source>
        <translation>Diskon besar</translation>
    </message>
    <message>
        <source>Ended with money due</source>
        <translation>Diakhiri tetapi belum lunas</translation>
    </message>
    <message>
        <source>Dated on another day</source>
        <translation>Tanggalnya lain dari hari disimpan</translation>
    </message>
    <message>
        <source>Exceptions</source>
        <translation>Pengecualian</translation>
    </message>
    <message>
        <source>Where to look twice. The data do not tell who deleted an invoice or when, nor what stood in it: a gap in the numbers or an order without its invoice is all that remains, and a gap may also come from running numbers that were changed. Of a changed invoice they tell who changed it last, but not what. A deleted member payment is seen only while another one of the same invoice stands.</source>
        <translation>Yang perlu diperiksa lagi. Data tidak mencatat siapa yang menghapus faktur atau kapan, dan apa isinya: yang tersisa hanya nomor yang terlewat atau pesanan tanpa faktur, dan nomor juga dapat terlewat karena nomor urut diubah. Dari faktur yang diubah tercatat siapa yang terakhir mengubahnya, tetapi tidak apa yang diubah. Pembayaran anggota yang dihapus hanya terlihat selama pembayaran lain untuk faktur yang sama masih ada.</translation>
    </message>
    <message>
        <source>Kind:</source>
        <translation>Macam:</translation>
    </message>
    <message>
        <source>Discounts from percent:</source>
        <translation>Diskon mulai persen:</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>Dokumen</translation>
    </message>
    <message>
        <source>Guest or table</source>
        <translation>Tamu atau meja</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Jumlah Uang</translation>
    </message>
    <message>
        <source>Saved by</source>
        <translation>Disimpan oleh</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Disimpan</translation>
    </message>
    <message>
        <source>Changed by</source>
        <translation>Diubah oleh</translation>
    </message>
    <message>
        <source>Guest</source>
        <translation>Tamu</translation>
    </message>
    <message>
        <source>Member</source>
        <translation>Anggota</translation>
    </message>
    <message>
        <source>No member</source>
        <translation>Tanpa anggota</translation>
    </message>
    <message>
        <source>Each invoice of the period, as in the list of all sales. For years of sales the reports by month are the better choice.</source>
        <translation>Setiap faktur dalam periode, seperti di daftar semua penjualan. Untuk penjualan bertahun-tahun lebih baik pilih laporan per bulan.</translation>
    </message>
    <message>
        <source>Waitress</source>
        <translation>Pramusaji</translation>
    </message>
    <message>
        <source>Discounts given</source>
        <translation>Diskon diberikan</translation>
    </message>
    <message>
        <source>The invoices with a discount, by the cashier who saved them first. The percentage is of the subtotal, before tax and service.</source>
        <translation>Faktur dengan diskon, per kasir yang pertama menyimpannya. Persentasenya dari subtotal, sebelum pajak dan servis.</translation>
    </message>
    <message>
        <source>From percent:</source>
        <translation>Mulai persen:</translation>
    </message>
    <message>
        <source>Until:</source>
        <translation>Sampai:</translation>
    </message>
    <message>
        <source>The invoices up to the day that are not fully paid today. Days late are counted from the due date, or from the sale where there is none.</source>
        <translation>Faktur sampai hari itu yang belum lunas hari ini. Hari terlambat dihitung dari jatuh tempo, atau dari penjualan bila tidak ada.</translation>
    </message>
    <message>
        <source>Receivables by age</source>
        <translation>Piutang menurut umur</translation>
    </message>
    <message>
        <source>What members and guests owe on the invoices up to the day, as it stands today, by the days since it was due.</source>
        <translation>Utang anggota dan tamu pada faktur sampai hari itu, menurut keadaan hari ini, berdasarkan jumlah hari sejak jatuh tempo.</translation>
    </message>
    <message>
        <source>1 to 30 days</source>
        <translation>1 sampai 30 hari</translation>
    </message>
    <message>
        <source>31 to 60 days</source>
        <translation>31 sampai 60 hari</translation>
    </message>
    <message>
        <source>61 to 90 days</source>
        <translation>61 sampai 90 hari</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Bagian</translation>
    </message>
    <message>
        <source>Sold</source>
        <translation>Terjual</translation>
    </message>
    <message>
        <source>Sales by item</source>
        <translation>Penjualan per barang</translation>
    </message>
    <message>
        <source>What was sold of each item, at the prices of the lines: discount, tax and service of the whole invoice are not in it.</source>
        <translation>Yang terjual dari tiap barang menurut harga baris: diskon, pajak dan servis seluruh faktur tidak termasuk.</translation>
    </message>
    <message>
        <source>Sales by item type</source>
        <translation>Penjualan per jenis barang</translation>
    </message>
    <message>
        <source>What the kinds of items bring, at the prices of the lines: discount, tax and service of the whole invoice are not in it.</source>
        <translation>Pendapatan tiap jenis barang menurut harga baris: diskon, pajak dan servis seluruh faktur tidak termasuk.</translation>
    </message>
    <message>
        <source>Different items</source>
        <translation>Ragam barang</translation>
    </message>
    <message>
        <source>Margin by item</source>
        <translation>Margin per barang</translation>
    </message>
    <message>
        <source>What remains of the sales of each item after its cost: the price of its last purchase up to the end of the period, before discounts of that purchase, or the item&apos;s unit cost where none was made. Discounts of whole invoices are not in it.</source>
        <translation>Sisa penjualan tiap barang setelah biayanya: harga pembelian terakhir sampai akhir periode, sebelum diskon pembelian itu, atau biaya satuan barang bila belum pernah dibeli. Diskon seluruh faktur tidak termasuk.</translation>
    </message>
    <message>
        <source>Cost each</source>
        <translation>Biaya satuan</translation>
    </message>
    <message>
        <source>Sales by type</source>
        <translation>Penjualan per jenis</translation>
    </message>
    <message>
        <source>Dine in, fast food and take away side by side.</source>
        <translation>Makan di tempat, cepat saji dan bawa pulang berdampingan.</translation>
    </message>
    <message>
        <source>Sales by table</source>
        <translation>Penjualan per meja</translation>
    </message>
    <message>
        <source>What each table brought, at the table where the guests paid. Each part of a divided bill counts as a sale.</source>
        <translation>Pendapatan tiap meja, pada meja tempat tamu membayar. Tiap bagian tagihan yang dipisah dihitung sebagai satu penjualan.</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>Meja</translation>
    </message>
    <message>
        <source>Sales by waitress</source>
        <translation>Penjualan per pramusaji</translation>
    </message>
    <message>
        <source>What was sold under each waitress&apos;s name. Take-away has none.</source>
        <translation>Yang terjual atas nama tiap pramusaji. Bawa pulang tidak memiliki pramusaji.</translation>
    </message>
    <message>
        <source>No waitress</source>
        <translation>Tanpa pramusaji</translation>
    </message>
    <message>
        <source>Sales by cashier</source>
        <translation>Penjualan per kasir</translation>
    </message>
    <message>
        <source>Who saved the invoices first. Whoever changes one later is told on the page of exceptions.</source>
        <translation>Siapa yang pertama menyimpan faktur. Yang mengubahnya kemudian tercantum di halaman pengecualian.</translation>
    </message>
    <message>
        <source>Sales by member</source>
        <translation>Penjualan per anggota</translation>
    </message>
    <message>
        <source>What each member spent, and what is still due of it.</source>
        <translation>Belanja tiap anggota, dan sisa yang masih terutang.</translation>
    </message>
    <message>
        <source>Sales by agent</source>
        <translation>Penjualan per agen</translation>
    </message>
    <message>
        <source>What the guests spent whom an agent brought. Take-away has none.</source>
        <translation>Belanja tamu yang dibawa agen. Bawa pulang tidak memiliki agen.</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Jenis</translation>
    </message>
    <message>
        <source>Days</source>
        <translation>Hari</translation>
    </message>
    <message>
        <source>Total per day</source>
        <translation>Total per hari</translation>
    </message>
    <message>
        <source>Sales by hour</source>
        <translation>Penjualan per jam</translation>
    </message>
    <message>
        <source>At which hours of the day the invoices were saved first, which is when the guests paid rather than when they came. Days counts the days of the period with any sale.</source>
        <translation>Pada jam berapa faktur pertama kali disimpan, yaitu saat tamu membayar, bukan saat tamu datang. Hari menghitung hari dalam periode yang ada penjualannya.</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>Jam</translation>
    </message>
    <message>
        <source>Sales by weekday</source>
        <translation>Penjualan per nama hari</translation>
    </message>
    <message>
        <source>What each weekday brings. Days counts the days with a sale, so that a holiday does not lower the total per day.</source>
        <translation>Pendapatan tiap hari dalam minggu. Hari menghitung hari yang ada penjualannya, sehingga hari libur tidak menurunkan total per hari.</translation>
    </message>
    <message>
        <source>Weekday</source>
        <translation>Hari</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Senin</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Selasa</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Rabu</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Kamis</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Jumat</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Sabtu</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Minggu</translation>
    </message>
    <message>
        <source>What was invoiced on each day, paid or not. Cash is what was received at the sale less the change; credit is what was settled otherwise, by members later too.</source>
        <translation>Yang difakturkan setiap hari, sudah dibayar atau belum. Tunai adalah yang diterima saat penjualan dikurangi kembalian; kredit adalah yang dilunasi dengan cara lain, juga kemudian oleh anggota.</translation>
    </message>
    <message>
        <source>Sales by week</source>
        <translation>Penjualan per minggu</translation>
    </message>
    <message>
        <source>What was invoiced in each week from Monday to Sunday. The first and the last week count the days of the period alone.</source>
        <translation>Yang difakturkan setiap minggu dari Senin sampai Minggu. Minggu pertama dan terakhir hanya menghitung hari dalam periode.</translation>
    </message>
    <message>
        <source>Week from</source>
        <translation>Minggu mulai</translation>
    </message>
    <message>
        <source>Sales by month</source>
        <translation>Penjualan per bulan</translation>
    </message>
    <message>
        <source>What was invoiced in each month. The first and the last month count the days of the period alone.</source>
        <translation>Yang difakturkan setiap bulan. Bulan pertama dan terakhir hanya menghitung hari dalam periode.</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Bulan</translation>
    </message>
    <message>
        <source>Movements by item</source>
        <translation>Mutasi per barang</translation>
    </message>
    <message>
        <source>What there was of each item before the period, what came and went in it, and what was left. Counted is what counts of the storeroom changed.</source>
        <translation>Stok tiap barang sebelum periode, yang masuk dan keluar selama periode, dan sisanya. Hasil hitung adalah perubahan dari hitungan gudang.</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Sebelum</translation>
    </message>
    <message>
        <source>Bought</source>
        <translation>Dibeli</translation>
    </message>
    <message>
        <source>Returned</source>
        <translation>Diretur</translation>
    </message>
    <message>
        <source>Counted</source>
        <translation>Hasil hitung</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Sisa</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Nilai</translation>
    </message>
    <message>
        <source>Movements by day</source>
        <translation>Mutasi per hari</translation>
    </message>
    <message>
        <source>Every purchase, return and adjustment of an item, and what was sold of it on each day.</source>
        <translation>Setiap pembelian, retur dan penyesuaian suatu barang, serta yang terjual setiap hari.</translation>
    </message>
    <message>
        <source>Purchase</source>
        <translation>Pembelian</translation>
    </message>
    <message>
        <source>Adjustment</source>
        <translation>Penyesuaian</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Retur</translation>
    </message>
    <message>
        <source>Movement:</source>
        <translation>Mutasi:</translation>
    </message>
    <message>
        <source>Movement</source>
        <translation>Mutasi</translation>
    </message>
    <message>
        <source>No. or reason</source>
        <translation>No. atau alasan</translation>
    </message>
    <message>
        <source>In</source>
        <translation>Masuk</translation>
    </message>
    <message>
        <source>Out</source>
        <translation>Keluar</translation>
    </message>
    <message>
        <source>Adjustments by reason</source>
        <translation>Penyesuaian per alasan</translation>
    </message>
    <message>
        <source>What counts of the storeroom took away or added, why, and who entered it; the worth is at the price of the last purchase.</source>
        <translation>Yang dikurangi atau ditambah oleh hitungan gudang, alasannya, dan siapa yang mengisinya; nilainya menurut harga pembelian terakhir.</translation>
    </message>
    <message>
        <source>User:</source>
        <translation>Pengguna:</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>Alasan</translation>
    </message>
    <message>
        <source>After</source>
        <translation>Sesudah</translation>
    </message>
    <message>
        <source>Worth</source>
        <translation>Nilai</translation>
    </message>
    <message>
        <source>Usage against purchases</source>
        <translation>Pemakaian terhadap pembelian</translation>
    </message>
    <message>
        <source>What was bought of each item, less what went back, beside what was sold of it, alone or as a component of grouped items. Much more bought than used is waste, loss or a growing stock. Components do not change the stock on hand.</source>
        <translation>Yang dibeli dari tiap barang, dikurangi yang diretur, di samping yang terjual, sendiri atau sebagai komponen barang paket. Pembelian yang jauh melebihi pemakaian berarti terbuang, hilang atau stok bertambah. Komponen tidak mengubah stok tersedia.</translation>
    </message>
    <message>
        <source>In grouped items</source>
        <translation>Dalam barang paket</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>Terpakai</translation>
    </message>
    <message>
        <source>Not used</source>
        <translation>Tidak dipakai</translation>
    </message>
    <message>
        <source>Used %</source>
        <translation>Terpakai %</translation>
    </message>
    <message>
        <source>On:</source>
        <translation>Pada:</translation>
    </message>
    <message>
        <source>On hand</source>
        <translation>Stok</translation>
    </message>
    <message>
        <source>Stock on hand</source>
        <translation>Stok tersedia</translation>
    </message>
    <message>
        <source>What there was of each stock item at the end of the day, and its worth at the price of the last purchase until then, or at the item&apos;s unit cost where none was made.</source>
        <translation>Stok tiap barang pada akhir hari, dan nilainya menurut harga pembelian terakhir sampai saat itu, atau menurut biaya satuan barang bila belum pernah dibeli.</translation>
    </message>
    <message>
        <source>Quantity:</source>
        <translation>Jumlah:</translation>
    </message>
    <message>
        <source>More than zero</source>
        <translation>Lebih dari nol</translation>
    </message>
    <message>
        <source>Zero or below</source>
        <translation>Nol atau kurang</translation>
    </message>
    <message>
        <source>Negative stock</source>
        <translation>Stok minus</translation>
    </message>
    <message>
        <source>Items of which more was sold than there can have been: a purchase or a count was not entered, or a sale was entered on the wrong item.</source>
        <translation>Barang yang terjual lebih banyak daripada yang mungkin ada: pembelian atau hitungan stok belum diisi, atau penjualan diisi pada barang yang salah.</translation>
    </message>
    <message>
        <source>Last counted</source>
        <translation>Terakhir dihitung</translation>
    </message>
    <message>
        <source>Idle stock</source>
        <translation>Stok diam</translation>
    </message>
    <message>
        <source>What there is of items that were neither sold nor bought for so many days: money that lies in the storeroom.</source>
        <translation>Stok barang yang tidak terjual dan tidak dibeli selama sekian hari: uang yang mengendap di gudang.</translation>
    </message>
    <message>
        <source>Idle days:</source>
        <translation>Hari diam:</translation>
    </message>
    <message>
        <source>Last sold</source>
        <translation>Terakhir terjual</translation>
    </message>
    <message>
        <source>Idle days</source>
        <translation>Hari diam</translation>
    </message>
    <message>
        <source>Ordered, not billed</source>
        <translation>Dipesan, tidak ditagih</translation>
    </message>
</context>
<context>
    <name>RestReader</name>
    <message>
        <source>Long List</source>
        <translation>Daftar Panjang</translation>
    </message>
    <message>
        <source>%1 rows have been read, back to %2. Read the earlier ones too?</source>
        <translation>%1 baris telah dibaca, mundur sampai %2. Baca juga yang lebih lama?</translation>
    </message>
</context>
<context>
    <name>RestoreInstallPage</name>
    <message>
        <source>Restore from Backup File Installation Details</source>
        <translation>Rincian Pemulihan dari Berkas Cadangan</translation>
    </message>
    <message>
        <source>Below you should enter your database connection details and backup file path.</source>
        <translation>Isi rincian sambungan basis data dan lokasi berkas cadangan di bawah ini.</translation>
    </message>
    <message>
        <source>Hostname:</source>
        <translation>Nama Host:</translation>
    </message>
    <message>
        <source>Username:</source>
        <translation>Nama Pengguna:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Kata Sandi:</translation>
    </message>
    <message>
        <source>Database Port:</source>
        <translation>Port Basis Data:</translation>
    </message>
    <message>
        <source>Browse</source>
        <translation>Telusuri</translation>
    </message>
    <message>
        <source>Backup File Path:</source>
        <translation>Lokasi Berkas Cadangan:</translation>
    </message>
    <message>
        <source>Restore to Database:</source>
        <translation>Pulihkan ke Basis Data:</translation>
    </message>
    <message>
        <source>Set it where the server has no database of this name yet</source>
        <translation>Pilih bila server belum punya basis data dengan nama ini</translation>
    </message>
    <message>
        <source>Create a New Database:</source>
        <translation>Buat Basis Data Baru:</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>Buka Berkas</translation>
    </message>
    <message>
        <source>Backup File (*.bak)</source>
        <translation>Berkas Cadangan (*.bak)</translation>
    </message>
    <message>
        <source>Question</source>
        <translation>Pertanyaan</translation>
    </message>
    <message>
        <source>Nobody answers on port %1. %2 Do you want to use that one?</source>
        <translation>Tidak ada yang menjawab di port %1. %2 Apakah port itu akan dipakai?</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Kesalahan</translation>
    </message>
</context>
<context>
    <name>RestoreQuestion</name>
    <message>
        <source>Question</source>
        <translation>Pertanyaan</translation>
    </message>
    <message>
        <source>The database %1 holds %2 tables already. A backup is not restored into them: it would be mixed into what they hold, and spoil their numbering.

Do you want to replace the database? The backup goes into a new database %1, and the one of now stays on the server under the name %3. Nobody may work with it meanwhile.</source>
        <translation>Basis data %1 sudah berisi %2 tabel. Cadangan tidak dipulihkan ke dalamnya: isinya akan tercampur dan penomorannya rusak.

Apakah basis data itu akan diganti? Cadangan masuk ke basis data %1 yang baru, dan yang sekarang tetap ada di server dengan nama %3. Sementara itu tidak boleh ada yang memakainya.</translation>
    </message>
    <message>
        <source>%1 can not be read as a backup. Nothing was restored, and the database is as it was.</source>
        <translation>%1 tidak dapat dibaca sebagai cadangan. Tidak ada yang dipulihkan, dan basis data tetap seperti semula.</translation>
    </message>
    <message>
        <source>The database %1 was not replaced: it is as it was, and nothing was restored. While anybody works with it, this program too, it can not be replaced. Restore into a new database instead, and make that one the active one afterwards.</source>
        <translation>Basis data %1 tidak diganti: isinya tetap seperti semula, dan tidak ada yang dipulihkan. Selama masih ada yang memakainya, termasuk program ini, basis data itu tidak dapat diganti. Pulihkan ke basis data baru, lalu jadikan yang baru itu basis data aktif.</translation>
    </message>
    <message>
        <source>The former database is kept under the name %1.</source>
        <translation>Basis data yang lama disimpan dengan nama %1.</translation>
    </message>
</context>
<context>
    <name>SampleTrade</name>
    <message>
        <source>The sample restaurant is open.</source>
        <translation>Restoran contoh sudah buka.</translation>
    </message>
    <message>
        <source>The database holds trade already, in the table %1. Nothing was changed.</source>
        <translation>Basis data sudah berisi transaksi, di tabel %1. Tidak ada yang diubah.</translation>
    </message>
    <message>
        <source>Catalogue</source>
        <translation>Katalog</translation>
    </message>
    <message>
        <source>Indexes</source>
        <translation>Indeks</translation>
    </message>
</context>
<context>
    <name>SelectDocumentTab</name>
    <message>
        <source>Search</source>
        <translation>Cari</translation>
    </message>
    <message>
        <source>%1 Items</source>
        <translation>%1 Barang</translation>
    </message>
</context>
<context>
    <name>ServiceTextBox</name>
    <message>
        <source>Code</source>
        <translation>Kode</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nama</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Jenis</translation>
    </message>
</context>
<context>
    <name>SettlementDialog</name>
    <message>
        <source>The total is larger than a payment can hold. Please check the figures.</source>
        <translation>Total melebihi batas pembayaran. Periksa kembali angkanya.</translation>
    </message>
</context>
<context>
    <name>SettlementTab</name>
    <message>
        <source>%1 Items</source>
        <translation>%1 Barang</translation>
    </message>
</context>
<context>
    <name>SetupOptions</name>
    <message>
        <source>Show this text.</source>
        <translation>Tampilkan teks ini.</translation>
    </message>
    <message>
        <source>The database server (localhost).</source>
        <translation>Server basis data (localhost).</translation>
    </message>
    <message>
        <source>Its port (6666).</source>
        <translation>Port-nya (6666).</translation>
    </message>
    <message>
        <source>The database user (postgres).</source>
        <translation>Pengguna basis data (postgres).</translation>
    </message>
    <message>
        <source>The database (ZavelPOS).</source>
        <translation>Basis data (ZavelPOS).</translation>
    </message>
    <message>
        <source>install: create the database where there is none.</source>
        <translation>install: buat basis datanya bila belum ada.</translation>
    </message>
    <message>
        <source>install: make the tables anew where there are some. What they hold is lost.</source>
        <translation>install: buat tabel dari awal bila sudah ada. Isinya hilang.</translation>
    </message>
    <message>
        <source>install: the administrator&apos;s user name (admin).</source>
        <translation>install: nama pengguna administrator (admin).</translation>
    </message>
    <message>
        <source>install: the administrator&apos;s password; better in the environment.</source>
        <translation>install: kata sandi administrator; lebih baik lewat lingkungan.</translation>
    </message>
    <message>
        <source>install: how numbers and money are written, en_US or id_ID (en_US).</source>
        <translation>install: cara menulis angka dan uang, en_US atau id_ID (en_US).</translation>
    </message>
    <message>
        <source>install: how dates are shown (d MMM yyyy).</source>
        <translation>install: cara menampilkan tanggal (d MMM yyyy).</translation>
    </message>
    <message>
        <source>install: let the program on this workstation use the database.</source>
        <translation>install: biarkan program di komputer ini memakai basis data itu.</translation>
    </message>
    <message>
        <source>The settings file to write (the program&apos;s own).</source>
        <translation>Berkas pengaturan yang ditulis (milik program sendiri).</translation>
    </message>
    <message>
        <source>This is no port: %1</source>
        <translation>Ini bukan port: %1</translation>
    </message>
    <message>
        <source>This is no locale: %1</source>
        <translation>Ini bukan lokal: %1</translation>
    </message>
    <message>
        <source>Makes or updates the database of Zavel POS.
The database password is taken from ZAVEL_DB_PASSWORD, the administrator&apos;s from ZAVEL_ADMIN_PASSWORD.
Exit status of install, update and sample-trade: 0 when every step was done, 1 otherwise, 2 for wrong arguments.
Exit status of status: 0 installed, 3 reachable but not installed, 4 installed and of a newer version than this program, 1 otherwise.</source>
        <translation>Membuat atau memperbarui basis data Zavel POS.
Kata sandi basis data diambil dari ZAVEL_DB_PASSWORD, kata sandi administrator dari ZAVEL_ADMIN_PASSWORD.
Status keluar install, update dan sample-trade: 0 bila semua langkah berhasil, 1 bila tidak, 2 bila argumen salah.
Status keluar status: 0 terpasang, 3 terjangkau tetapi belum terpasang, 4 terpasang dan versinya lebih baru daripada program ini, 1 selain itu.</translation>
    </message>
    <message>
        <source>install, update, status or sample-trade</source>
        <translation>install, update, status atau sample-trade</translation>
    </message>
    <message>
        <source>sample-trade: how many years up to yesterday (1).</source>
        <translation>sample-trade: berapa tahun sampai kemarin (1).</translation>
    </message>
    <message>
        <source>sample-trade: how many months, on top of the years.</source>
        <translation>sample-trade: berapa bulan, ditambahkan pada tahun.</translation>
    </message>
    <message>
        <source>sample-trade: sales a day, on the average (100).</source>
        <translation>sample-trade: penjualan per hari, rata-rata (100).</translation>
    </message>
    <message>
        <source>sample-trade: another number makes other sales (1).</source>
        <translation>sample-trade: angka lain menghasilkan penjualan lain (1).</translation>
    </message>
    <message>
        <source>Say one of: install, update, status, sample-trade (--help tells more).</source>
        <translation>Sebutkan salah satu: install, update, status, sample-trade (--help menjelaskan lebih lanjut).</translation>
    </message>
    <message>
        <source>Years, months, sales a day and seed are numbers: up to 50 years, 600 months, 10000 sales a day, a seed up to 1000000.</source>
        <translation>Tahun, bulan, penjualan per hari dan seed berupa angka: paling banyak 50 tahun, 600 bulan, 10000 penjualan per hari, seed paling besar 1000000.</translation>
    </message>
</context>
<context>
    <name>SlipQueue</name>
    <message>
        <source>It is not known whether it was printed: the print server does not answer.</source>
        <translation>Tidak diketahui apakah sudah tercetak: server cetak tidak menjawab.</translation>
    </message>
    <message>
        <source>not printed before the program ended</source>
        <translation>belum tercetak saat program berakhir</translation>
    </message>
    <message>
        <source>The slip cannot be read any more.</source>
        <translation>Slip ini tidak dapat dibaca lagi.</translation>
    </message>
    <message>
        <source>COPY %1</source>
        <translation>SALINAN %1</translation>
    </message>
</context>
<context>
    <name>SlipSpooler</name>
    <message>
        <source>A slip is being printed already.</source>
        <translation>Sebuah slip sedang dicetak.</translation>
    </message>
    <message>
        <source>No printer is chosen.</source>
        <translation>Belum ada printer yang dipilih.</translation>
    </message>
    <message>
        <source>The printer is not open.</source>
        <translation>Printer belum dibuka.</translation>
    </message>
</context>
<context>
    <name>SlipStatus</name>
    <message>
        <source>1 slip waiting: %1</source>
        <translation>1 slip menunggu: %1</translation>
    </message>
    <message>
        <source>%1 slips waiting: %2</source>
        <translation>%1 slip menunggu: %2</translation>
    </message>
    <message>
        <source>1 slip was not printed: %1</source>
        <translation>1 slip tidak tercetak: %1</translation>
    </message>
    <message>
        <source>%1 slips were not printed: %2</source>
        <translation>%1 slip tidak tercetak: %2</translation>
    </message>
    <message>
        <source>No printer is chosen yet: slips are kept and shown</source>
        <translation>Belum ada printer yang dipilih: slip disimpan dan ditampilkan</translation>
    </message>
    <message>
        <source>Slips are printed, but they cannot be kept</source>
        <translation>Slip tetap dicetak, tetapi tidak dapat disimpan</translation>
    </message>
</context>
<context>
    <name>SlipWords</name>
    <message>
        <source>Bill</source>
        <translation>Bon</translation>
    </message>
    <message>
        <source>Kitchen</source>
        <translation>Dapur</translation>
    </message>
    <message>
        <source>Order recap</source>
        <translation>Rekap pesanan</translation>
    </message>
    <message>
        <source>Test</source>
        <translation>Uji</translation>
    </message>
    <message>
        <source>%1, copy %2</source>
        <translation>%1, salinan %2</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>Menunggu</translation>
    </message>
    <message>
        <source>Printed</source>
        <translation>Tercetak</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Gagal</translation>
    </message>
    <message>
        <source>Given back</source>
        <translation>Ditolak</translation>
    </message>
    <message>
        <source>No printer</source>
        <translation>Tanpa printer</translation>
    </message>
</context>
<context>
    <name>SourceLinesTab</name>
    <message>
        <source>Info</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>Please select a supplier</source>
        <translation>Pilih pemasok</translation>
    </message>
</context>
<context>
    <name>StockDocumentService</name>
    <message>
        <source>the rows of its goods on the stock card</source>
        <translation>baris barangnya di kartu stok</translation>
    </message>
</context>
<context>
    <name>SupplierTextBox</name>
    <message>
        <source>Code</source>
        <translation>Kode</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nama</translation>
    </message>
</context>
<context>
    <name>TabAgent</name>
    <message>
        <source>Agents</source>
        <translation>Agen</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this agent: %1 ?</source>
        <translation>Yakin ingin menghapus agen ini: %1 ?</translation>
    </message>
    <message>
        <source>Can not find entity with id: %</source>
        <translation>Data dengan id: % tidak ditemukan</translation>
    </message>
</context>
<context>
    <name>TabAllKomisiAgen</name>
    <message>
        <source>Agent Commissions</source>
        <translation>Komisi Agen</translation>
    </message>
    <message>
        <source>From Date :</source>
        <translation>Dari :</translation>
    </message>
    <message>
        <source>To Date :</source>
        <translation>Sampai :</translation>
    </message>
    <message>
        <source>Status :</source>
        <translation>Status :</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Semua</translation>
    </message>
    <message>
        <source>Fully Paid</source>
        <translation>Lunas</translation>
    </message>
    <message>
        <source>Unpaid</source>
        <translation>Belum Dibayar</translation>
    </message>
    <message>
        <source>Agent :</source>
        <translation>Agen :</translation>
    </message>
    <message>
        <source>Pay</source>
        <translation>Bayar</translation>
    </message>
    <message>
        <source>Pay the agent, or open the payment that did (F2)</source>
        <translation>Bayar agen, atau buka pembayarannya (F2)</translation>
    </message>
    <message>
        <source>Can not find invoice of this agent</source>
        <translation>Faktur agen ini tidak ditemukan</translation>
    </message>
</context>
<context>
    <name>TabBank</name>
    <message>
        <source>Accounts</source>
        <translation>Akun</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this account: %1 ?</source>
        <translation>Yakin ingin menghapus akun ini: %1 ?</translation>
    </message>
</context>
<context>
    <name>TabBawaPulang</name>
    <message>
        <source>Take Away Foods</source>
        <translation>Makanan Bawa Pulang</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Cari</translation>
    </message>
    <message>
        <source>Search (Return)</source>
        <translation>Cari (Return)</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Retur</translation>
    </message>
    <message>
        <source>Add New Order</source>
        <translation>Pesanan Baru</translation>
    </message>
    <message>
        <source>Take a new order (F12)</source>
        <translation>Terima pesanan baru (F12)</translation>
    </message>
    <message>
        <source>F12</source>
        <translation>F12</translation>
    </message>
    <message>
        <source>Edit Order</source>
        <translation>Ubah Pesanan</translation>
    </message>
    <message>
        <source>Change the selected orders (F2)</source>
        <translation>Ubah pesanan yang dipilih (F2)</translation>
    </message>
    <message>
        <source>F2</source>
        <translation>F2</translation>
    </message>
    <message>
        <source>Pay</source>
        <translation>Bayar</translation>
    </message>
    <message>
        <source>Take the payment of the selected orders (F9)</source>
        <translation>Terima pembayaran pesanan yang dipilih (F9)</translation>
    </message>
    <message>
        <source>F9</source>
        <translation>F9</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Segarkan</translation>
    </message>
    <message>
        <source>Refresh (F5)</source>
        <translation>Segarkan (F5)</translation>
    </message>
    <message>
        <source>F5</source>
        <translation>F5</translation>
    </message>
    <message>
        <source>Cancel Order</source>
        <translation>Batalkan</translation>
    </message>
    <message>
        <source>Cancel the selected orders (Del)</source>
        <translation>Batalkan pesanan yang dipilih (Del)</translation>
    </message>
    <message>
        <source>Del</source>
        <translation>Del</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Tutup</translation>
    </message>
    <message>
        <source>Close (Esc)</source>
        <translation>Tutup (Esc)</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Semua</translation>
    </message>
    <message>
        <source>Paid</source>
        <translation>Dibayar</translation>
    </message>
    <message>
        <source>Partially Paid</source>
        <translation>Dibayar Sebagian</translation>
    </message>
    <message>
        <source>Waiting for the order</source>
        <translation>Menunggu pesanan</translation>
    </message>
    <message>
        <source>Take Away - Add a new order</source>
        <translation>Bawa Pulang - Tambah pesanan baru</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Kesalahan</translation>
    </message>
    <message>
        <source>Take Away - Edit Order</source>
        <translation>Bawa Pulang - Ubah Pesanan</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Hapus</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this order? order id: %1 </source>
        <translation>Yakin ingin menghapus pesanan ini? id pesanan: %1 </translation>
    </message>
    <message>
        <source>Order %1 already has an invoice. Please finish the payment, or press Done in the payment form</source>
        <translation>Pesanan %1 sudah memiliki faktur. Selesaikan pembayarannya, atau tekan Selesai pada formulir pembayaran</translation>
    </message>
    <message>
        <source>Please select an order</source>
        <translation>Pilih pesanan</translation>
    </message>
</context>
<context>
    <name>TabBayarMakanDitempatDetail</name>
    <message>
        <source>Pay apart</source>
        <translation>Bayar terpisah</translation>
    </message>
    <message>
        <source>Split this invoice among the guests</source>
        <translation>Pisahkan faktur ini antar tamu</translation>
    </message>
    <message>
        <source>Split</source>
        <translation>Pisah</translation>
    </message>
    <message>
        <source>Take a quantity off the selected lines</source>
        <translation>Ambil sejumlah dari baris yang dipilih</translation>
    </message>
    <message>
        <source>Remove Split</source>
        <translation>Hapus Pemisahan</translation>
    </message>
    <message>
        <source>Put back what was taken off the selected lines</source>
        <translation>Kembalikan yang diambil dari baris yang dipilih</translation>
    </message>
    <message>
        <source>Process Split</source>
        <translation>Proses Pemisahan</translation>
    </message>
    <message>
        <source>Save, and take the money of each group</source>
        <translation>Simpan, lalu terima uang tiap kelompok</translation>
    </message>
</context>
<context>
    <name>TabCashFlow</name>
    <message>
        <source>General Journal Entries</source>
        <translation>Jurnal Umum</translation>
    </message>
    <message>
        <source>From Date :</source>
        <translation>Dari :</translation>
    </message>
    <message>
        <source>Account :</source>
        <translation>Akun :</translation>
    </message>
    <message>
        <source>Type :</source>
        <translation>Jenis :</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Semua</translation>
    </message>
    <message>
        <source>DEBET</source>
        <translation>DEBET</translation>
    </message>
    <message>
        <source>CREDIT</source>
        <translation>KREDIT</translation>
    </message>
    <message>
        <source>To Date :</source>
        <translation>Sampai :</translation>
    </message>
    <message>
        <source>Account Name :</source>
        <translation>Nama Akun :</translation>
    </message>
    <message>
        <source>Please open it from Purchases menu or Sales menu</source>
        <translation>Silakan buka dari menu Pembelian atau menu Penjualan</translation>
    </message>
    <message>
        <source>Can not find entity with no: %1</source>
        <translation>Data dengan no: %1 tidak ditemukan</translation>
    </message>
    <message>
        <source>Are you sure, you want to delete this entity with no: %1</source>
        <translation>Yakin ingin menghapus data dengan no: %1</translation>
    </message>
</context>
<context>
    <name>TabCreditNote</name>
    <message>
        <source>Credit Notes</source>
        <translation>Nota Kredit</translation>
    </message>
    <message>
        <source>Status :</source>
        <translation>Status :</translation>
    </message>
    <message>
        <source>Purchase No.</source>
        <translation>No. Pembelian</translation>
    </message>
    <message>
        <source>Supplier Code</source>
        <translation>Kode Pemasok</translation>
    </message>
    <message>
        <source>Invoice No.</source>
        <translation>No. Faktur</translation>
    </message>
    <message>
        <source>Are you sure you want to delete Credit Note with No: %1 ?</source>
        <translation>Yakin ingin menghapus Nota Kredit dengan No: %1 ?</translation>
    </message>
    <message>
        <source>Can not find Credit Note with id: %1</source>
        <translation>Nota Kredit dengan id: %1 tidak ditemukan</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1 barang</translation>
    </message>
</context>
<context>
    <name>TabCreditNoteInvoice</name>
    <message>
        <source>Select Purchases</source>
        <translation>Pilih Pembelian</translation>
    </message>
    <message>
        <source>Take the lines of a purchase over (F12)</source>
        <translation>Ambil baris dari pembelian (F12)</translation>
    </message>
    <message>
        <source>Can not find entity with id: %1</source>
        <translation>Data dengan id: %1 tidak ditemukan</translation>
    </message>
</context>
<context>
    <name>TabCreditNotePurchases</name>
    <message>
        <source>This item: %1 is already exist in the list. Do you want to update it with this data?</source>
        <translation>Barang ini: %1 sudah ada di daftar. Perbarui dengan data ini?</translation>
    </message>
</context>
<context>
    <name>TabDaftarPenjualan</name>
    <message>
        <source>Customer Payments</source>
        <translation>Pembayaran Pelanggan</translation>
    </message>
    <message>
        <source>From Date :</source>
        <translation>Dari :</translation>
    </message>
    <message>
        <source>Invoice No. :</source>
        <translation>No. Faktur :</translation>
    </message>
    <message>
        <source>Status :</source>
        <translation>Status :</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Semua</translation>
    </message>
    <message>
        <source>Fully Paid</source>
        <translation>Lunas</translation>
    </message>
    <message>
        <source>Partially Paid</source>
        <translation>Dibayar Sebagian</translation>
    </message>
    <message>
        <source>Unpaid</source>
        <translation>Belum Dibayar</translation>
    </message>
    <message>
        <source>To Date :</source>
        <translation>Sampai :</translation>
    </message>
    <message>
        <source>Guest :</source>
        <translation>Tamu :</translation>
    </message>
    <message>
        <source>Payment :</source>
        <translation>Pembayaran :</translation>
    </message>
    <message>
        <source>Cash</source>
        <translation>Tunai</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Lainnya</translation>
    </message>
    <message>
        <source>Table :</source>
        <translation>Meja :</translation>
    </message>
    <message>
        <source>Member :</source>
        <translation>Anggota :</translation>
    </message>
    <message>
        <source>Waitress :</source>
        <translation>Pramusaji :</translation>
    </message>
    <message>
        <source>Agent :</source>
        <translation>Agen :</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Ulang dari Awal</translation>
    </message>
    <message>
        <source>Empty the filters</source>
        <translation>Kosongkan saringan</translation>
    </message>
    <message>
        <source>Are you sure, you want to delete this sales invoice: %1 ?</source>
        <translation>Yakin ingin menghapus faktur penjualan ini: %1 ?</translation>
    </message>
</context>
<context>
    <name>TabDashboard</name>
    <message>
        <source>Dashboard</source>
        <translation>Dasbor</translation>
    </message>
    <message>
        <source>about:blank</source>
        <translation>about:blank</translation>
    </message>
</context>
<context>
    <name>TabEmployee</name>
    <message>
        <source>Employees</source>
        <translation>Karyawan</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this employee: %1 ?</source>
        <translation>Yakin ingin menghapus karyawan ini: %1 ?</translation>
    </message>
</context>
<context>
    <name>TabFastFood</name>
    <message>
        <source>Fast Food</source>
        <translation>Makanan Cepat Saji</translation>
    </message>
    <message>
        <source>From Date :</source>
        <translation>Dari :</translation>
    </message>
    <message>
        <source>To Date :</source>
        <translation>Sampai :</translation>
    </message>
    <message>
        <source>Status :</source>
        <translation>Status :</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Semua</translation>
    </message>
    <message>
        <source>Fully Paid</source>
        <translation>Lunas</translation>
    </message>
    <message>
        <source>Partially Paid</source>
        <translation>Dibayar Sebagian</translation>
    </message>
    <message>
        <source>Unpaid</source>
        <translation>Belum Dibayar</translation>
    </message>
    <message>
        <source>Waitress :</source>
        <translation>Pramusaji :</translation>
    </message>
    <message>
        <source>Add New Order</source>
        <translation>Pesanan Baru</translation>
    </message>
    <message>
        <source>Edit Order</source>
        <translation>Ubah Pesanan</translation>
    </message>
    <message>
        <source>Can not find entity #</source>
        <translation>Data tidak ditemukan #</translation>
    </message>
    <message>
        <source>Question</source>
        <translation>Pertanyaan</translation>
    </message>
    <message>
        <source>Do you want to print this invoice ?</source>
        <translation>Cetak faktur ini ?</translation>
    </message>
    <message>
        <source>Are you sure, you want to delete this invoice: %1 ?</source>
        <translation>Yakin ingin menghapus faktur ini: %1 ?</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sebesar %2</translation>
    </message>
    <message>
        <source>Less :</source>
        <translation>Kurang :</translation>
    </message>
    <message>
        <source>Change :</source>
        <translation>Kembali :</translation>
    </message>
</context>
<context>
    <name>TabGLAccounts</name>
    <message>
        <source>GL Sales Account :</source>
        <translation>Akun GL Penjualan :</translation>
    </message>
    <message>
        <source>GL Inventory Account :</source>
        <translation>Akun GL Persediaan :</translation>
    </message>
    <message>
        <source>GL Cost of Sales Account :</source>
        <translation>Akun GL Harga Pokok Penjualan :</translation>
    </message>
</context>
<context>
    <name>TabInventoryAdj</name>
    <message>
        <source>Inventory Adjustments</source>
        <translation>Penyesuaian Persediaan</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this item: %1 ?</source>
        <translation>Yakin ingin menghapus barang ini: %1 ?</translation>
    </message>
    <message>
        <source>The adjustment is saved. Please do not enter it again.</source>
        <translation>Penyesuaian sudah disimpan. Jangan dimasukkan lagi.</translation>
    </message>
    <message>
        <source>its row on the stock card</source>
        <translation>barisnya di kartu stok</translation>
    </message>
    <message>
        <source>Later, delete the adjustment and enter it anew.</source>
        <translation>Nanti, hapus penyesuaian ini dan masukkan kembali.</translation>
    </message>
    <message>
        <source>The adjustment is deleted.</source>
        <translation>Penyesuaian sudah dihapus.</translation>
    </message>
    <message>
        <source>taking its row off the stock card</source>
        <translation>penghapusan barisnya dari kartu stok</translation>
    </message>
</context>
<context>
    <name>TabItem</name>
    <message>
        <source>Items</source>
        <translation>Barang</translation>
    </message>
    <message>
        <source>Item Type:</source>
        <translation>Jenis Barang:</translation>
    </message>
    <message>
        <source>Filter:</source>
        <translation>Saringan:</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Semua</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this item: %1 ?</source>
        <translation>Yakin ingin menghapus barang ini: %1 ?</translation>
    </message>
    <message>
        <source>The stock could not be read: %1</source>
        <translation>Stok tidak dapat dibaca: %1</translation>
    </message>
</context>
<context>
    <name>TabJenisItem</name>
    <message>
        <source>Item Types</source>
        <translation>Jenis Barang</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this item: %1 ?</source>
        <translation>Yakin ingin menghapus barang ini: %1 ?</translation>
    </message>
</context>
<context>
    <name>TabKartuStok</name>
    <message>
        <source>Item History</source>
        <translation>Kartu Stok</translation>
    </message>
    <message>
        <source>From Date :</source>
        <translation>Dari :</translation>
    </message>
    <message>
        <source>To Date :</source>
        <translation>Sampai :</translation>
    </message>
    <message>
        <source>Item :</source>
        <translation>Barang :</translation>
    </message>
    <message>
        <source>Name :</source>
        <translation>Nama :</translation>
    </message>
    <message>
        <source>Total In :</source>
        <translation>Total Masuk :</translation>
    </message>
    <message>
        <source>Saldo :</source>
        <translation>Saldo :</translation>
    </message>
</context>
<context>
    <name>TabKeyTable</name>
    <message>
        <source>Running Numbers</source>
        <translation>Nomor Urut</translation>
    </message>
</context>
<context>
    <name>TabKitchenPrinter</name>
    <message>
        <source>Kitchen Printers</source>
        <translation>Printer Dapur</translation>
    </message>
    <message>
        <source>Where to search</source>
        <translation>Tempat mencari</translation>
    </message>
    <message>
        <source>Kitchen Name</source>
        <translation>Nama Dapur</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Printer</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this kitchen: %1 ?</source>
        <translation>Yakin ingin menghapus dapur ini: %1 ?</translation>
    </message>
</context>
<context>
    <name>TabKomisiAgen</name>
    <message>
        <source>Agent Commission Payments</source>
        <translation>Pembayaran Komisi Agen</translation>
    </message>
    <message>
        <source>From Date :</source>
        <translation>Dari :</translation>
    </message>
    <message>
        <source>To Date :</source>
        <translation>Sampai :</translation>
    </message>
    <message>
        <source>Agent :</source>
        <translation>Agen :</translation>
    </message>
    <message>
        <source>Code :</source>
        <translation>Kode :</translation>
    </message>
    <message>
        <source>Are you sure you want to delete Payment with No: %1</source>
        <translation>Yakin ingin menghapus Pembayaran dengan No: %1</translation>
    </message>
    <message>
        <source>Can not find Payment with id: %1</source>
        <translation>Pembayaran dengan id: %1 tidak ditemukan</translation>
    </message>
</context>
<context>
    <name>TabKomisiAgenDetail</name>
    <message>
        <source>Set Percentage</source>
        <translation>Tetapkan Persentase</translation>
    </message>
    <message>
        <source>Remove Invoice</source>
        <translation>Hapus Faktur</translation>
    </message>
</context>
<context>
    <name>TabMakanDitempat</name>
    <message>
        <source>Dine</source>
        <translation>Makan di Tempat</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Saring</translation>
    </message>
    <message>
        <source>Code or name of a table (Ctrl+F)</source>
        <translation>Kode atau nama meja (Ctrl+F)</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Cari</translation>
    </message>
    <message>
        <source>Search (Return)</source>
        <translation>Cari (Return)</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Retur</translation>
    </message>
    <message>
        <source>Add New Order</source>
        <translation>Pesanan Baru</translation>
    </message>
    <message>
        <source>Take an order for the selected tables (F12)</source>
        <translation>Terima pesanan untuk meja yang dipilih (F12)</translation>
    </message>
    <message>
        <source>F12</source>
        <translation>F12</translation>
    </message>
    <message>
        <source>Edit Order</source>
        <translation>Ubah Pesanan</translation>
    </message>
    <message>
        <source>Change the orders of the selected tables, or move them (F2)</source>
        <translation>Ubah pesanan meja yang dipilih, atau pindahkan (F2)</translation>
    </message>
    <message>
        <source>F2</source>
        <translation>F2</translation>
    </message>
    <message>
        <source>Pay</source>
        <translation>Bayar</translation>
    </message>
    <message>
        <source>Take the payment of the selected table (F9)</source>
        <translation>Terima pembayaran meja yang dipilih (F9)</translation>
    </message>
    <message>
        <source>F9</source>
        <translation>F9</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Cetak</translation>
    </message>
    <message>
        <source>Print the order of the selected table (F8)</source>
        <translation>Cetak pesanan meja yang dipilih (F8)</translation>
    </message>
    <message>
        <source>F8</source>
        <translation>F8</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Segarkan</translation>
    </message>
    <message>
        <source>Refresh (F5)</source>
        <translation>Segarkan (F5)</translation>
    </message>
    <message>
        <source>F5</source>
        <translation>F5</translation>
    </message>
    <message>
        <source>Cancel Order</source>
        <translation>Batalkan</translation>
    </message>
    <message>
        <source>Cancel the orders of the selected tables (Del)</source>
        <translation>Batalkan pesanan dari meja yang dipilih (Del)</translation>
    </message>
    <message>
        <source>Del</source>
        <translation>Del</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Tutup</translation>
    </message>
    <message>
        <source>Close (Esc)</source>
        <translation>Tutup (Esc)</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>This table: %1 is empty</source>
        <translation>Meja ini: %1 kosong</translation>
    </message>
    <message>
        <source>Table %1 is empty</source>
        <translation>Meja %1 kosong</translation>
    </message>
    <message>
        <source>Dine - Add a new order</source>
        <translation>Makan di Tempat - Tambah pesanan baru</translation>
    </message>
    <message>
        <source>Dine - Edit Order</source>
        <translation>Makan di Tempat - Ubah Pesanan</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Hapus</translation>
    </message>
    <message>
        <source>Are you sure you want to delete order of table: %1 ?</source>
        <translation>Yakin ingin menghapus pesanan meja: %1 ?</translation>
    </message>
    <message>
        <source>Table %1 is already have an invoice. Please finish the payment or click Finish button on Payment Dialog</source>
        <translation>Meja %1 sudah memiliki faktur. Selesaikan pembayarannya atau tekan tombol Selesai pada formulir pembayaran</translation>
    </message>
    <message>
        <source>Please select a table</source>
        <translation>Pilih meja</translation>
    </message>
</context>
<context>
    <name>TabMeja</name>
    <message>
        <source>Tables</source>
        <translation>Meja</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this table: %1 ?</source>
        <translation>Yakin ingin menghapus meja ini: %1 ?</translation>
    </message>
</context>
<context>
    <name>TabMember</name>
    <message>
        <source>Members</source>
        <translation>Anggota</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this member: %1 ?</source>
        <translation>Yakin ingin menghapus anggota ini: %1 ?</translation>
    </message>
</context>
<context>
    <name>TabPayment</name>
    <message>
        <source>Pay Bills</source>
        <translation>Bayar Tagihan</translation>
    </message>
    <message>
        <source>Payment Type :</source>
        <translation>Jenis Bayar :</translation>
    </message>
    <message>
        <source>Purchase Invoice No.</source>
        <translation>No. Faktur Pembelian</translation>
    </message>
    <message>
        <source>Supplier Code</source>
        <translation>Kode Pemasok</translation>
    </message>
    <message>
        <source>Check No</source>
        <translation>No. Cek</translation>
    </message>
    <message>
        <source>Are you sure you want to delete purchase invoice with No: %1 ?</source>
        <translation>Yakin ingin menghapus faktur pembelian dengan No: %1 ?</translation>
    </message>
    <message>
        <source>Can not find purchase invoice with id: %1</source>
        <translation>Faktur pembelian dengan id: %1 tidak ditemukan</translation>
    </message>
</context>
<context>
    <name>TabPaymentInvoice</name>
    <message>
        <source>Pay Invoice</source>
        <translation>Bayar Faktur</translation>
    </message>
    <message>
        <source>Pay All Invoices</source>
        <translation>Bayar Semua Faktur</translation>
    </message>
</context>
<context>
    <name>TabPesananMasuk</name>
    <message>
        <source>Incoming Orders</source>
        <translation>Pesanan Masuk</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Saring</translation>
    </message>
    <message>
        <source>Code or name of a table</source>
        <translation>Kode atau nama meja</translation>
    </message>
    <message>
        <source>Code or name of a table; orders to take away stay in the list (Ctrl+F)</source>
        <translation>Kode atau nama meja; pesanan bawa pulang tetap di daftar (Ctrl+F)</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Segarkan</translation>
    </message>
    <message>
        <source>Refresh (F5)</source>
        <translation>Segarkan (F5)</translation>
    </message>
    <message>
        <source>F5</source>
        <translation>F5</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Tutup</translation>
    </message>
    <message>
        <source>Close (Esc)</source>
        <translation>Tutup (Esc)</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Cetak</translation>
    </message>
    <message>
        <source>Print the selected orders on the kitchens&apos; slips (F8)</source>
        <translation>Cetak pesanan yang dipilih pada slip dapur (F8)</translation>
    </message>
    <message>
        <source>F8</source>
        <translation>F8</translation>
    </message>
    <message>
        <source>Print Addition</source>
        <translation>Cetak Tambahan</translation>
    </message>
    <message>
        <source>Print the new and changed lines of the selected orders (F7)</source>
        <translation>Cetak baris baru dan berubah dari pesanan yang dipilih (F7)</translation>
    </message>
    <message>
        <source>F7</source>
        <translation>F7</translation>
    </message>
    <message>
        <source>What the kitchen says about the selected lines</source>
        <translation>Keterangan dapur tentang baris yang dipilih</translation>
    </message>
    <message>
        <source>Send Status</source>
        <translation>Kirim Status</translation>
    </message>
    <message>
        <source>Write the status on the selected lines (F9)</source>
        <translation>Tulis status pada baris yang dipilih (F9)</translation>
    </message>
    <message>
        <source>F9</source>
        <translation>F9</translation>
    </message>
    <message>
        <source>Out of Stock</source>
        <translation>Stok Habis</translation>
    </message>
    <message>
        <source>Processed</source>
        <translation>Diproses</translation>
    </message>
    <message>
        <source>Not Enough Stock</source>
        <translation>Stok Tidak Cukup</translation>
    </message>
    <message>
        <source>These are the orders of %1.</source>
        <translation>Ini pesanan dari %1.</translation>
    </message>
    <message>
        <source>New ones cannot be read at present. This page tries again by itself.</source>
        <translation>Pesanan baru belum dapat dibaca. Halaman ini mencoba lagi dengan sendirinya.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Kesalahan</translation>
    </message>
    <message>
        <source>%1 Items</source>
        <translation>%1 Barang</translation>
    </message>
</context>
<context>
    <name>TabPiutang</name>
    <message>
        <source>Member Payments</source>
        <translation>Pembayaran Anggota</translation>
    </message>
    <message>
        <source>From Date :</source>
        <translation>Dari :</translation>
    </message>
    <message>
        <source>To Date :</source>
        <translation>Sampai :</translation>
    </message>
    <message>
        <source>Payment Type :</source>
        <translation>Jenis Bayar :</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Semua</translation>
    </message>
    <message>
        <source>Member :</source>
        <translation>Anggota :</translation>
    </message>
    <message>
        <source>Are you sure you want to delete Payment with No: %1 ?</source>
        <translation>Yakin ingin menghapus Pembayaran dengan No: %1 ?</translation>
    </message>
    <message>
        <source>Can not find Payment with id: %1</source>
        <translation>Pembayaran dengan id: %1 tidak ditemukan</translation>
    </message>
    <message>
        <source>what is still due of the invoices that it pays</source>
        <translation>sisa tagihan faktur yang dibayarnya</translation>
    </message>
</context>
<context>
    <name>TabPiutangInvoice</name>
    <message>
        <source>Pay Invoice</source>
        <translation>Bayar Faktur</translation>
    </message>
    <message>
        <source>Pay All Invoices</source>
        <translation>Bayar Semua Faktur</translation>
    </message>
</context>
<context>
    <name>TabPrintedSlips</name>
    <message>
        <source>Printed Slips</source>
        <translation>Slip Tercetak</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Cari</translation>
    </message>
    <message>
        <source>Search (Return)</source>
        <translation>Cari (Return)</translation>
    </message>
    <message>
        <source>From Date :</source>
        <translation>Dari :</translation>
    </message>
    <message>
        <source>Number :</source>
        <translation>Nomor :</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Semua</translation>
    </message>
    <message>
        <source>State :</source>
        <translation>Status :</translation>
    </message>
    <message>
        <source>To Date :</source>
        <translation>Sampai :</translation>
    </message>
    <message>
        <source>Kind :</source>
        <translation>Macam :</translation>
    </message>
    <message>
        <source>Printer :</source>
        <translation>Printer :</translation>
    </message>
    <message>
        <source>The slip</source>
        <translation>Slipnya</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Segarkan</translation>
    </message>
    <message>
        <source>Refresh (F5)</source>
        <translation>Segarkan (F5)</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Tutup</translation>
    </message>
    <message>
        <source>Close (Esc)</source>
        <translation>Tutup (Esc)</translation>
    </message>
    <message>
        <source>Print Again</source>
        <translation>Cetak Lagi</translation>
    </message>
    <message>
        <source>Print the selected slip once more, marked as a copy (F8)</source>
        <translation>Cetak slip yang dipilih sekali lagi, ditandai sebagai salinan (F8)</translation>
    </message>
    <message>
        <source>Print on :</source>
        <translation>Cetak di :</translation>
    </message>
    <message>
        <source>%1 Slips</source>
        <translation>%1 Slip</translation>
    </message>
    <message>
        <source>No slip is selected.</source>
        <translation>Tidak ada slip yang dipilih.</translation>
    </message>
    <message>
        <source>The slip is empty, or cannot be read.</source>
        <translation>Slip ini kosong, atau tidak dapat dibaca.</translation>
    </message>
</context>
<context>
    <name>TabPurchaseDetailPO</name>
    <message>
        <source>Select PO</source>
        <translation>Pilih PO</translation>
    </message>
    <message>
        <source>Take the lines of a purchase order over (F12)</source>
        <translation>Ambil baris dari pesanan pembelian (F12)</translation>
    </message>
    <message>
        <source>Can not find PO with id: %1</source>
        <translation>Pesanan pembelian dengan id: %1 tidak ditemukan</translation>
    </message>
</context>
<context>
    <name>TabPurchaseOrder</name>
    <message>
        <source>Purchase Orders</source>
        <translation>Pesanan Pembelian</translation>
    </message>
    <message>
        <source>Status :</source>
        <translation>Status :</translation>
    </message>
    <message>
        <source>Sent to Supplier</source>
        <translation>Dikirim ke Pemasok</translation>
    </message>
    <message>
        <source>Received</source>
        <translation>Diterima</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Diubah</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Dibatalkan</translation>
    </message>
    <message>
        <source>Closed</source>
        <translation>Ditutup</translation>
    </message>
    <message>
        <source>PO No.</source>
        <translation>No. PO</translation>
    </message>
    <message>
        <source>Supplier Code</source>
        <translation>Kode Pemasok</translation>
    </message>
    <message>
        <source>Are you sure you want to delete Purchase Order with No: %1 ?</source>
        <translation>Yakin ingin menghapus Pesanan Pembelian dengan No: %1 ?</translation>
    </message>
    <message>
        <source>Can not find PO with id: %1</source>
        <translation>Pesanan pembelian dengan id: %1 tidak ditemukan</translation>
    </message>
</context>
<context>
    <name>TabPurchases</name>
    <message>
        <source>Purchases/Receive Inventory</source>
        <translation>Pembelian/Penerimaan Barang</translation>
    </message>
    <message>
        <source>Status :</source>
        <translation>Status :</translation>
    </message>
    <message>
        <source>Purchase No.</source>
        <translation>No. Pembelian</translation>
    </message>
    <message>
        <source>Supplier Code</source>
        <translation>Kode Pemasok</translation>
    </message>
    <message>
        <source>Invoice No</source>
        <translation>No Faktur</translation>
    </message>
    <message>
        <source>Are you sure you want to delete Purchase with No: %1 ?</source>
        <translation>Yakin ingin menghapus Pembelian dengan No: %1 ?</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1 barang</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Kesalahan</translation>
    </message>
    <message>
        <source>Can not find PO with id: %1</source>
        <translation>Pesanan pembelian dengan id: %1 tidak ditemukan</translation>
    </message>
    <message>
        <source>You have received all items from Purchase Order No: %1. Do you want to close this Purchase Order now?</source>
        <translation>Semua barang dari Pesanan Pembelian No: %1 sudah diterima. Tutup Pesanan Pembelian ini sekarang?</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>the closing of Purchase Order No: %1</source>
        <translation>penutupan Pesanan Pembelian No: %1</translation>
    </message>
    <message>
        <source>Later, close it in the form of the purchase order.</source>
        <translation>Nanti, tutup di formulir pesanan pembeliannya.</translation>
    </message>
</context>
<context>
    <name>TabSatuan</name>
    <message>
        <source>Units</source>
        <translation>Satuan</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this unit: %1 ?</source>
        <translation>Yakin ingin menghapus satuan ini: %1 ?</translation>
    </message>
</context>
<context>
    <name>TabSelectPurchases</name>
    <message>
        <source>All</source>
        <translation>Semua</translation>
    </message>
    <message>
        <source>Status :</source>
        <translation>Status :</translation>
    </message>
    <message>
        <source>Search :</source>
        <translation>Cari :</translation>
    </message>
    <message>
        <source>In :</source>
        <translation>Masuk :</translation>
    </message>
    <message>
        <source>Purchase No.</source>
        <translation>No. Pembelian</translation>
    </message>
    <message>
        <source>Invoice No.</source>
        <translation>No. Faktur</translation>
    </message>
</context>
<context>
    <name>TabStokAwal</name>
    <message>
        <source>Beginning Balances</source>
        <translation>Saldo Awal</translation>
    </message>
</context>
<context>
    <name>TabSubItem</name>
    <message>
        <source>Components</source>
        <translation>Komponen</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this sub item: %1 ?</source>
        <translation>Yakin ingin menghapus sub barang ini: %1 ?</translation>
    </message>
</context>
<context>
    <name>TabSupplier</name>
    <message>
        <source>Suppliers</source>
        <translation>Pemasok</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this supplier: %1 ?</source>
        <translation>Yakin ingin menghapus pemasok ini: %1 ?</translation>
    </message>
</context>
<context>
    <name>TabTransfer</name>
    <message>
        <source>Transferring Funds</source>
        <translation>Pemindahan Dana</translation>
    </message>
    <message>
        <source>From Date :</source>
        <translation>Dari :</translation>
    </message>
    <message>
        <source>To Date :</source>
        <translation>Sampai :</translation>
    </message>
    <message>
        <source>Can not find transaction with id: %1</source>
        <translation>Transaksi dengan id: %1 tidak ditemukan</translation>
    </message>
    <message>
        <source>Can not find transaction with no: %1</source>
        <translation>Transaksi dengan no: %1 tidak ditemukan</translation>
    </message>
    <message>
        <source>Are you sure, you want to delete transaction with no: %1 ?</source>
        <translation>Yakin ingin menghapus transaksi dengan no: %1 ?</translation>
    </message>
</context>
<context>
    <name>TabUser</name>
    <message>
        <source>Users</source>
        <translation>Pengguna</translation>
    </message>
    <message>
        <source>Are you sure, you want to delete user: %1</source>
        <translation>Yakin ingin menghapus pengguna: %1</translation>
    </message>
</context>
<context>
    <name>TabUserAccess</name>
    <message>
        <source>User Access</source>
        <translation>Hak Akses Pengguna</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>Application needs to be restarted to take the effect</source>
        <translation>Aplikasi perlu dijalankan ulang agar perubahan berlaku</translation>
    </message>
    <message>
        <source>Group :</source>
        <translation>Grup :</translation>
    </message>
</context>
<context>
    <name>TabUserGroup</name>
    <message>
        <source>User Groups</source>
        <translation>Grup Pengguna</translation>
    </message>
    <message>
        <source>Are you sure, you want to delete user group: %1</source>
        <translation>Yakin ingin menghapus grup pengguna: %1</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Kesalahan</translation>
    </message>
    <message>
        <source>Can not delete user groupd with id: %1, it is still in use</source>
        <translation>Grup pengguna dengan id: %1 tidak dapat dihapus karena masih dipakai</translation>
    </message>
</context>
<context>
    <name>TableModelAccountingTransaction</name>
    <message>
        <source>Date</source>
        <translation>Tanggal</translation>
    </message>
    <message>
        <source>Trans No.</source>
        <translation>No. Trans.</translation>
    </message>
    <message>
        <source>Source Acc. Code</source>
        <translation>Kode Akun Asal</translation>
    </message>
    <message>
        <source>Source Acc. Name</source>
        <translation>Nama Akun Asal</translation>
    </message>
    <message>
        <source>Destination Acc. Code</source>
        <translation>Kode Akun Tujuan</translation>
    </message>
    <message>
        <source>Destination Acc. Name</source>
        <translation>Nama Akun Tujuan</translation>
    </message>
    <message>
        <source>Amount Paid</source>
        <translation>Dibayar</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Keterangan</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>Operator</translation>
    </message>
</context>
<context>
    <name>TableModelAllKomisiAgen</name>
    <message>
        <source>Invoice No.</source>
        <translation>No. Faktur</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Tanggal</translation>
    </message>
    <message>
        <source>Agent Name</source>
        <translation>Nama Agen</translation>
    </message>
    <message>
        <source>Invoice Total</source>
        <translation>Total Faktur</translation>
    </message>
    <message>
        <source>% Commision</source>
        <translation>% Komisi</translation>
    </message>
    <message>
        <source>Total Commision</source>
        <translation>Total Komisi</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
</context>
<context>
    <name>TableModelBank</name>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Kode</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nama</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Jenis</translation>
    </message>
</context>
<context>
    <name>TableModelBawaPulang</name>
    <message>
        <source>Id</source>
        <translation>Id</translation>
    </message>
    <message>
        <source>Guest</source>
        <translation>Tamu</translation>
    </message>
    <message>
        <source>Waiting for the menu</source>
        <translation>Menunggu menu</translation>
    </message>
    <message>
        <source>Served</source>
        <translation>Disajikan</translation>
    </message>
    <message>
        <source>Empty</source>
        <translation>Kosong</translation>
    </message>
    <message>
        <source>Paid</source>
        <translation>Dibayar</translation>
    </message>
    <message>
        <source>Partially Paid</source>
        <translation>Dibayar Sebagian</translation>
    </message>
    <message>
        <source>Unpaid</source>
        <translation>Belum Dibayar</translation>
    </message>
</context>
<context>
    <name>TableModelCashFlow</name>
    <message>
        <source>Date</source>
        <translation>Tanggal</translation>
    </message>
    <message>
        <source>Account Code</source>
        <translation>Kode Akun</translation>
    </message>
    <message>
        <source>Account Name</source>
        <translation>Nama Akun</translation>
    </message>
    <message>
        <source>Debit</source>
        <translation>Debet</translation>
    </message>
    <message>
        <source>Credit</source>
        <translation>Kredit</translation>
    </message>
    <message>
        <source>Trans. No.</source>
        <translation>No. Trans.</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Jenis</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Keterangan</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>Operator</translation>
    </message>
</context>
<context>
    <name>TableModelCreditNote</name>
    <message>
        <source>Date</source>
        <translation>Tanggal</translation>
    </message>
    <message>
        <source>Credit Note No.</source>
        <translation>No. Nota Kredit</translation>
    </message>
    <message>
        <source>Supplier</source>
        <translation>Pemasok</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Dibatalkan</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Total</translation>
    </message>
    <message>
        <source>Amount Paid</source>
        <translation>Dibayar</translation>
    </message>
</context>
<context>
    <name>TableModelCreditNoteInvoice</name>
    <message>
        <source>Qty</source>
        <translation>Jml</translation>
    </message>
    <message>
        <source>Returned</source>
        <translation>Retur</translation>
    </message>
    <message>
        <source>Discount</source>
        <translation>Diskon</translation>
    </message>
</context>
<context>
    <name>TableModelCreditNotePurchases</name>
    <message>
        <source>Qty</source>
        <translation>Jml</translation>
    </message>
    <message>
        <source>Discount</source>
        <translation>Diskon</translation>
    </message>
</context>
<context>
    <name>TableModelDaftarPenjualan</name>
    <message>
        <source>No</source>
        <translation>No.</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Tanggal</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Jenis</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Pengguna</translation>
    </message>
    <message>
        <source>Member Code</source>
        <translation>Kode Anggota</translation>
    </message>
    <message>
        <source>Guest Name</source>
        <translation>Nama Tamu</translation>
    </message>
    <message>
        <source>Waitress</source>
        <translation>Pramusaji</translation>
    </message>
    <message>
        <source>Invoice Total</source>
        <translation>Total Faktur</translation>
    </message>
    <message>
        <source>Cash</source>
        <translation>Tunai</translation>
    </message>
    <message>
        <source>Credit</source>
        <translation>Kredit</translation>
    </message>
    <message>
        <source>Net Due</source>
        <translation>Sisa Tagihan</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
</context>
<context>
    <name>TableModelFastFood</name>
    <message>
        <source>Invoice No.</source>
        <translation>No. Faktur</translation>
    </message>
    <message>
        <source>Guest</source>
        <translation>Tamu</translation>
    </message>
    <message>
        <source>Waitress</source>
        <translation>Pramusaji</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Total</translation>
    </message>
    <message>
        <source>Amount Paid</source>
        <translation>Dibayar</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Tanggal</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menu</translation>
    </message>
</context>
<context>
    <name>TableModelFastFoodDetail</name>
    <message>
        <source>None</source>
        <translation>Tidak ada</translation>
    </message>
</context>
<context>
    <name>TableModelGroupedItem</name>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Kode</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nama</translation>
    </message>
    <message>
        <source>Qty</source>
        <translation>Jml</translation>
    </message>
</context>
<context>
    <name>TableModelInventoryAdj</name>
    <message>
        <source>Code</source>
        <translation>Kode</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nama</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Tanggal</translation>
    </message>
    <message>
        <source>Old Qty</source>
        <translation>Jml Lama</translation>
    </message>
    <message>
        <source>Adjust Qty by</source>
        <translation>Sesuaikan Jumlah</translation>
    </message>
    <message>
        <source>New Qty</source>
        <translation>Jml Baru</translation>
    </message>
    <message>
        <source>Reason to Adjust</source>
        <translation>Alasan Penyesuaian</translation>
    </message>
</context>
<context>
    <name>TableModelItem</name>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Kode</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nama</translation>
    </message>
    <message>
        <source>Class</source>
        <translation>Kelas</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Jenis</translation>
    </message>
    <message>
        <source>Unit Cost</source>
        <translation>Biaya Satuan</translation>
    </message>
    <message>
        <source>Sales Price</source>
        <translation>Harga Jual</translation>
    </message>
    <message>
        <source>Stock</source>
        <translation>Stok</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Satuan</translation>
    </message>
</context>
<context>
    <name>TableModelJenisItem</name>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Kode</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nama</translation>
    </message>
</context>
<context>
    <name>TableModelKartuStok</name>
    <message>
        <source>Trans No.</source>
        <translation>No. Trans.</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Jenis</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Tanggal</translation>
    </message>
    <message>
        <source>In</source>
        <translation>Masuk</translation>
    </message>
    <message>
        <source>Out</source>
        <translation>Keluar</translation>
    </message>
    <message>
        <source>Saldo</source>
        <translation>Saldo</translation>
    </message>
    <message>
        <source>Purchase</source>
        <translation>Pembelian</translation>
    </message>
    <message>
        <source>Sales</source>
        <translation>Penjualan</translation>
    </message>
    <message>
        <source>Adjustment</source>
        <translation>Penyesuaian</translation>
    </message>
    <message>
        <source>Credit Note</source>
        <translation>Nota Kredit</translation>
    </message>
    <message>
        <source>Begining Balance</source>
        <translation>Saldo Awal</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Tidak ada</translation>
    </message>
</context>
<context>
    <name>TableModelKeyTable</name>
    <message>
        <source>Name</source>
        <translation>Nama</translation>
    </message>
    <message>
        <source>Next No</source>
        <translation>No Berikutnya</translation>
    </message>
    <message>
        <source>Increment By</source>
        <translation>Kenaikan</translation>
    </message>
    <message>
        <source>Number of Zero</source>
        <translation>Jumlah Nol</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Keterangan</translation>
    </message>
</context>
<context>
    <name>TableModelKitchenPrinter</name>
    <message>
        <source>Kitchen Name</source>
        <translation>Nama Dapur</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Printer</translation>
    </message>
    <message>
        <source>Item Type Code</source>
        <translation>Kode Jenis Barang</translation>
    </message>
    <message>
        <source>[ALL]</source>
        <translation>[SEMUA]</translation>
    </message>
</context>
<context>
    <name>TableModelKomisiAgen</name>
    <message>
        <source>Code</source>
        <translation>Kode</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Tanggal</translation>
    </message>
    <message>
        <source>Agent Name</source>
        <translation>Nama Agen</translation>
    </message>
    <message>
        <source>Total Commision</source>
        <translation>Total Komisi</translation>
    </message>
    <message>
        <source>Total Amount Paid</source>
        <translation>Total Dibayar</translation>
    </message>
    <message>
        <source>Net Due</source>
        <translation>Sisa Tagihan</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Keterangan</translation>
    </message>
</context>
<context>
    <name>TableModelKomisiAgenDetail</name>
    <message>
        <source>Invoice No.</source>
        <translation>No. Faktur</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Tanggal</translation>
    </message>
    <message>
        <source>Guest</source>
        <translation>Tamu</translation>
    </message>
    <message>
        <source>Invoice Total</source>
        <translation>Total Faktur</translation>
    </message>
    <message>
        <source>% Commision</source>
        <translation>% Komisi</translation>
    </message>
    <message>
        <source>Total Commision</source>
        <translation>Total Komisi</translation>
    </message>
</context>
<context>
    <name>TableModelMakanDitempat</name>
    <message>
        <source>Table Code</source>
        <translation>Kode Meja</translation>
    </message>
    <message>
        <source>Table Name</source>
        <translation>Nama Meja</translation>
    </message>
    <message>
        <source>Guest</source>
        <translation>Tamu</translation>
    </message>
    <message>
        <source>From Table</source>
        <translation>Dari Meja</translation>
    </message>
    <message>
        <source>Waiting for the menu</source>
        <translation>Menunggu menu</translation>
    </message>
    <message>
        <source>Served</source>
        <translation>Disajikan</translation>
    </message>
    <message>
        <source>Empty</source>
        <translation>Kosong</translation>
    </message>
    <message>
        <source>Fully Paid</source>
        <translation>Lunas</translation>
    </message>
    <message>
        <source>Partially Paid</source>
        <translation>Dibayar Sebagian</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Selesai</translation>
    </message>
    <message>
        <source>Unpaid</source>
        <translation>Belum Dibayar</translation>
    </message>
</context>
<context>
    <name>TableModelMeja</name>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Kode</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nama</translation>
    </message>
</context>
<context>
    <name>TableModelPayment</name>
    <message>
        <source>Payment No.</source>
        <translation>No. Pembayaran</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Tanggal</translation>
    </message>
    <message>
        <source>Supplier</source>
        <translation>Pemasok</translation>
    </message>
    <message>
        <source>Total Payment</source>
        <translation>Total Pembayaran</translation>
    </message>
</context>
<context>
    <name>TableModelPaymentExpenses</name>
    <message>
        <source>Discount</source>
        <translation>Diskon</translation>
    </message>
</context>
<context>
    <name>TableModelPaymentInvoice</name>
    <message>
        <source>Purchase Invoice No.</source>
        <translation>No. Faktur Pembelian</translation>
    </message>
    <message>
        <source>Due Date</source>
        <translation>Jatuh Tempo</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Total</translation>
    </message>
    <message>
        <source>Amount Due</source>
        <translation>Jumlah Terutang</translation>
    </message>
    <message>
        <source>Amount Paid</source>
        <translation>Dibayar</translation>
    </message>
    <message>
        <source>The supplier&apos;s invoice no. : %1</source>
        <translation>No. faktur pemasok : %1</translation>
    </message>
</context>
<context>
    <name>TableModelPiutang</name>
    <message>
        <source>No.</source>
        <translation>No.</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Tanggal</translation>
    </message>
    <message>
        <source>Member Code</source>
        <translation>Kode Anggota</translation>
    </message>
    <message>
        <source>Member Name</source>
        <translation>Nama Anggota</translation>
    </message>
    <message>
        <source>Total Amount Paid</source>
        <translation>Total Dibayar</translation>
    </message>
    <message>
        <source>Payment Type</source>
        <translation>Jenis Pembayaran</translation>
    </message>
</context>
<context>
    <name>TableModelPiutangInvoice</name>
    <message>
        <source>Invoice No.</source>
        <translation>No. Faktur</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Tanggal</translation>
    </message>
    <message>
        <source>Invoice Total</source>
        <translation>Total Faktur</translation>
    </message>
    <message>
        <source>Net Due</source>
        <translation>Sisa Tagihan</translation>
    </message>
    <message>
        <source>Amount Paid</source>
        <translation>Dibayar</translation>
    </message>
</context>
<context>
    <name>TableModelPrintedSlips</name>
    <message>
        <source>Time</source>
        <translation>Jam</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Macam</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Nomor</translation>
    </message>
    <message>
        <source>Table/Guest</source>
        <translation>Meja/Tamu</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Printer</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Oleh</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Status</translation>
    </message>
</context>
<context>
    <name>TableModelPurchaseDetail</name>
    <message>
        <source>Qty</source>
        <translation>Jml</translation>
    </message>
    <message>
        <source>Discout</source>
        <translation>Diskon</translation>
    </message>
</context>
<context>
    <name>TableModelPurchaseDetailPO</name>
    <message>
        <source>Ordered</source>
        <translation>Dipesan</translation>
    </message>
    <message>
        <source>Received</source>
        <translation>Diterima</translation>
    </message>
    <message>
        <source>Discount</source>
        <translation>Diskon</translation>
    </message>
</context>
<context>
    <name>TableModelPurchaseOrder</name>
    <message>
        <source>PO No.</source>
        <translation>No. PO</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Tanggal</translation>
    </message>
    <message>
        <source>Ship Date</source>
        <translation>Tanggal Kirim</translation>
    </message>
    <message>
        <source>Supplier</source>
        <translation>Pemasok</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Total</translation>
    </message>
    <message>
        <source>Sent to supplier</source>
        <translation>Dikirim ke pemasok</translation>
    </message>
    <message>
        <source>Received</source>
        <translation>Diterima</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Diubah</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Dibatalkan</translation>
    </message>
    <message>
        <source>Closed</source>
        <translation>Ditutup</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Tidak ada</translation>
    </message>
</context>
<context>
    <name>TableModelPurchaseOrderDetail</name>
    <message>
        <source>Qty</source>
        <translation>Jml</translation>
    </message>
    <message>
        <source>Discount</source>
        <translation>Diskon</translation>
    </message>
</context>
<context>
    <name>TableModelPurchases</name>
    <message>
        <source>Date</source>
        <translation>Tanggal</translation>
    </message>
    <message>
        <source>Invoice No.</source>
        <translation>No. Faktur</translation>
    </message>
    <message>
        <source>Supplier</source>
        <translation>Pemasok</translation>
    </message>
    <message>
        <source>Due Date</source>
        <translation>Jatuh Tempo</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Invoice Total</source>
        <translation>Total Faktur</translation>
    </message>
    <message>
        <source>Net Due</source>
        <translation>Sisa Tagihan</translation>
    </message>
    <message>
        <source>Purchase No. : %1</source>
        <translation>No. Pembelian : %1</translation>
    </message>
</context>
<context>
    <name>TableModelQueue</name>
    <message>
        <source>Code</source>
        <translation>Kode</translation>
    </message>
    <message>
        <source>Take Away:</source>
        <translation>Bawa Pulang:</translation>
    </message>
    <message>
        <source>Elapsed Time</source>
        <translation>Waktu Berlalu</translation>
    </message>
</context>
<context>
    <name>TableModelQueueMenu</name>
    <message>
        <source>Code</source>
        <translation>Kode</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nama</translation>
    </message>
    <message>
        <source>Qty</source>
        <translation>Jml</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Satuan</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Keterangan</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Dibuat</translation>
    </message>
    <message>
        <source>Updated</source>
        <translation>Diperbarui</translation>
    </message>
</context>
<context>
    <name>TableModelSatuan</name>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nama</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Kode</translation>
    </message>
</context>
<context>
    <name>TableModelSelectPurchases</name>
    <message>
        <source>Purchase No.</source>
        <translation>No. Pembelian</translation>
    </message>
    <message>
        <source>Invoice No.</source>
        <translation>No. Faktur</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Tanggal</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Invoice Total</source>
        <translation>Total Faktur</translation>
    </message>
    <message>
        <source>Net Due</source>
        <translation>Sisa Tagihan</translation>
    </message>
</context>
<context>
    <name>TableModelSelectSplitInvoice</name>
    <message>
        <source>Invoice No.</source>
        <translation>No. Faktur</translation>
    </message>
    <message>
        <source>Invoice Total</source>
        <translation>Total Faktur</translation>
    </message>
    <message>
        <source>Amount Paid</source>
        <translation>Dibayar</translation>
    </message>
    <message>
        <source>Credits</source>
        <translation>Kredit</translation>
    </message>
    <message>
        <source>Net Due</source>
        <translation>Sisa Tagihan</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
</context>
<context>
    <name>TableModelStokAwal</name>
    <message>
        <source>Code</source>
        <translation>Kode</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nama</translation>
    </message>
    <message>
        <source>Qty</source>
        <translation>Jml</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Satuan</translation>
    </message>
    <message>
        <source>Unit Cost</source>
        <translation>Biaya Satuan</translation>
    </message>
    <message>
        <source>Total Cost</source>
        <translation>Total Biaya</translation>
    </message>
</context>
<context>
    <name>TableModelUser</name>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>User Name</source>
        <translation>Nama Pengguna</translation>
    </message>
    <message>
        <source>First Name</source>
        <translation>Nama Depan</translation>
    </message>
    <message>
        <source>Last Name</source>
        <translation>Nama Belakang</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Grup</translation>
    </message>
    <message>
        <source>Created Date</source>
        <translation>Tanggal Dibuat</translation>
    </message>
</context>
<context>
    <name>TableModelUserAccess</name>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Permission Name</source>
        <translation>Nama Izin</translation>
    </message>
    <message>
        <source>Access</source>
        <translation>Akses</translation>
    </message>
    <message>
        <source>ALL</source>
        <translation>SEMUA</translation>
    </message>
    <message>
        <source>OWNER</source>
        <translation>PEMILIK</translation>
    </message>
    <message>
        <source>NONE</source>
        <translation>TIDAK ADA</translation>
    </message>
</context>
<context>
    <name>TableTextBox</name>
    <message>
        <source>Code</source>
        <translation>Kode</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nama</translation>
    </message>
</context>
<context>
    <name>TimeAgoWords</name>
    <message>
        <source>1 second</source>
        <translation>1 detik</translation>
    </message>
    <message>
        <source> second</source>
        <translation> detik</translation>
    </message>
    <message>
        <source>1 minute</source>
        <translation>1 menit</translation>
    </message>
    <message>
        <source> minutes</source>
        <translation> menit</translation>
    </message>
    <message>
        <source>1 hour</source>
        <translation>1 jam</translation>
    </message>
    <message>
        <source> hours</source>
        <translation> jam</translation>
    </message>
    <message>
        <source>yesterday</source>
        <translation>kemarin</translation>
    </message>
    <message>
        <source> day</source>
        <translation> hari</translation>
    </message>
    <message>
        <source>1 month</source>
        <translation>1 bulan</translation>
    </message>
    <message>
        <source> months</source>
        <translation> bulan</translation>
    </message>
    <message>
        <source>1 year</source>
        <translation>1 tahun</translation>
    </message>
    <message>
        <source> years</source>
        <translation> tahun</translation>
    </message>
</context>
<context>
    <name>ToolDialog</name>
    <message>
        <source>Question</source>
        <translation>Pertanyaan</translation>
    </message>
    <message>
        <source>The work is still going on. Do you want to stop it? A backup that is stopped is thrown away; a database that is being restored stays incomplete.</source>
        <translation>Pekerjaan masih berjalan. Hentikan? Cadangan yang dihentikan akan dibuang; basis data yang sedang dipulihkan menjadi tidak lengkap.</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>Error %1</source>
        <translation>Kesalahan %1</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Kesalahan</translation>
    </message>
    <message>
        <source>Error: %1</source>
        <translation>Kesalahan: %1</translation>
    </message>
</context>
<context>
    <name>TotalsCascade</name>
    <message>
        <source>Less :</source>
        <translation>Kurang :</translation>
    </message>
    <message>
        <source>Change :</source>
        <translation>Kembali :</translation>
    </message>
    <message>
        <source>The discount should not be larger than the sub total</source>
        <translation>Diskon tidak boleh melebihi sub total</translation>
    </message>
</context>
<context>
    <name>UnfinishedSave</name>
    <message>
        <source>%1 is saved. Please do not enter it again.</source>
        <translation>%1 sudah disimpan. Jangan dimasukkan lagi.</translation>
    </message>
    <message>
        <source>Later, open it from its list and press OK: that does the same.</source>
        <translation>Nanti, buka dari daftarnya lalu tekan OK: hasilnya sama.</translation>
    </message>
    <message>
        <source>Not done yet: %1.</source>
        <translation>Belum selesai: %1.</translation>
    </message>
    <message>
        <source>Do you want to have it done now?</source>
        <translation>Selesaikan sekarang?</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Kesalahan</translation>
    </message>
    <message>
        <source>Finish Now</source>
        <translation>Selesaikan Sekarang</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Nanti</translation>
    </message>
</context>
<context>
    <name>UserGroupTableModel</name>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nama</translation>
    </message>
    <message>
        <source>Created Date</source>
        <translation>Tanggal Dibuat</translation>
    </message>
</context>
<context>
    <name>WizardConnection</name>
    <message>
        <source>Error</source>
        <translation>Kesalahan</translation>
    </message>
    <message>
        <source>Can not connect to the database, please update your database connection details</source>
        <translation>Tidak dapat tersambung ke basis data, perbarui rincian sambungan basis data Anda</translation>
    </message>
    <message>
        <source>Can&apos;t write the settings file: %1</source>
        <translation>Berkas pengaturan tidak dapat ditulis: %1</translation>
    </message>
    <message>
        <source>&amp;Use Port %1</source>
        <translation>&amp;Pakai Port %1</translation>
    </message>
    <message>
        <source>The server has no database %1 yet.</source>
        <translation>Server belum memiliki basis data %1.</translation>
    </message>
    <message>
        <source>&amp;Create Database</source>
        <translation>&amp;Buat Basis Data</translation>
    </message>
    <message>
        <source>PostgreSQL listens on port %1 here.</source>
        <translation>Di sini PostgreSQL mendengarkan di port %1.</translation>
    </message>
    <message>
        <source>The database %1 was not created: %2</source>
        <translation>Basis data %1 tidak dibuat: %2</translation>
    </message>
</context>
<context>
    <name>ZavelApplication</name>
    <message>
        <source>Application Started</source>
        <translation>Aplikasi Dimulai</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Kesalahan</translation>
    </message>
    <message>
        <source>Failed to open the database using this configuration:<byte value="xd"/>
Host: %1, DB Name: %2, DB User: %3, DB Password: %4, Port: %5</source>
        <translation>Gagal membuka basis data dengan konfigurasi ini:<byte value="xd"/>
Host: %1, Nama DB: %2, Pengguna DB: %3, Kata Sandi DB: %4, Port: %5</translation>
    </message>
    <message>
        <source>Table: Config corrupted</source>
        <translation>Tabel: Config rusak</translation>
    </message>
    <message>
        <source>.<byte value="xd"/>
Please install the initial data</source>
        <translation>.<byte value="xd"/>
Silakan pasang data awal</translation>
    </message>
    <message>
        <source>Success</source>
        <translation>Berhasil</translation>
    </message>
    <message>
        <source>Successfully connected to the database.</source>
        <translation>Berhasil tersambung ke basis data.</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Peringatan</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>Info</translation>
    </message>
</context>
<context>
    <name>ZavelConverter</name>
    <message>
        <source>The data are being brought over at another workstation.</source>
        <translation>Data sedang dipindahkan di komputer lain.</translation>
    </message>
    <message>
        <source>%1 on %2</source>
        <translation>%1 pada %2</translation>
    </message>
    <message>
        <source>Converting company profile</source>
        <translation>Mengonversi profil perusahaan</translation>
    </message>
    <message>
        <source>Converting item type</source>
        <translation>Mengonversi jenis barang</translation>
    </message>
    <message>
        <source>Converting item unit</source>
        <translation>Mengonversi satuan barang</translation>
    </message>
    <message>
        <source>Converting suppliers</source>
        <translation>Mengonversi pemasok</translation>
    </message>
    <message>
        <source>Converting members</source>
        <translation>Mengonversi anggota</translation>
    </message>
    <message>
        <source>Converting agents</source>
        <translation>Mengonversi agen</translation>
    </message>
    <message>
        <source>Converting employees</source>
        <translation>Mengonversi karyawan</translation>
    </message>
    <message>
        <source>Converting items</source>
        <translation>Mengonversi barang</translation>
    </message>
    <message>
        <source>Converting purchases</source>
        <translation>Mengonversi pembelian</translation>
    </message>
    <message>
        <source>Converting payment</source>
        <translation>Mengonversi pembayaran</translation>
    </message>
    <message>
        <source>done</source>
        <translation>selesai</translation>
    </message>
    <message>
        <source>The source database holds no table of the former system.</source>
        <translation>Basis data asal tidak berisi tabel sistem lama.</translation>
    </message>
    <message>
        <source>%1 rows</source>
        <translation>%1 baris</translation>
    </message>
    <message>
        <source>The connection to the source database is lost: %1</source>
        <translation>Sambungan ke basis data asal terputus: %1</translation>
    </message>
    <message>
        <source>The conversion has been stopped.</source>
        <translation>Konversi dihentikan.</translation>
    </message>
</context>
<context>
    <name>ZavelInstaller</name>
    <message>
        <source>Zavel Data</source>
        <translation>Data Zavel</translation>
    </message>
    <message>
        <source>Kitchen 1</source>
        <translation>Dapur 1</translation>
    </message>
    <message>
        <source>Thanks</source>
        <translation>Terima kasih</translation>
    </message>
</context>
<context>
    <name>ZavelReportFactory</name>
    <message>
        <source>Can not find entity with id: %1</source>
        <translation>Data dengan id: %1 tidak ditemukan</translation>
    </message>
    <message>
        <source>There is no company profile, so nothing can be printed at the cashier. Please enter it first.</source>
        <translation>Profil perusahaan belum ada, sehingga kasir tidak dapat mencetak. Isi dahulu.</translation>
    </message>
    <message>
        <source>There are no settings of the cashier printer in this database, so nothing can be printed at the cashier.</source>
        <translation>Tidak ada pengaturan printer kasir di basis data ini, sehingga kasir tidak dapat mencetak.</translation>
    </message>
    <message>
        <source>The order is cancelled. Only its slip is missing.</source>
        <translation>Pesanan sudah dibatalkan. Hanya slipnya yang belum tercetak.</translation>
    </message>
    <message>
        <source>The order is saved. Only its slip is missing.</source>
        <translation>Pesanan sudah disimpan. Hanya slipnya yang belum tercetak.</translation>
    </message>
</context>
<context>
    <name>dashboard</name>
    <message>
        <source>January</source>
        <translation>Januari</translation>
    </message>
    <message>
        <source>February</source>
        <translation>Februari</translation>
    </message>
    <message>
        <source>March</source>
        <translation>Maret</translation>
    </message>
    <message>
        <source>April</source>
        <translation>April</translation>
    </message>
    <message>
        <source>May</source>
        <translation>Mei</translation>
    </message>
    <message>
        <source>June</source>
        <translation>Juni</translation>
    </message>
    <message>
        <source>July</source>
        <translation>Juli</translation>
    </message>
    <message>
        <source>August</source>
        <translation>Agustus</translation>
    </message>
    <message>
        <source>September</source>
        <translation>September</translation>
    </message>
    <message>
        <source>October</source>
        <translation>Oktober</translation>
    </message>
    <message>
        <source>November</source>
        <translation>November</translation>
    </message>
    <message>
        <source>December</source>
        <translation>Desember</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Minggu</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Senin</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Selasa</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Rabu</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Kamis</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Jumat</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Sabtu</translation>
    </message>
    <message>
        <source>Dashboard</source>
        <translation>Dasbor</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Selamat datang</translation>
    </message>
    <message>
        <source>Read the figures anew (F5)</source>
        <translation>Baca ulang angka (F5)</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Segarkan</translation>
    </message>
    <message>
        <source>No sales yet</source>
        <translation>Belum ada penjualan</translation>
    </message>
    <message>
        <source>Begin with the company profile</source>
        <translation>Mulai dengan profil perusahaan</translation>
    </message>
    <message>
        <source>Figures</source>
        <translation>Angka</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Hari ini</translation>
    </message>
    <message>
        <source>Average sale</source>
        <translation>Rata-rata penjualan</translation>
    </message>
    <message>
        <source>Best day</source>
        <translation>Hari terbaik</translation>
    </message>
    <message>
        <source>Sales by day</source>
        <translation>Penjualan per hari</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Jumlah Uang</translation>
    </message>
    <message>
        <source>Number of sales</source>
        <translation>Jumlah penjualan</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Hari</translation>
    </message>
    <message>
        <source>Best sellers</source>
        <translation>Terlaris</translation>
    </message>
    <message>
        <source>by quantity</source>
        <translation>menurut jumlah</translation>
    </message>
    <message>
        <source>Item</source>
        <translation>Barang</translation>
    </message>
    <message>
        <source>Sold</source>
        <translation>Terjual</translation>
    </message>
    <message>
        <source>Nothing was sold by the piece.</source>
        <translation>Tidak ada yang terjual per barang.</translation>
    </message>
    <message>
        <source>Set up the restaurant</source>
        <translation>Siapkan restoran</translation>
    </message>
    <message>
        <source>Company profile</source>
        <translation>Profil perusahaan</translation>
    </message>
    <message>
        <source>Name, address and logo</source>
        <translation>Nama, alamat dan logo</translation>
    </message>
    <message>
        <source>Cashier printer</source>
        <translation>Printer kasir</translation>
    </message>
    <message>
        <source>For the guests’ bills</source>
        <translation>Untuk tagihan tamu</translation>
    </message>
    <message>
        <source>Kitchen printers</source>
        <translation>Printer dapur</translation>
    </message>
    <message>
        <source>For what is to be cooked</source>
        <translation>Untuk yang harus dimasak</translation>
    </message>
    <message>
        <source>Item types</source>
        <translation>Jenis barang</translation>
    </message>
    <message>
        <source>Food, drinks, desserts</source>
        <translation>Makanan, minuman, penutup</translation>
    </message>
    <message>
        <source>Units</source>
        <translation>Satuan</translation>
    </message>
    <message>
        <source>Portion, glass, kilogram</source>
        <translation>Porsi, gelas, kilogram</translation>
    </message>
    <message>
        <source>Tables</source>
        <translation>Meja</translation>
    </message>
    <message>
        <source>Where your guests sit</source>
        <translation>Tempat tamu duduk</translation>
    </message>
    <message>
        <source>Items</source>
        <translation>Barang</translation>
    </message>
    <message>
        <source>Dishes with their prices</source>
        <translation>Hidangan dengan harganya</translation>
    </message>
    <message>
        <source>Beginning balances</source>
        <translation>Saldo awal</translation>
    </message>
    <message>
        <source>What lies on the shelf</source>
        <translation>Isi rak</translation>
    </message>
    <message>
        <source>Cash</source>
        <translation>Tunai</translation>
    </message>
    <message>
        <source>What lies in the drawer</source>
        <translation>Isi laci kasir</translation>
    </message>
    <message>
        <source>Every day</source>
        <translation>Setiap hari</translation>
    </message>
    <message>
        <source>Dine in</source>
        <translation>Makan di tempat</translation>
    </message>
    <message>
        <source>Tables, orders and bills</source>
        <translation>Meja, pesanan dan tagihan</translation>
    </message>
    <message>
        <source>Fast food</source>
        <translation>Cepat saji</translation>
    </message>
    <message>
        <source>Sell over the counter</source>
        <translation>Jual di konter</translation>
    </message>
    <message>
        <source>en</source>
        <translation>id</translation>
    </message>
    <message>
        <source>%1 sale</source>
        <translation>%1 penjualan</translation>
    </message>
    <message>
        <source>%1 sales</source>
        <translation>%1 penjualan</translation>
    </message>
    <message>
        <source>Good morning</source>
        <translation>Selamat pagi</translation>
    </message>
    <message>
        <source>Good afternoon</source>
        <translation>Selamat siang</translation>
    </message>
    <message>
        <source>Good evening</source>
        <translation>Selamat malam</translation>
    </message>
    <message>
        <source>Last %1 days</source>
        <translation>%1 hari terakhir</translation>
    </message>
    <message>
        <source>over %1 days</source>
        <translation>selama %1 hari</translation>
    </message>
    <message>
        <source>Nothing was sold between %1 and %2. As soon as the first invoice is saved, the figures appear here. Is the restaurant new? The steps below set it up, one after the other.</source>
        <translation>Tidak ada penjualan antara %1 dan %2. Begitu faktur pertama disimpan, angkanya muncul di sini. Restoran masih baru? Siapkan dengan langkah-langkah di bawah, satu per satu.</translation>
    </message>
    <message>
        <source>Not chosen yet</source>
        <translation>Belum dipilih</translation>
    </message>
</context>
</TS>
