<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="id_ID" sourcelanguage="en">
<context>
    <name>CloseButton</name>
    <message>
        <source>Close Tab</source>
        <translation>Tutup Tab</translation>
    </message>
</context>
<context>
    <name>QAbstractSpinBox</name>
    <message>
        <source>&amp;Select All</source>
        <translation>&amp;Pilih Semua</translation>
    </message>
    <message>
        <source>&amp;Step up</source>
        <translation>&amp;Naikkan</translation>
    </message>
    <message>
        <source>Step &amp;down</source>
        <translation>Tu&amp;runkan</translation>
    </message>
</context>
<context>
    <name>QComboBox</name>
    <message>
        <source>False</source>
        <translation>Salah</translation>
    </message>
    <message>
        <source>Open the combo box selection popup</source>
        <translation>Buka daftar pilihan</translation>
    </message>
    <message>
        <source>True</source>
        <translation>Benar</translation>
    </message>
</context>
<context>
    <name>QCommandLineParser</name>
    <message>
        <source>Arguments:</source>
        <translation>Argumen:</translation>
    </message>
    <message>
        <source>Displays help including Qt specific options.</source>
        <translation>Menampilkan bantuan termasuk pilihan khusus Qt.</translation>
    </message>
    <message>
        <source>Displays help on commandline options.</source>
        <translation>Menampilkan bantuan tentang pilihan baris perintah.</translation>
    </message>
    <message>
        <source>Displays version information.</source>
        <translation>Menampilkan keterangan versi.</translation>
    </message>
    <message>
        <source>Missing value after &apos;%1&apos;.</source>
        <translation>Nilai setelah &apos;%1&apos; tidak ada.</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Pilihan:</translation>
    </message>
    <message>
        <source>Unexpected value after &apos;%1&apos;.</source>
        <translation>Nilai yang tidak diharapkan setelah &apos;%1&apos;.</translation>
    </message>
    <message>
        <source>Unknown option &apos;%1&apos;.</source>
        <translation>Pilihan &apos;%1&apos; tidak dikenal.</translation>
    </message>
    <message>
        <source>Unknown options: %1.</source>
        <translation>Pilihan tidak dikenal: %1.</translation>
    </message>
    <message>
        <source>Usage: %1</source>
        <translation>Pemakaian: %1</translation>
    </message>
    <message>
        <source>[options]</source>
        <translation>[pilihan]</translation>
    </message>
</context>
<context>
    <name>QCupsJobWidget</name>
    <message>
        <source>Banner Pages</source>
        <translation>Halaman Pengantar</translation>
    </message>
    <message>
        <source>Billing information:</source>
        <translation>Keterangan tagihan:</translation>
    </message>
    <message>
        <source>Classified</source>
        <translation>Terbatas</translation>
    </message>
    <message>
        <source>Confidential</source>
        <translation>Konfidensial</translation>
    </message>
    <message>
        <source>Day (06:00 to 17:59)</source>
        <translation>Siang (06.00 sampai 17.59)</translation>
    </message>
    <message>
        <source>End:</source>
        <translation>Akhir:</translation>
    </message>
    <message>
        <source>Hold Indefinitely</source>
        <translation>Tahan Tanpa Batas</translation>
    </message>
    <message>
        <source>Job Control</source>
        <translation>Pengaturan Pekerjaan</translation>
    </message>
    <message>
        <source>Job priority:</source>
        <translation>Prioritas pekerjaan:</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Pekerjaan</translation>
    </message>
    <message>
        <source>Night (18:00 to 05:59)</source>
        <translation>Malam (18.00 sampai 05.59)</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Tidak ada</translation>
    </message>
    <message>
        <source>Print Immediately</source>
        <translation>Cetak Sekarang</translation>
    </message>
    <message>
        <source>Scheduled printing:</source>
        <translation>Cetak terjadwal:</translation>
    </message>
    <message>
        <source>Second Shift (16:00 to 23:59)</source>
        <translation>Giliran Kedua (16.00 sampai 23.59)</translation>
    </message>
    <message>
        <source>Secret</source>
        <translation>Rahasia</translation>
    </message>
    <message>
        <source>Specific Time</source>
        <translation>Waktu Tertentu</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Standar</translation>
    </message>
    <message>
        <source>Start:</source>
        <translation>Awal:</translation>
    </message>
    <message>
        <source>Third Shift (00:00 to 07:59)</source>
        <translation>Giliran Ketiga (00.00 sampai 07.59)</translation>
    </message>
    <message>
        <source>Top Secret</source>
        <translation>Sangat Rahasia</translation>
    </message>
    <message>
        <source>Unclassified</source>
        <translation>Umum</translation>
    </message>
    <message>
        <source>Weekend (Saturday to Sunday)</source>
        <translation>Akhir Pekan (Sabtu sampai Minggu)</translation>
    </message>
</context>
<context>
    <name>QCupsPrinterSupport</name>
    <message>
        <source>Authentication Needed</source>
        <translation>Perlu Masuk</translation>
    </message>
    <message>
        <source>Authentication needed to use %1 on %2.</source>
        <translation>Perlu masuk untuk memakai %1 di %2.</translation>
    </message>
    <message>
        <source>Authentication needed to use %1.</source>
        <translation>Perlu masuk untuk memakai %1.</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Kata Sandi:</translation>
    </message>
    <message>
        <source>Username:</source>
        <translation>Nama Pengguna:</translation>
    </message>
</context>
<context>
    <name>QDateTimeParser</name>
    <message>
        <source>AM</source>
        <translation>AM</translation>
    </message>
    <message>
        <source>PM</source>
        <translation>PM</translation>
    </message>
    <message>
        <source>am</source>
        <translation>am</translation>
    </message>
    <message>
        <source>pm</source>
        <translation>pm</translation>
    </message>
</context>
<context>
    <name>QDialog</name>
    <message>
        <source>What&apos;s This?</source>
        <translation>Apa Ini?</translation>
    </message>
</context>
<context>
    <name>QDialogButtonBox</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>QDirModel</name>
    <message>
        <source>Date Modified</source>
        <translation>Tanggal Diubah</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Macam</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nama</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Ukuran</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Jenis</translation>
    </message>
</context>
<context>
    <name>QFile</name>
    <message>
        <source>Cannot create %1 for output</source>
        <translation>%1 tidak dapat dibuat untuk keluaran</translation>
    </message>
    <message>
        <source>Cannot open %1 for input</source>
        <translation>%1 tidak dapat dibuka untuk dibaca</translation>
    </message>
    <message>
        <source>Cannot open destination file: %1</source>
        <translation>Berkas tujuan tidak dapat dibuka: %1</translation>
    </message>
    <message>
        <source>Cannot open for output: %1</source>
        <translation>Tidak dapat dibuka untuk ditulis: %1</translation>
    </message>
    <message>
        <source>Cannot remove source file</source>
        <translation>Berkas asal tidak dapat dihapus</translation>
    </message>
    <message>
        <source>Destination file exists</source>
        <translation>Berkas tujuan sudah ada</translation>
    </message>
    <message>
        <source>Destination file is the same file.</source>
        <translation>Berkas tujuan adalah berkas yang sama.</translation>
    </message>
    <message>
        <source>Error while renaming: %1</source>
        <translation>Kesalahan saat mengganti nama: %1</translation>
    </message>
    <message>
        <source>Failure to write block</source>
        <translation>Blok gagal ditulis</translation>
    </message>
    <message>
        <source>Source file does not exist.</source>
        <translation>Berkas asal tidak ada.</translation>
    </message>
    <message>
        <source>Unable to restore from %1: %2</source>
        <translation>Tidak dapat dipulihkan dari %1: %2</translation>
    </message>
    <message>
        <source>Will not rename sequential file using block copy</source>
        <translation>Berkas berurutan tidak diganti nama dengan salinan blok</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation>%1
Folder tidak ditemukan.
Periksa apakah nama folder sudah benar.</translation>
    </message>
    <message>
        <source>%1
File not found.
Please verify the correct file name was given.</source>
        <translation>%1
Berkas tidak ditemukan.
Periksa apakah nama berkas sudah benar.</translation>
    </message>
    <message>
        <source>%1 File</source>
        <translation>Berkas %1</translation>
    </message>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>%1 sudah ada.
Ganti berkas itu?</translation>
    </message>
    <message>
        <source>&amp;Choose</source>
        <translation>&amp;Pilih</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Hapus</translation>
    </message>
    <message>
        <source>&amp;New Folder</source>
        <translation>Folder &amp;Baru</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Buka</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Ganti Nama</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Simpan</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is write protected.
Do you want to delete it anyway?</source>
        <translation>&apos;%1&apos; dilindungi dari penulisan.
Tetap hapus?</translation>
    </message>
    <message>
        <source>Alias</source>
        <translation>Alias</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>Semua Berkas (*)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Semua berkas (*)</translation>
    </message>
    <message>
        <source>Alt+Left</source>
        <translation>Alt+Left</translation>
    </message>
    <message>
        <source>Alt+Right</source>
        <translation>Alt+Right</translation>
    </message>
    <message>
        <source>Alt+Up</source>
        <translation>Alt+Up</translation>
    </message>
    <message>
        <source>Are you sure you want to delete &apos;%1&apos;?</source>
        <translation>Yakin ingin menghapus &apos;%1&apos;?</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Kembali</translation>
    </message>
    <message>
        <source>Change to detail view mode</source>
        <translation>Ganti ke tampilan rincian</translation>
    </message>
    <message>
        <source>Change to list view mode</source>
        <translation>Ganti ke tampilan daftar</translation>
    </message>
    <message>
        <source>Could not delete directory.</source>
        <translation>Folder tidak dapat dihapus.</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>Buat Folder Baru</translation>
    </message>
    <message>
        <source>Create a New Folder</source>
        <translation>Buat folder baru</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Hapus</translation>
    </message>
    <message>
        <source>Detail View</source>
        <translation>Tampilan Rincian</translation>
    </message>
    <message>
        <source>Directories</source>
        <translation>Folder</translation>
    </message>
    <message>
        <source>Directory:</source>
        <translation>Folder:</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Drive</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>&amp;Nama berkas:</translation>
    </message>
    <message>
        <source>File Folder</source>
        <translation>Folder Berkas</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Berkas</translation>
    </message>
    <message>
        <source>Files of type:</source>
        <translation>Jenis berkas:</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Berkas</translation>
    </message>
    <message>
        <source>Find Directory</source>
        <translation>Cari Folder</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Folder</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Maju</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>Kembali</translation>
    </message>
    <message>
        <source>Go forward</source>
        <translation>Maju</translation>
    </message>
    <message>
        <source>Go to the parent directory</source>
        <translation>Ke folder induk</translation>
    </message>
    <message>
        <source>List View</source>
        <translation>Tampilan Daftar</translation>
    </message>
    <message>
        <source>List of places and bookmarks</source>
        <translation>Daftar tempat dan penanda</translation>
    </message>
    <message>
        <source>Look in:</source>
        <translation>Cari di:</translation>
    </message>
    <message>
        <source>My Computer</source>
        <translation>Komputer Saya</translation>
    </message>
    <message>
        <source>New Folder</source>
        <translation>Folder Baru</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Buka</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>Folder Induk</translation>
    </message>
    <message>
        <source>Recent Places</source>
        <translation>Tempat Terakhir</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Hapus</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Simpan Sebagai</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <translation>Pintasan</translation>
    </message>
    <message>
        <source>Show &amp;hidden files</source>
        <translation>&amp;Tampilkan berkas tersembunyi</translation>
    </message>
    <message>
        <source>Show </source>
        <translation>Tampilkan </translation>
    </message>
    <message>
        <source>Sidebar</source>
        <translation>Bilah samping</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Tidak dikenal</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>&lt;b&gt;The name &quot;%1&quot; cannot be used.&lt;/b&gt;&lt;p&gt;Try using another name, with fewer characters or no punctuation marks.</source>
        <translation>&lt;b&gt;Nama &quot;%1&quot; tidak dapat dipakai.&lt;/b&gt;&lt;p&gt;Coba nama lain yang lebih pendek atau tanpa tanda baca.</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Komputer</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>Tanggal Diubah</translation>
    </message>
    <message>
        <source>Invalid filename</source>
        <translation>Nama berkas salah</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Macam</translation>
    </message>
    <message>
        <source>My Computer</source>
        <translation>Komputer Saya</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nama</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Ukuran</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Jenis</translation>
    </message>
</context>
<context>
    <name>QGnomeTheme</name>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Batal</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Tutup</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Simpan</translation>
    </message>
    <message>
        <source>Close without Saving</source>
        <translation>Tutup tanpa Menyimpan</translation>
    </message>
</context>
<context>
    <name>QIODevice</name>
    <message>
        <source>No space left on device</source>
        <translation>Tidak ada ruang kosong lagi</translation>
    </message>
    <message>
        <source>No such file or directory</source>
        <translation>Berkas atau folder tidak ada</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Izin ditolak</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>Terlalu banyak berkas terbuka</translation>
    </message>
    <message>
        <source>Unknown error</source>
        <translation>Kesalahan tidak dikenal</translation>
    </message>
    <message>
        <source>file to open is a directory</source>
        <translation>berkas yang akan dibuka adalah folder</translation>
    </message>
</context>
<context>
    <name>QImageReader</name>
    <message>
        <source>File not found</source>
        <translation>Berkas tidak ditemukan</translation>
    </message>
    <message>
        <source>Invalid device</source>
        <translation>Perangkat salah</translation>
    </message>
    <message>
        <source>Unable to read image data</source>
        <translation>Data gambar tidak dapat dibaca</translation>
    </message>
    <message>
        <source>Unknown error</source>
        <translation>Kesalahan tidak dikenal</translation>
    </message>
    <message>
        <source>Unsupported image format</source>
        <translation>Format gambar tidak didukung</translation>
    </message>
</context>
<context>
    <name>QImageWriter</name>
    <message>
        <source>Cannot open device for writing: %1</source>
        <translation>Perangkat tidak dapat dibuka untuk ditulis: %1</translation>
    </message>
    <message>
        <source>Device is not set</source>
        <translation>Perangkat belum ditentukan</translation>
    </message>
    <message>
        <source>Device not writable</source>
        <translation>Perangkat tidak dapat ditulis</translation>
    </message>
    <message>
        <source>Image is empty</source>
        <translation>Gambar kosong</translation>
    </message>
    <message>
        <source>Unknown error</source>
        <translation>Kesalahan tidak dikenal</translation>
    </message>
    <message>
        <source>Unsupported image format</source>
        <translation>Format gambar tidak didukung</translation>
    </message>
</context>
<context>
    <name>QInputDialog</name>
    <message>
        <source>Enter a value:</source>
        <translation>Isi nilai:</translation>
    </message>
</context>
<context>
    <name>QLibrary</name>
    <message>
        <source>&apos;%1&apos; is an invalid ELF object (%2)</source>
        <translation>&apos;%1&apos; adalah pustaka ELF yang rusak (%2)</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a Qt plugin</source>
        <translation>&apos;%1&apos; bukan plugin Qt</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not an ELF object (%2)</source>
        <translation>&apos;%1&apos; bukan pustaka ELF (%2)</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not an ELF object</source>
        <translation>&apos;%1&apos; bukan pustaka ELF</translation>
    </message>
    <message>
        <source>Cannot load library %1: %2</source>
        <translation>Pustaka %1 tidak dapat dimuat: %2</translation>
    </message>
    <message>
        <source>Cannot unload library %1: %2</source>
        <translation>Pustaka %1 tidak dapat dilepas: %2</translation>
    </message>
    <message>
        <source>Failed to extract plugin meta data from &apos;%1&apos;</source>
        <translation>Keterangan plugin tidak dapat dibaca dari &apos;%1&apos;</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; is not a valid Qt plugin.</source>
        <translation>Berkas &apos;%1&apos; bukan plugin Qt yang benar.</translation>
    </message>
    <message>
        <source>The plugin &apos;%1&apos; uses incompatible Qt library. (%2.%3.%4) [%5]</source>
        <translation>Plugin &apos;%1&apos; memakai pustaka Qt yang tidak cocok. (%2.%3.%4) [%5]</translation>
    </message>
    <message>
        <source>The plugin &apos;%1&apos; uses incompatible Qt library. (Cannot mix debug and release libraries.)</source>
        <translation>Plugin &apos;%1&apos; memakai pustaka Qt yang tidak cocok. (Pustaka debug dan rilis tidak dapat dicampur.)</translation>
    </message>
    <message>
        <source>The shared library was not found.</source>
        <translation>Pustaka tidak ditemukan.</translation>
    </message>
    <message>
        <source>Unknown error</source>
        <translation>Kesalahan tidak dikenal</translation>
    </message>
    <message>
        <source>file is corrupt</source>
        <translation>berkas rusak</translation>
    </message>
    <message>
        <source>file too small</source>
        <translation>berkas terlalu kecil</translation>
    </message>
    <message>
        <source>not a dynamic library</source>
        <translation>bukan pustaka dinamis</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Salin</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>Te&amp;mpel</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Ulangi</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Batalkan</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Po&amp;tong</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Hapus</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Pilih Semua</translation>
    </message>
</context>
<context>
    <name>QMessageBox</name>
    <message>
        <source>Hide Details...</source>
        <translation>Sembunyikan Rincian...</translation>
    </message>
    <message>
        <source>Show Details...</source>
        <translation>Tampilkan Rincian...</translation>
    </message>
</context>
<context>
    <name>QPSQLDriver</name>
    <message>
        <source>Could not begin transaction</source>
        <translation>Transaksi tidak dapat dimulai</translation>
    </message>
    <message>
        <source>Could not commit transaction</source>
        <translation>Transaksi tidak dapat disimpan</translation>
    </message>
    <message>
        <source>Could not rollback transaction</source>
        <translation>Transaksi tidak dapat dibatalkan</translation>
    </message>
    <message>
        <source>Unable to connect</source>
        <translation>Tidak dapat tersambung</translation>
    </message>
    <message>
        <source>Unable to subscribe</source>
        <translation>Tidak dapat berlangganan</translation>
    </message>
    <message>
        <source>Unable to unsubscribe</source>
        <translation>Tidak dapat berhenti berlangganan</translation>
    </message>
</context>
<context>
    <name>QPSQLResult</name>
    <message>
        <source>Query results lost - probably discarded on executing another SQL query.</source>
        <translation>Hasil kueri hilang - mungkin terbuang karena kueri SQL lain dijalankan.</translation>
    </message>
    <message>
        <source>Unable to create query</source>
        <translation>Kueri tidak dapat dibuat</translation>
    </message>
    <message>
        <source>Unable to get result</source>
        <translation>Hasil tidak dapat diambil</translation>
    </message>
    <message>
        <source>Unable to prepare statement</source>
        <translation>Pernyataan tidak dapat disiapkan</translation>
    </message>
    <message>
        <source>Unable to send query</source>
        <translation>Kueri tidak dapat dikirim</translation>
    </message>
</context>
<context>
    <name>QPageSetupWidget</name>
    <message>
        <source>CC</source>
        <translation>CC</translation>
    </message>
    <message>
        <source>Cicero (CC)</source>
        <translation>Cicero (CC)</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Khusus</translation>
    </message>
    <message>
        <source>DD</source>
        <translation>DD</translation>
    </message>
    <message>
        <source>Didot (DD)</source>
        <translation>Didot (DD)</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Formulir</translation>
    </message>
    <message>
        <source>Height:</source>
        <translation>Tinggi:</translation>
    </message>
    <message>
        <source>Inches (in)</source>
        <translation>Inci (in)</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Mendatar</translation>
    </message>
    <message>
        <source>Margins</source>
        <translation>Margin</translation>
    </message>
    <message>
        <source>Millimeters (mm)</source>
        <translation>Milimeter (mm)</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Orientasi</translation>
    </message>
    <message>
        <source>Page Layout</source>
        <translation>Tata Letak Halaman</translation>
    </message>
    <message>
        <source>Page order:</source>
        <translation>Urutan halaman:</translation>
    </message>
    <message>
        <source>Page size:</source>
        <translation>Ukuran halaman:</translation>
    </message>
    <message>
        <source>Pages per sheet:</source>
        <translation>Halaman per lembar:</translation>
    </message>
    <message>
        <source>Paper source:</source>
        <translation>Sumber kertas:</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Kertas</translation>
    </message>
    <message>
        <source>Pica (P̸)</source>
        <translation>Pica (P̸)</translation>
    </message>
    <message>
        <source>Points (pt)</source>
        <translation>Poin (pt)</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Tegak</translation>
    </message>
    <message>
        <source>P̸</source>
        <translation>P̸</translation>
    </message>
    <message>
        <source>Reverse landscape</source>
        <translation>Mendatar terbalik</translation>
    </message>
    <message>
        <source>Reverse portrait</source>
        <translation>Tegak terbalik</translation>
    </message>
    <message>
        <source>Width:</source>
        <translation>Lebar:</translation>
    </message>
    <message>
        <source>bottom margin</source>
        <translation>margin bawah</translation>
    </message>
    <message>
        <source>in</source>
        <translation>in</translation>
    </message>
    <message>
        <source>left margin</source>
        <translation>margin kiri</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>mm</translation>
    </message>
    <message>
        <source>pt</source>
        <translation>pt</translation>
    </message>
    <message>
        <source>right margin</source>
        <translation>margin kanan</translation>
    </message>
    <message>
        <source>top margin</source>
        <translation>margin atas</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Tidak</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Ya</translation>
    </message>
    <message>
        <source>Abort</source>
        <translation>Hentikan</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Terapkan</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Batal</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Tutup</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Buang</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Bantuan</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Abaikan</translation>
    </message>
    <message>
        <source>N&amp;o to All</source>
        <translation>Ti&amp;dak untuk Semua</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Buka</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Atur Ulang</translation>
    </message>
    <message>
        <source>Restore Defaults</source>
        <translation>Kembalikan Bawaan</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Coba Lagi</translation>
    </message>
    <message>
        <source>Save All</source>
        <translation>Simpan Semua</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Simpan</translation>
    </message>
    <message>
        <source>Yes to &amp;All</source>
        <translation>Ya untuk &amp;Semua</translation>
    </message>
</context>
<context>
    <name>QPluginLoader</name>
    <message>
        <source>The plugin was not loaded.</source>
        <translation>Plugin tidak dimuat.</translation>
    </message>
    <message>
        <source>Unknown error</source>
        <translation>Kesalahan tidak dikenal</translation>
    </message>
</context>
<context>
    <name>QPrintDialog</name>
    <message>
        <source>%1 already exists.
Do you want to overwrite it?</source>
        <translation>%1 sudah ada.
Timpa berkas itu?</translation>
    </message>
    <message>
        <source>%1 does not follow the correct syntax. Please use &apos;,&apos; to separate ranges and pages, &apos;-&apos; to define ranges and make sure ranges do not intersect with each other.</source>
        <translation>%1 tidak ditulis dengan benar. Pakai &apos;,&apos; untuk memisahkan rentang dan halaman, &apos;-&apos; untuk menyatakan rentang, dan pastikan rentang tidak bertumpang tindih.</translation>
    </message>
    <message>
        <source>%1 is a directory.
Please choose a different file name.</source>
        <translation>%1 adalah folder.
Pilih nama berkas lain.</translation>
    </message>
    <message>
        <source>&amp;Options &gt;&gt;</source>
        <translation>&amp;Pilihan &gt;&gt;</translation>
    </message>
    <message>
        <source>&amp;Options &lt;&lt;</source>
        <translation>&amp;Pilihan &lt;&lt;</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Cetak</translation>
    </message>
    <message>
        <source>1 (1x1)</source>
        <translation>1 (1x1)</translation>
    </message>
    <message>
        <source>16 (4x4)</source>
        <translation>16 (4x4)</translation>
    </message>
    <message>
        <source>2 (2x1)</source>
        <translation>2 (2x1)</translation>
    </message>
    <message>
        <source>4 (2x2)</source>
        <translation>4 (2x2)</translation>
    </message>
    <message>
        <source>6 (2x3)</source>
        <translation>6 (2x3)</translation>
    </message>
    <message>
        <source>9 (3x3)</source>
        <translation>9 (3x3)</translation>
    </message>
    <message>
        <source>All Pages</source>
        <translation>Semua Halaman</translation>
    </message>
    <message>
        <source>Bottom to Top, Left to Right</source>
        <translation>Bawah ke Atas, Kiri ke Kanan</translation>
    </message>
    <message>
        <source>Bottom to Top, Right to Left</source>
        <translation>Bawah ke Atas, Kanan ke Kiri</translation>
    </message>
    <message>
        <source>Duplex Settings Conflicts</source>
        <translation>Pertentangan Pengaturan Bolak-balik</translation>
    </message>
    <message>
        <source>Even Pages</source>
        <translation>Halaman Genap</translation>
    </message>
    <message>
        <source>File %1 is not writable.
Please choose a different file name.</source>
        <translation>Berkas %1 tidak dapat ditulis.
Pilih nama berkas lain.</translation>
    </message>
    <message>
        <source>Invalid Pages Definition</source>
        <translation>Penentuan Halaman Salah</translation>
    </message>
    <message>
        <source>Left to Right, Bottom to Top</source>
        <translation>Kiri ke Kanan, Bawah ke Atas</translation>
    </message>
    <message>
        <source>Left to Right, Top to Bottom</source>
        <translation>Kiri ke Kanan, Atas ke Bawah</translation>
    </message>
    <message>
        <source>Local file</source>
        <translation>Berkas lokal</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Odd Pages</source>
        <translation>Halaman Ganjil</translation>
    </message>
    <message>
        <source>Options &apos;Pages Per Sheet&apos; and &apos;Page Set&apos; cannot be used together.
Please turn one of those options off.</source>
        <translation>Pilihan &apos;Halaman per Lembar&apos; dan &apos;Kumpulan Halaman&apos; tidak dapat dipakai bersamaan.
Matikan salah satunya.</translation>
    </message>
    <message>
        <source>Print To File ...</source>
        <translation>Cetak ke Berkas ...</translation>
    </message>
    <message>
        <source>Print to File (PDF)</source>
        <translation>Cetak ke Berkas (PDF)</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Cetak</translation>
    </message>
    <message>
        <source>Right to Left, Bottom to Top</source>
        <translation>Kanan ke Kiri, Bawah ke Atas</translation>
    </message>
    <message>
        <source>Right to Left, Top to Bottom</source>
        <translation>Kanan ke Kiri, Atas ke Bawah</translation>
    </message>
    <message>
        <source>The &apos;From&apos; value cannot be greater than the &apos;To&apos; value.</source>
        <translation>Nilai &apos;dari&apos; tidak boleh lebih besar dari nilai &apos;sampai&apos;.</translation>
    </message>
    <message>
        <source>There are conflicts in duplex settings. Do you want to fix them?</source>
        <translation>Ada pertentangan dalam pengaturan bolak-balik. Perbaiki?</translation>
    </message>
    <message>
        <source>Top to Bottom, Left to Right</source>
        <translation>Atas ke Bawah, Kiri ke Kanan</translation>
    </message>
    <message>
        <source>Top to Bottom, Right to Left</source>
        <translation>Atas ke Bawah, Kanan ke Kiri</translation>
    </message>
    <message>
        <source>Write PDF file</source>
        <translation>Tulis berkas PDF</translation>
    </message>
</context>
<context>
    <name>QPrintPreviewDialog</name>
    <message>
        <source>%1%</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>Export to PDF</source>
        <translation>Simpan sebagai PDF</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Halaman pertama</translation>
    </message>
    <message>
        <source>Fit page</source>
        <translation>Paskan halaman</translation>
    </message>
    <message>
        <source>Fit width</source>
        <translation>Paskan lebar</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Mendatar</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Halaman terakhir</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Halaman berikutnya</translation>
    </message>
    <message>
        <source>Page Setup</source>
        <translation>Pengaturan Halaman</translation>
    </message>
    <message>
        <source>Page setup</source>
        <translation>Pengaturan halaman</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Tegak</translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation>Halaman sebelumnya</translation>
    </message>
    <message>
        <source>Print Preview</source>
        <translation>Pratinjau Cetak</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Cetak</translation>
    </message>
    <message>
        <source>Show facing pages</source>
        <translation>Tampilkan dua halaman</translation>
    </message>
    <message>
        <source>Show overview of all pages</source>
        <translation>Tampilkan semua halaman</translation>
    </message>
    <message>
        <source>Show single page</source>
        <translation>Tampilkan satu halaman</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Perbesar</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Perkecil</translation>
    </message>
</context>
<context>
    <name>QPrintPropertiesDialog</name>
    <message>
        <source>Advanced Option Conflicts</source>
        <translation>Pertentangan Pilihan Lanjutan</translation>
    </message>
    <message>
        <source>Job Options</source>
        <translation>Pilihan Pekerjaan</translation>
    </message>
    <message>
        <source>Page Setup Conflicts</source>
        <translation>Pertentangan Pengaturan Halaman</translation>
    </message>
    <message>
        <source>Printer Properties</source>
        <translation>Rincian Printer</translation>
    </message>
    <message>
        <source>There are conflicts in page setup options. Do you want to fix them?</source>
        <translation>Ada pertentangan dalam pengaturan halaman. Perbaiki?</translation>
    </message>
    <message>
        <source>There are conflicts in some advanced options. Do you want to fix them?</source>
        <translation>Ada pertentangan dalam pilihan lanjutan. Perbaiki?</translation>
    </message>
</context>
<context>
    <name>QPrintPropertiesWidget</name>
    <message>
        <source>Advanced</source>
        <translation>Lanjutan</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Formulir</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Halaman</translation>
    </message>
    <message>
        <source>There are conflicts in some options. Please fix them.</source>
        <translation>Ada pertentangan dalam beberapa pilihan. Perbaikilah.</translation>
    </message>
</context>
<context>
    <name>QPrintSettingsOutput</name>
    <message>
        <source>Collate</source>
        <translation>Susun</translation>
    </message>
    <message>
        <source>Color Mode</source>
        <translation>Mode Warna</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Warna</translation>
    </message>
    <message>
        <source>Copies:</source>
        <translation>Salinan:</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>Salinan</translation>
    </message>
    <message>
        <source>Current Page</source>
        <translation>Halaman Ini</translation>
    </message>
    <message>
        <source>Double Sided Printing</source>
        <translation>Cetak Bolak-balik</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Formulir</translation>
    </message>
    <message>
        <source>Grayscale</source>
        <translation>Abu-abu</translation>
    </message>
    <message>
        <source>Long side binding</source>
        <translation>Jilid sisi panjang</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Mati</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Pilihan</translation>
    </message>
    <message>
        <source>Output Settings</source>
        <translation>Pengaturan Keluaran</translation>
    </message>
    <message>
        <source>Page Set:</source>
        <translation>Kumpulan Halaman:</translation>
    </message>
    <message>
        <source>Pages from</source>
        <translation>Halaman dari</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Halaman</translation>
    </message>
    <message>
        <source>Print all</source>
        <translation>Cetak semua</translation>
    </message>
    <message>
        <source>Print range</source>
        <translation>Rentang cetak</translation>
    </message>
    <message>
        <source>Reverse</source>
        <translation>Terbalik</translation>
    </message>
    <message>
        <source>Selection</source>
        <translation>Yang Dipilih</translation>
    </message>
    <message>
        <source>Short side binding</source>
        <translation>Jilid sisi pendek</translation>
    </message>
    <message>
        <source>Specify pages or ranges separated by commas. Ranges are specified by two numbers separated by a hyphen. E.g: 3,5-7,9 prints pages 3, 5, 6, 7 and 9.</source>
        <translation>Tulis halaman atau rentang dipisahkan koma. Rentang ditulis dengan dua angka dipisahkan tanda hubung. Contoh: 3,5-7,9 mencetak halaman 3, 5, 6, 7 dan 9.</translation>
    </message>
    <message>
        <source>to</source>
        <translation>sampai</translation>
    </message>
</context>
<context>
    <name>QPrintWidget</name>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Nama:</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Formulir</translation>
    </message>
    <message>
        <source>Location:</source>
        <translation>Lokasi:</translation>
    </message>
    <message>
        <source>Output &amp;file:</source>
        <translation>Berkas &amp;keluaran:</translation>
    </message>
    <message>
        <source>P&amp;roperties</source>
        <translation>&amp;Rincian</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Pratinjau</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Printer</translation>
    </message>
    <message>
        <source>Type:</source>
        <translation>Jenis:</translation>
    </message>
</context>
<context>
    <name>QProcess</name>
    <message>
        <source>Could not open input redirection for reading</source>
        <translation>Masukan tidak dapat dibuka untuk dibaca</translation>
    </message>
    <message>
        <source>Could not open output redirection for writing</source>
        <translation>Keluaran tidak dapat dibuka untuk ditulis</translation>
    </message>
    <message>
        <source>Error reading from process</source>
        <translation>Kesalahan saat membaca dari proses</translation>
    </message>
    <message>
        <source>Error writing to process</source>
        <translation>Kesalahan saat menulis ke proses</translation>
    </message>
    <message>
        <source>No program defined</source>
        <translation>Program belum ditentukan</translation>
    </message>
    <message>
        <source>Process crashed</source>
        <translation>Proses terhenti mendadak</translation>
    </message>
    <message>
        <source>Process failed to start: %1</source>
        <translation>Proses gagal dijalankan: %1</translation>
    </message>
    <message>
        <source>Process failed to start</source>
        <translation>Proses gagal dijalankan</translation>
    </message>
    <message>
        <source>Process operation timed out</source>
        <translation>Proses melewati batas waktu</translation>
    </message>
    <message>
        <source>Resource error (fork failure): %1</source>
        <translation>Sumber daya tidak cukup (proses tidak dapat dibuat): %1</translation>
    </message>
</context>
<context>
    <name>QProgressDialog</name>
    <message>
        <source>Cancel</source>
        <translation>Batal</translation>
    </message>
</context>
<context>
    <name>QSaveFile</name>
    <message>
        <source>Existing file %1 is not writable</source>
        <translation>Berkas %1 sudah ada dan tidak dapat ditulis</translation>
    </message>
    <message>
        <source>Filename refers to a directory</source>
        <translation>Nama berkas menunjuk ke folder</translation>
    </message>
    <message>
        <source>QSaveFile cannot open &apos;%1&apos; without direct write fallback enabled.</source>
        <translation>&apos;%1&apos; tidak dapat dibuka untuk disimpan dengan aman.</translation>
    </message>
    <message>
        <source>Writing canceled by application</source>
        <translation>Penulisan dibatalkan oleh aplikasi</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Bottom</source>
        <translation>Paling bawah</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>Tepi kiri</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>Satu halaman ke bawah</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>Satu halaman ke kiri</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>Satu halaman ke kanan</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>Satu halaman ke atas</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>Tepi kanan</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>Gulir ke bawah</translation>
    </message>
    <message>
        <source>Scroll here</source>
        <translation>Gulir ke sini</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>Gulir ke kiri</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>Gulir ke kanan</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>Gulir ke atas</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Paling atas</translation>
    </message>
</context>
<context>
    <name>QStandardPaths</name>
    <message>
        <source>Application Configuration</source>
        <translation>Konfigurasi Aplikasi</translation>
    </message>
    <message>
        <source>Application Data</source>
        <translation>Data Aplikasi</translation>
    </message>
    <message>
        <source>Applications</source>
        <translation>Aplikasi</translation>
    </message>
    <message>
        <source>Cache</source>
        <translation>Cache</translation>
    </message>
    <message>
        <source>Configuration</source>
        <translation>Konfigurasi</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>Desktop</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>Dokumen</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Unduhan</translation>
    </message>
    <message>
        <source>Fonts</source>
        <translation>Huruf</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Beranda</translation>
    </message>
    <message>
        <source>Movies</source>
        <translation>Film</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>Musik</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Gambar</translation>
    </message>
    <message>
        <source>Runtime</source>
        <translation>Waktu Jalan</translation>
    </message>
    <message>
        <source>Shared Cache</source>
        <translation>Cache Bersama</translation>
    </message>
    <message>
        <source>Shared Configuration</source>
        <translation>Konfigurasi Bersama</translation>
    </message>
    <message>
        <source>Shared Data</source>
        <translation>Data Bersama</translation>
    </message>
    <message>
        <source>Temporary Directory</source>
        <translation>Folder Sementara</translation>
    </message>
</context>
<context>
    <name>QTabBar</name>
    <message>
        <source>Scroll Left</source>
        <translation>Gulir ke Kiri</translation>
    </message>
    <message>
        <source>Scroll Right</source>
        <translation>Gulir ke Kanan</translation>
    </message>
</context>
<context>
    <name>QWhatsThisAction</name>
    <message>
        <source>What&apos;s This?</source>
        <translation>Apa Ini?</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Salin</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>Te&amp;mpel</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Ulangi</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Batalkan</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>Salin Lokasi Tau&amp;tan</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Po&amp;tong</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Hapus</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Pilih Semua</translation>
    </message>
</context>
<context>
    <name>QWizard</name>
    <message>
        <source>&amp;Finish</source>
        <translation>&amp;Selesai</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Ban&amp;tuan</translation>
    </message>
    <message>
        <source>&amp;Next &gt;</source>
        <translation>&amp;Lanjut &gt;</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Lanjut</translation>
    </message>
    <message>
        <source>&lt; &amp;Back</source>
        <translation>&lt; &amp;Kembali</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Batal</translation>
    </message>
    <message>
        <source>Commit</source>
        <translation>Laksanakan</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Lanjutkan</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Selesai</translation>
    </message>
    <message>
        <source>Go Back</source>
        <translation>Kembali</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Bantuan</translation>
    </message>
</context>
</TS>
