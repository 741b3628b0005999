<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US">
<context>
    <name>AccessCheck</name>
    <message>
        <source>Error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You don&apos;t have access.<byte value="xd"/>
Required permission: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AccountType</name>
    <message>
        <source>Cash</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Accounts Payable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Accounts Receiveable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Income</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Expense</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Assets</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Other Current Liabilities</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Inventory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cost of Sales</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AgentTextBox</name>
    <message>
        <source>Code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AppCodeMigration11</name>
    <message>
        <source>update kode column to varchar(20)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AppDBUpdateConclusion</name>
    <message>
        <source>The update is waiting for the database. Is the program still open on another workstation? Please close it there.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AppDBUpdaterWizard</name>
    <message>
        <source>ZavelPOS DB Updater Wizard</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AppDbUpdateInfo</name>
    <message>
        <source>Update DB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This wizard will help you update ZavelPOS database on your computer. IMPORTANT: before updating, please back up your database. Please click Next to update the database or click Cancel then backup your database.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AppDocumentMapper</name>
    <message>
        <source>error: transaction failed</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AppInstaller</name>
    <message>
        <source>App Data</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AppInstallerWizard</name>
    <message>
        <source>ZavelPOS Installer Wizard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Info</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please wait until the installation completed.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AppLinePrinter</name>
    <message>
        <source>Error Opening Printer:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AppLinesTab</name>
    <message>
        <source>%1 Items</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Question</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you sure you want to delete this item: %1 ?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AppListTab</name>
    <message>
        <source>Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Can not find entity with id: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 Items</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It is saved. Only the list could not be read again.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AppNumberEdit</name>
    <message>
        <source>%1 cannot be stored, please enter another number</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BackupFile</name>
    <message>
        <source>Save File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Backup File (*.bak)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no folder %1. Please choose another one for the backup.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is no file. Please enter the name of a file for the backup.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The backup can not be written to the folder %1: %2. Please choose another one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The backup is complete: %1, %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The backup failed, the reason stands above. No new backup was written.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The earlier one lies in %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The earlier one in %1 is as it was.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BankTextBox</name>
    <message>
        <source>Code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BillDifference</name>
    <message>
        <source>%1 %2 (%3)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1; %2 in all</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ordered, but on no bill: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>On the bill, but taken back: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BillText</name>
    <message>
        <source>Sub total</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tax</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Discount</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Services</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Grand Total</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Amount Paid</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Credit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Telp : </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Less </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change </source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BusinessAccountingTransaction</name>
    <message>
        <source>Create Accounting Trans</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Update Accounting Trans</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete Accounting Trans</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BusinessAgent</name>
    <message>
        <source>Insert agent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Update agent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete agent</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BusinessBank</name>
    <message>
        <source>Insert bank</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Update bank</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete bank</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BusinessCashFlow</name>
    <message>
        <source>Insert Journal Transaction</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Update Journal Transaction</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete Journal Transaction</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BusinessConfiguration</name>
    <message>
        <source>Manage Configurations</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BusinessCreditNote</name>
    <message>
        <source>Insert Credit Note</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Update Credit Note</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete Credit Note</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Insert Credit Note Detail</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Update Credit Note Detail</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete Credit Note Detail</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>create transaction failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>what is still due of its purchase</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BusinessDataPerusahaan</name>
    <message>
        <source>Manage company info</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BusinessEmployee</name>
    <message>
        <source>Insert Employee</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Update Employee</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete Employee</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BusinessGroupedItem</name>
    <message>
        <source>Insert grouped item</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Update grouped item</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete grouped item</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BusinessInventory</name>
    <message>
        <source>Insert Inventory Adjustment</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete Inventory Adjustment</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BusinessItem</name>
    <message>
        <source>Insert item</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Update item</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete item</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This item is used by: %1. Please delete it first!</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BusinessJenisItem</name>
    <message>
        <source>Manage item type</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BusinessKey</name>
    <message>
        <source>Update Key</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BusinessMeja</name>
    <message>
        <source>Add table</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Update table</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete table</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BusinessMember</name>
    <message>
        <source>Insert member</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Update member</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete member</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BusinessPayment</name>
    <message>
        <source>Insert Payment</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Update Payment</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete Payment</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>what is still due of the purchases that it pays</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BusinessPenjualan</name>
    <message>
        <source>Add New Order</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit an Order</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete an Order</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save an Invoice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set Kitchen Status</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pay for an Accounts Receivable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Update an Accounts Receivable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pay for Agent Commission</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Update Agent Commission Payment</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete a Sales Order</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete Accounts Receivable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete Agent Commission Payment</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Meja sudah terisi</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Order sudah dibayar tidak bisa dihapus</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>mapper not found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Can not find entity with id: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This order is already paid</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BusinessPrinterConfig</name>
    <message>
        <source>Manage Printer Configurations</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BusinessPrinterType</name>
    <message>
        <source>Add Printer Type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Update Printer Type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete Printer Type</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BusinessPurchaseOrder</name>
    <message>
        <source>Insert PO</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Update PO</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete PO</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Insert PO Detail</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Update PO Detail</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete PO Detail</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is already purchase transaction using this PO, please delete it first: Purchase No: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create transaction failed</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BusinessPurchases</name>
    <message>
        <source>Insert Purchases</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Update Purchases</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete Purchases</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Insert Purchases Detail</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Update Purchases Detail</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete Purchases Detail</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This purchase is paid, please delete the payment first: Payment No: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Can not find entity with id: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create transaction failed</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BusinessSatuan</name>
    <message>
        <source>Manage unit</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BusinessStokAwal</name>
    <message>
        <source>Update Beginning Balance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This item has a beginning balance already, please edit it</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BusinessSupplier</name>
    <message>
        <source>Insert supplier</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Update supplier</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete supplier</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BusinessUser</name>
    <message>
        <source>Create a new user</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Update user</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete user</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Username already exists</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BusinessUserAccess</name>
    <message>
        <source>Update user access</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BusinessUserGroup</name>
    <message>
        <source>Create a new user group</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Update user group</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete user group</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ConclusionPage</name>
    <message>
        <source>The installation is NOT complete: %1 of its steps failed, see the lines above. Install once more when the reason is gone: the program offers it under &quot;Setup&quot; when it starts.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>creating your db...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>restoring your db...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>process exited with code: %1, status: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>createdb started...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The program that creates databases could not be started. Are PostgreSQL&apos;s client programs installed on this machine?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The database %1 was NOT created. The backup goes into the database of that name, if there is one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>pg_restore started...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The program that restores backups could not be started, and nothing was restored. Are PostgreSQL&apos;s client programs installed on this machine?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The backup was NOT restored completely: pg_restore ended with code %1. What it says stands above.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The database %1 cannot be used like this, and the program was not set up for it. &quot;Finish&quot; begins the wizard once more; restore the backup into a new database.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The database %1 holds none of the program&apos;s tables.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Info</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your database has been successfully restored</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The database %1 holds tables. Nothing was restored into them.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ConfigDialog</name>
    <message>
        <source>Configuration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Database</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DB Host :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DB Name :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DB User :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DB Password :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DB Port :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save and Connect</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Setup</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Installation Type :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clean</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Make all tables anew, with the first rows; what they held is lost</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Update</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bring the tables to this version and keep what they hold</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Install</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>General</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Log File :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date Time Format :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Locale (ISO 639) :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show Sidebar on startup</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show Dashboard on startup</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cleaner</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show Live Entities</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kill Live Entities</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Can&apos;t write the settings file: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Info</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please wait until the installation completed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no connection to a database yet. Please save one under &quot;Database&quot; first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Question</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you sure all the windows has been closed?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How numbers and money are written, and in which currency the first items are priced</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 items and %2 open orders are priced in another currency than %3. Amounts of two currencies would be added as if they were one. Finish the open orders first; the items can be restated: the same figures, in %3.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restate the Items</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Leave Them</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep the Locale</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ContactTableModel</name>
    <message>
        <source>ID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Phone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Email</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Conversion</name>
    <message>
        <source>amounts rounded to whole units</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>quantities rounded to whole numbers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>too long for &quot;%1&quot; and cut, in full &quot;%2&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>an amount or a quantity is larger than the program can hold</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ConversionCount</name>
    <message>
        <source>%1 and %2 more</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2 read, %3 written, %4 skipped</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not read to the end: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>skipped, %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>changed, %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ConversionMark</name>
    <message>
        <source>%1, begun %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stands while the data of a former system are brought over</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bringing over the data of the former system (%1) has not come to its end. What has been brought over is complete in itself. Run the converter once more: it leaves alone what is there already and adds the rest.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CupsSlipSpooler</name>
    <message>
        <source>The print server does not answer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The printer %1 cannot be found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The printer %1 takes no jobs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The printer %1 refuses the slip</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The connection to the print server is lost</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The print server did not take the slip</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The print server does not list its printers</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DataMapperAcquisition</name>
    <message>
        <source>error: insert Purchase failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>error: insert Purchase detail failed.<byte value="xd"/>
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>error: update acquisition failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>error: update acquisition detail failed<byte value="xd"/>
</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DataMapperAcquisitionDetailMigration11</name>
    <message>
        <source>add constraint foreign key po_detail_id with table purchase_order_detail</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DataMapperAcquisitionMigration11</name>
    <message>
        <source>add constraint foreign key po_id with table purchase_order</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DataMapperBawaPulang</name>
    <message>
        <source>error: insert take away food detail failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>error: insert take away food detail failed.<byte value="xd"/>
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>error: update take away food detail failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>error: update take away food detail failed<byte value="xd"/>
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>error: delete take away food detail failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>error: delete take away food detail failed<byte value="xd"/>
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>error update status</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DataMapperBusinessMigration11</name>
    <message>
        <source>Add unique constraint to column name</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DataMapperCashFlow</name>
    <message>
        <source>Transferring Funds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Deposit Purchase Order</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Purchases</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Credit Note</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Payment / Pay Bill</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Member Payment</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Agent Commission</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sales</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DataMapperCreditNote</name>
    <message>
        <source>error: insert credit note failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>error: insert credit note detail failed.<byte value="xd"/>
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>error: update credit note failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>error: update credit note detail failed<byte value="xd"/>
</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DataMapperInvoiceBawaPulang</name>
    <message>
        <source>error: insert invoice fast food failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>error: insert invoice fast food detail failed.<byte value="xd"/>
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>error: insert take away invoice detail failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>error: insert take away invoice detail failed.<byte value="xd"/>
</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DataMapperInvoiceFastFood</name>
    <message>
        <source>error: insert fast food invoice failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>error: insert fast food invoice  detail failed.<byte value="xd"/>
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>error: insert fast food detail invoice  failed.<byte value="xd"/>
</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DataMapperInvoiceLink</name>
    <message>
        <source>error: transaction failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This order was billed meanwhile. Nothing was saved.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DataMapperInvoiceMakanDitempat</name>
    <message>
        <source>error: insert dine invoice failed </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>error: insert dine invoice detail failed.<byte value="xd"/>
</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DataMapperKomisiAgen</name>
    <message>
        <source>error: insert agent commision failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>error: insert agent commision  detail failed.<byte value="xd"/>
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>error: update komisi agen failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>error: update agent commision detail failed<byte value="xd"/>
</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DataMapperMakanDitempat</name>
    <message>
        <source>error: insert dine failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>error: insert dine detail failed.<byte value="xd"/>
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>error: update dine failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>error: update dine detail failed<byte value="xd"/>
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>error: delete dine failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>error: delete dine detail failed<byte value="xd"/>
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>error update status failed</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DataMapperOrder</name>
    <message>
        <source>Can not find entity with id: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DataMapperPayment</name>
    <message>
        <source>error: insert Purchase failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>error: insert payment detail:invoice failed.<byte value="xd"/>
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>error: update payment invoice failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>error: update payment invoice failed<byte value="xd"/>
</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DataMapperPenjualanInfo</name>
    <message>
        <source>The items can not be sorted by: %1 %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dine</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fast Food</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Take Away Food</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DataMapperPermissionMigration11</name>
    <message>
        <source>add unique constraint to column permission_name</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DataMapperPiutang</name>
    <message>
        <source>error: insert credit invoice failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>error: insert credit detail invoice failed.<byte value="xd"/>
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>error: update credit invoice failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>error: update credit invoice failed<byte value="xd"/>
</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DataMapperPurchaseOrder</name>
    <message>
        <source>error: insert PO failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>error: insert PO detail failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>error: update PO failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>error: update PO detail failed</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DataMapperPurchaseOrderDetailMigration11</name>
    <message>
        <source>add constraint foreign key purchase_order_id with table purchase_order</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DataMapperStockTakeMigration11</name>
    <message>
        <source>update source_acct_code column to varchar(20)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DatabaseCondition</name>
    <message>
        <source>%1 and %2 more</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restore your last backup once more, into a new database: rename the file %1, start the program, and choose the restore in the wizard that comes up.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The database is not complete: there are tables missing (%1). An installation or the restore of a backup was cut short.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>If nothing was ever sold with it, install it anew under &quot;Setup&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The restore of a backup was cut short: there are tables without a primary key (%1), and rows may be missing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The installation was cut short: nobody has any right yet. Install the database anew under &quot;Setup&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The restore of a backup was cut short before its end: references between tables are missing (%1). The rows are there, but the database does not watch over them: a record that others need can be deleted.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An installation or an update was cut short: the rights of some services are not complete (%1).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Run &quot;Update&quot; under Configuration &gt; General, &quot;Setup&quot;; it keeps what the tables hold. After a first installation that was cut short, with nothing entered yet, install &quot;Clean&quot; instead.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>If sales were made with it, go back to a backup.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The database has to be updated to version %1 before anybody can log in. Close the program on the other workstations and back up the database with the older program. Then run &quot;Update&quot; under &quot;Setup&quot; in the window that opens next, and start the program again.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DatabaseSetup</name>
    <message>
        <source>There is no database %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Installed: %1, version %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The database %1 is empty.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The database %1 holds tables, but no finished installation.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The database %1 already holds tables. With --replace they are made anew, and what they hold is lost.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The installation is not complete; see the lines above.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing is installed in the database %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The update is not complete; see the lines above.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The database %1 on %2, port %3, can not be opened as %4: %5</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The database %1 can not be created: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Can&apos;t write the settings file: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An update to version %1 is due; the command is &quot;update&quot;. Back up the database first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Every update tells this one; nothing is wrong.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DatabaseUpdate</name>
    <message>
        <source>The database is being updated. Please wait...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The update of the database has ended. Please restart the app.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>These steps failed; the log file has the particulars:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Info</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The database is being updated. Please wait until that has ended; the program can be closed then.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DatabaseVersion</name>
    <message>
        <source>The database is of version %1, and this program is of version %2: a newer program has updated the database. Please start the newer program. To go back to this one, restore the backup that was made before the update. Nothing was changed.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DialogAbout</name>
    <message>
        <source>About</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Point of sale and back office for restaurants.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Icons: Fluent System Icons, MIT licence</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Qt %1, PostgreSQL, CUPS</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DialogAgent</name>
    <message>
        <source>Agent Form</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Agent ID :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>-</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Code :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Address :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Phone :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Email :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Account :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Account No. :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Account Name :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Description :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Commission :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter the agent code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This agent code already used, please choose another code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter the agent name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter the address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter the telp no</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter the correct email address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter the number between 0-100</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DialogBackupDB</name>
    <message>
        <source>Database Management</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Backup</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DB Host :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DB Name :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DB User :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DB Password :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DB Port :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Output File :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Browse</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Status :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restore</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Input File :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create a New Database</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Make the database of that name first; the server must not have it yet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set as Active Database</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Make this program work with the database that is named above</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Maintenance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vacuum</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Give the room of deleted rows free again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reindex</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Make all indexes anew; nobody can write meanwhile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>process exited with code: %1, status: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter the ouput file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>dumping your db...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>pg_dump started...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>process exited with code: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>, status:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DB Backup Selesai</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please enter the input file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please enter the database name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no backup file %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing was restored. The database %1 is as it was.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>creating your db...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>createdb started...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The database %1 was not created, and nothing was restored.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The database %1 was not created, the reason stands above.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>restoring your db...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>pg_restore started...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing was restored. The new database %1 is empty.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The backup was restored to the database %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The restore failed, the reason stands above. The new database %1 is not complete: do not work with it. Restore into another new one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The restore failed or left something out, the reason stands above. If there is a database %1, do not work with it: restore into a new one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your database has been successfully restored</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Update DB Config</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you sure, you want to use this database: %1 for this application?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Can&apos;t write the settings file: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please restart the app first!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>vacuuming your db...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>reindexing your db...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>started...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing was done. The database is as it was.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Done</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The database was tidied.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The work was not finished, the reason stands above. No data was changed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The backup %1 was cut off while it was written. The one before it is %2: please take that.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DialogBank</name>
    <message>
        <source>Account Form</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Account ID :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>-</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Code :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cash</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cost of Sales</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Inventory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Accounts Payable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Account Receivable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Commisions and Fees Expense</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter the account code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The code you entered is already in use please use another code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter the account name</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DialogBayarBawaPulang</name>
    <message>
        <source>Customer Payment Form</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invoice No. :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Member :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cash Account :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Description :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save the invoice and print the bill (Ctrl+P)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Done</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The guest has the food: the order is done</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Total Invoice :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do you want to print the invoice ?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do you want to close this order: %1 ?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This order has not been paid yet. Please press the Cancel button to cancel this order</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DialogBayarMakanDitempat</name>
    <message>
        <source>Customer Payment Form</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invoice No. :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Table :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Member :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Agent :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Waitress :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Due Date :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cash Account :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Description :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save the invoice and print the bill (Ctrl+P)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Done</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The guests have left: free the table</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do you want to print this invoice?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you done with this table: %1 ?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please save this invoice first</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select a table</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Info</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please split the invoice first</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you sure you want to split this invoice? Please make sure everything is correct.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This invoice is already paid</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no invoice to split</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Can not find entity with id: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Split: </source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DialogBayarMakanDitempatDetailSplit</name>
    <message>
        <source>Pay Apart</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Code :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Qty :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Split :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Split Group :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Grp %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Info</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Split number should be less than equal to the number of orders</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DialogBayarPiutang</name>
    <message>
        <source>Pay an Invoice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invoice No. :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter the amount paid</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DialogCashFlow</name>
    <message>
        <source>Entry Form</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Trans. No. :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Operator :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Account Code :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Account Name :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Amount :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Description :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DEBET</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CREDIT</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no account with the code: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select account code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter the amount paid</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter valid date</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DialogCashierAndKitchenPrinter</name>
    <message>
        <source>Cashier Printer Form</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Printer :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Auto Cutter :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Notes :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number of Copies :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Columns :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Empty Rows :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This database has no settings of the cashier printer. Please update the database.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print a Test Slip</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print with these settings, saved or not (F8)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F8</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DialogClearTransactions</name>
    <message>
        <source>Clear Transactions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Empties everything that was sold, bought, paid and counted. Items, tables, people, users, rights, numbers and settings stay. A backup is made first; without a good one nothing is cleared.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DB Host :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DB Name :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DB User :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DB Password :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DB Port :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Backup File :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Browse</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Backup and Clear Transactions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Status :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter a valid backup file path</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The program has no connection to its database. Nothing was cleared.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The connection above leads to another database than the one that this program works with. Nothing was backed up, and nothing was cleared.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>dumping your db...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>pg_dump started...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing was cleared.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>process exited with code: %1 , status: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing was cleared: it could not be made sure that the backup is one of the database that this program works with.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The backup can not be read again. Nothing was cleared.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Somebody saved something while the backup was made, and the backup does not hold it: %1. Nothing was cleared. Please close the program at all other workstations and try again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All transactions were cleared. They are in the backup.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What is marked by [error] was not cleared; the reason stands there. Everything is in the backup.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Done. </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>resetting transactions: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> [ok]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> [error]</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DialogConverter</name>
    <message>
        <source>Converter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Source</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Host :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>User :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Password :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Port :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Database :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Target</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Status:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Convert</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 on %2:%3, as %4</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter the source host</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter the source database username</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter the source database password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter the source database port</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter the source database name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Info</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Question</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The data are still being brought over. Do you want to stop? What has been brought over stays, and another run adds the rest.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DialogCreditNote</name>
    <message>
        <source>Credit Note Form</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Supplier :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Address :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Phone :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Description :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Credit Note No. :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Status :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Purchase No. :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Amount Paid :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select a supplier</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add one or more items</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter the Accounts Payable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter the valid Accounts Payable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[F3] From Invoice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[F4] Item</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Full Paid</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unpaid</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Partially Paid</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There should be minimal one item returned</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The purchase is of another supplier</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter the amount paid</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DialogCreditNoteInvoice</name>
    <message>
        <source>Enter the item code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter the purchase price of this item</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter the qty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Returned :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Item from Invoice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bought :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Returned before :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No more than %1 of this item can go back for the purchase</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DialogCreditNotePurchases</name>
    <message>
        <source>Enter the item code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter the purchase price of this item</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter the qty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Qty :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Returned Item</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DialogDataPerusahaan</name>
    <message>
        <source>Company Profile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Company Name * :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Address * :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Phone * :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fax :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tax ID Numbers :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date of Establishment :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Logo :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Load Image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter company name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter company address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter phone no</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Image Files (*.png)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file is no PNG picture: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DialogEmployee</name>
    <message>
        <source>Employee Form</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Employee ID :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>-</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Code :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Address :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Phone :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Email :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter the employee code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This employee code is already in use, please enter another code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter the employee name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter the employee address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter the phone no</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter the valid email address</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DialogFastFood</name>
    <message>
        <source>Fast Food Form</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invoice No. :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Member :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Agent :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Waitress :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cash Account :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Description :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Total Invoice :</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DialogFilterJenisItem</name>
    <message>
        <source>Select Item Types</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DialogInventoryAdj</name>
    <message>
        <source>Inventory Adjustment Form</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Item Code :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Qty on Hand :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Adjust Qty by :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What was counted beyond the quantity on hand; with a minus, what is missing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New Qty :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reason to Adjust :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Other Reason :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>GL Source Account :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Account Name :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Broken</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Loss</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Other</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter the item code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The quantity on hand is not known, please choose the item again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter the qty adjustment of the item</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The new qty is more than can be counted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select GL Source Account</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select a valid GL Source Account</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>On %1 %2 of this item were bought, %3 sold and %4 returned. They count on top of an adjustment of that day, although the quantity on hand that you see includes them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Question</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do you want to date it on %1?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DialogItem</name>
    <message>
        <source>Item Form</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Item detail</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Item ID:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>-</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Class:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stock Item (INV)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Menu / Service (SRV)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Code:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Item Type:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unit:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unit Cost:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sales Price :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Notes:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Grouped:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Yes [Please click Save then enter the Components]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Components</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;GL Accounts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter the item code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This item code is already in use please use another code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter the item name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select the item type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select the item unit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter the unit cost</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter sales price</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter the Sales Account</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter the Inventory Account</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter the Cost of Sales Account</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DialogJenisItem</name>
    <message>
        <source>Item Type Form</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Item Type ID :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>-</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Code :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter the code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This code is already in use please use another code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter the name</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DialogKeyTable</name>
    <message>
        <source>Running Number Form</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Next Id :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Increment By :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number of Zero :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Format :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Description :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter Next Id</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter valid number for Next Id</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter Increment Value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter valid number for Increment value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter Number of zero</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter valid number for Number of zero</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter Format</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter Description</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DialogKeyboard</name>
    <message>
        <source>Keyboard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>4</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>5</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>6</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>7</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>8</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>9</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>0</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>BACKSPACE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Q</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>W</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>E</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>R</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>T</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Y</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>U</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>I</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>O</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>P</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>S</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>D</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>G</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>H</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>J</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>K</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>L</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ENTER</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Z</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>X</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>C</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>V</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>B</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>N</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>M</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>,</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>/</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CLEAR</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SPACE</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DialogKitchenFoodPrinter</name>
    <message>
        <source>Kitchen Printer Form</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kitchen * :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Printer :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Auto Print :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print the slip by itself when an order is sent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Auto Cutter :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number of Copies :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Columns :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Empty Rows :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Item Types :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Browse</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Note: Clear this text box to print all item types</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter the kitchen name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Say what a changed line was</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A changed dish is printed with its quantity in all, and with the quantity and the wish that it had before</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print a Test Slip</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print with these settings, saved or not (F8)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F8</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(no printer: the kitchen&apos;s screen)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A kitchen&apos;s slips are cut as the type of the cashier printer says.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DialogKomisiAgen</name>
    <message>
        <source>Agent Commission Payment Form</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Payment No. :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Agent :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Address :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Phone :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>E-mail :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Commission (%) :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Total :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Expense Account :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reference No. :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Amount Paid :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Less :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Description :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[F3] Sales Invoices</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select an agent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add one or more sales invoices</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter the amount paid for this Invoice no: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please select an Expense Account</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please select a valid Expense Account</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The amount paid less than the total invoice</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DialogLogin</name>
    <message>
        <source>Login</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Username :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Password :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Default login: admin / Qx7!Rm2z</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please enter username and password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invalid login</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DialogMakanDitempat</name>
    <message>
        <source>Please select a table</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DialogMeja</name>
    <message>
        <source>Table Form</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Table ID :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>-</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Code :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter the table code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This table code is already in use please use another code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter the table name</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DialogMember</name>
    <message>
        <source>Member Form</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Member ID :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>-</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Code :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Address :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Phone :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Email :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Expired Date :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Discount :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter the member code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This member code is already used please use another code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter the member name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter the address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>enter the telp no.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter the valid email address</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DialogPayment</name>
    <message>
        <source>Bill Payment Form</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Payment No. :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Supplier :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Address :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Phone :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cash Account :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Total :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Payment Type :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check No. :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reference No. :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Description :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[F3] Purchase Invoices</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[F4] Items</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select a supplier</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please select a valid Cash Accounts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The quantity received for this item: %1 should be more than zero</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter the amount paid for one or more purchase invoices, or add an item</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Purchase invoice no: %1 was paid or changed by somebody else meanwhile. Do you want to pay it all the same?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Question</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DialogPaymentExpenses</name>
    <message>
        <source>Enter the item code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter the purchase price of this item</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter the quantity of this item</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Qty :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pay for an Item</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DialogPaymentInvoice</name>
    <message>
        <source>Pay a Purchase Invoice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Purchase Invoice No. :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter a valid value for the amount paid</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DialogPiutang</name>
    <message>
        <source>Member Payment Form</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Payment No. :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Member :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Receivable Account :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Description :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Total :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Payment Type :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check No. :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reference No. :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[F3] Sales Invoices</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select a member</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter one or more sales invoice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter the amount paid for the invoice no: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please select an Accounts Receivable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please select a valid Accounts Receivable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 on %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Question</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Credit stands on these invoices that no member&apos;s payment accounts for, as of a card at the sale: %1. This payment takes its place, and the sum is due again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do you want to save this payment all the same?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DialogPrinter</name>
    <message>
        <source>Printer Test</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Printer :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Test</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[default]</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DialogPurchaseDetail</name>
    <message>
        <source>Enter the item code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter the purchase price of the item</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter the qty of the item</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Qty :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Purchase Item</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DialogPurchaseDetailPO</name>
    <message>
        <source>Enter the item code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter the purchase price of the item</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter the qty received</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Received :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Item from Purchase Order</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ordered :</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DialogPurchaseOrder</name>
    <message>
        <source>Purchase Order Form</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Supplier :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Address :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Phone :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Description : [F4]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PO No. :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ship Date :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Status :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bank Account No. :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sent to Supplier</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Received</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Order Changed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Closed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Deposit :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select a supplier</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Insert one or more item</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please select an Accounts Payable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please select a valid Accounts Payable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[F3] Items</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DialogPurchaseOrderDetail</name>
    <message>
        <source>Enter the item code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter the purchase price of the item</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter the qty of the item</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Qty :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Purchase Order Item</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DialogPurchases</name>
    <message>
        <source>Purchase/Receive Inventory Form</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Supplier :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Address :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Phone :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Description :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Purchase No. :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Due Date :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invoice No. :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select a supplier</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please add one or more items</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please select an Accounts Payable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please select a valid Accounts Payable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[F3] Purchases</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[F4] from Purchase Order</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please enter a valid qty for this item %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The purchase order is of another supplier</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DialogSatuan</name>
    <message>
        <source>Unit Form</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unit ID :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>-</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Code :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter the unit name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter the unit code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This unit code is already in use please use another code</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DialogSelectInventory</name>
    <message>
        <source>Select an inventory item</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DialogSelectMenu</name>
    <message>
        <source>Select a menu</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DialogSelectPO</name>
    <message>
        <source>Select Open Purchase Order Form</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Purchase Orders</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DialogSelectPurchases</name>
    <message>
        <source>Select Purchases</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Purchases</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DialogSelectSplitInvoice</name>
    <message>
        <source>Select an Invoice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invoices</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DialogSetPercentage</name>
    <message>
        <source>Set the Commission</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invoice No. :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invoice Total :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Commission (%) :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Total Commission :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter a valid value between 0-100</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DialogStokAwal</name>
    <message>
        <source>Beginning Balance Form</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Item Code :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unit Cost :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Qty :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter the item code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter the unit cost</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter the qty of the item</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DialogSubItem</name>
    <message>
        <source>Subitem Form</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unit Cost :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Qty :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter the item code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter the qty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This item is already in the list, please update it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An item cannot be its own component</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is made of this item, it cannot be a component of it</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DialogSupplier</name>
    <message>
        <source>Supplier Form</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Supplier ID :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>-</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Code :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Address :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Phone :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Email :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Account :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Account No. :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Account Name :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Description :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter the supplier code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This supplier code is already in use please use another code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter the supplier name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter the supplier address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter the telp no</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter the valid email address</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DialogTransaction</name>
    <message>
        <source>Transfer Form</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Trans. No. :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Operator :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Source Acc. Code :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Source Acc. Name :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Destination Acc. Code :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Destination Acc. Name :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Amount Paid :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Description :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no account with the code: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter the source account code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter the destination account code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The source account code should not be the same as the destination account code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter amount paid</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter date</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DialogUser</name>
    <message>
        <source>User Form</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>User ID :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Username :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>First Name :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last Name :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Password :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>User Group :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter Username</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter alpha numeric for Username</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Username already exists</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter First Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter Last Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select the user group</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DialogUserAccess</name>
    <message>
        <source>User Access Form</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Group :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Business :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Permission :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Access Type :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>None</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Owner</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DialogUserGroup</name>
    <message>
        <source>User Group Form</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Group ID :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Group Name :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter Group Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This group name already exists</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DocumentNumber</name>
    <message>
        <source>Can not draw a new number for %1. Please try again.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DocumentStep</name>
    <message>
        <source>row %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it has no number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the number exists already</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>too long for &quot;%1&quot; and cut, in full &quot;%2&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>deleted in the former system</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>without a date, %1 took its place</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its lines could not be read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its document was not written</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>EmployeeTextBox</name>
    <message>
        <source>Code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>EntityAcquisition</name>
    <message>
        <source>Fully Paid</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unpaid</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Partially Paid</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>None</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FolderSlipSpooler</name>
    <message>
        <source>The folder %1 cannot be made.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The printer %1 does not exist.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FreshInstallPage</name>
    <message>
        <source>Fresh Installation Details</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Below you should enter your database connection details and administrator account profiles.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hostname:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Username:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Password:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Database Name:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Database Port:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Admin Username:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Admin Password:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How numbers and money are written, and in which currency the first items are priced</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Locale (ISO 639) :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Where the server has no database of this name yet, the program offers to create it</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HelpWindow</name>
    <message>
        <source>Manual</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Forward</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Contents</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find in the page:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Return goes on to the next place (Ctrl+F)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The manual is not here</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Its pages were not installed with the program. They belong into this folder: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>InstallProgressPage</name>
    <message>
        <source>Installing...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please wait until the installation completed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Status:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Every update tells this one; nothing is wrong.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed steps: %1. The particulars are in the log file.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>IntroPage</name>
    <message>
        <source>&amp;Fresh Installation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Introduction</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This wizard will help you install ZavelPOS on your computer. Please select installation type.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Restore from Backup File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lay down empty tables in a database that exists already</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Go on with the data of a backup, in a new database or in an existing one</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>InventoryTextBox</name>
    <message>
        <source>Code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Invoice</name>
    <message>
        <source>Fully Paid</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unpaid</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Partially Paid</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>InvoiceLinesModel</name>
    <message>
        <source>Code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Qty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Split</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Split Group</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unit Price</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Amount</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>InvoiceLinesTab</name>
    <message>
        <source>%1 Items</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ItemTextBox</name>
    <message>
        <source>Code of an item (Ctrl+F)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Item :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Item Code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Item Name</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KorBusinessLogic</name>
    <message>
        <source>create transaction failed</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KorDialog</name>
    <message>
        <source>Error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Question</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do you want to go on?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KorEmptyHint</name>
    <message>
        <source>Nothing to show here.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KorFailure</name>
    <message>
        <source>This code, name or number is already in use.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is still in use, so it can not be deleted.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Something that this refers to has been deleted, or is still in use.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A value is missing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A text is longer than there is room for.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A number is larger than there is room for.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A text holds a character that can not be stored.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The disk of the database server is full. Nothing can be saved until there is room.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The database server is read-only at the moment. Nothing can be saved.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Another workstation was working on the same records at this moment.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The program&apos;s user of the database may not do this.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The database lacks something that this program needs. It may have to be updated.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The database could not do this.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The connection to the database was lost at the very moment of saving, so it is not certain whether it was saved.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please look for it before you save it again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The connection to the database is lost.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please try again in a moment; if that does not help, see whether the database server is running.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Somebody else is working on the same records, and did not let go of them: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please try again in a moment.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KorInstaller</name>
    <message>
        <source>Initializing...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Creating/Updating tables...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Inserting initial datas...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Registering permissions...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Done. Please restart the app</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This database is being installed or updated at this very moment, from here or from another workstation. Please wait until that has ended.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The connection to the database was lost on the way, and steps failed. Please run it again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> installed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> error: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tables or columns of the new version could not be made. The database keeps the version that it had; please run the update again.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KorNumberEdit</name>
    <message>
        <source>&quot;%1&quot; is no number here, please write it like %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please enter a number</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KorServerWitness</name>
    <message>
        <source>Another program</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, since %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KorTextBoxExtender</name>
    <message>
        <source>No result</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KorWaitingPanel</name>
    <message>
        <source>Waiting for the server...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop waiting</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>or press Esc</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Working on the same records: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LedgerTotals</name>
    <message>
        <source>Total Debit :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Total Credit :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ending Balance :</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LinesPage</name>
    <message>
        <source>Add</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add lines, one after the other (F12)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F12</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change the selected lines (F2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Take the selected lines off (Del)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Del</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ListPage</name>
    <message>
        <source>Filter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Part of a code or a name (Ctrl+F)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search (Return)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Return</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add (F12)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F12</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit the selected rows (F2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Refresh (F5)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F5</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete the selected rows (Del)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Del</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close (Esc)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Esc</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Zavel POS</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Master &amp;Data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invento&amp;ry</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Purchases</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sales</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Agent Commissions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cash Flow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reports</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>C&amp;onfiguration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Printer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Language</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tool Bar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tables</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alt+M</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Users</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alt+U</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>General</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alt+C</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>User Groups</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alt+G</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>User Access</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alt+A</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Company Profile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alt+P</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Item Types</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alt+J</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Units</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alt+S</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Suppliers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alt+L</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Members</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alt+E</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Agents</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alt+N</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Accounts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alt+B</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Items</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alt+I</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Beginning Balances</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alt+K</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Inventory Adjustments</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alt+D</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Purchase Orders</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alt+O</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Purchases / Receive Inventory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alt+V</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Credit Notes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alt+T</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pay Bills</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alt+Y</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Employees</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alt+W</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Item History</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alt+X</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Running Numbers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alt+Q</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dine</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ctrl+M</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fast Foods</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ctrl+O</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Take Away Foods</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ctrl+P</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Incoming Orders </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ctrl+K</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Customer Payments</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ctrl+L</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Member Payments</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ctrl+I</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Agent Commission Payments</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ctrl+D</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ctrl+G</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>General Journal Entries</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alt+F</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Transferring Funds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alt+H</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cashier Printer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alt+Z</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kitchen Printers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Master Data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Inventory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dashboard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show Sidebar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show Dashboard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Database Management</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Optimize Database</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Converter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear Transactions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>English</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Current Language changed to %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not load the plugin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Username: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>can not load tab: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The report can not be shown, because no plug-in with reports is installed: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>.<byte value="xd"/>
Please fill the db connection fields and install the initial data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Can&apos;t open settings file: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed open db. Host: %1, dbname: %2, dbuser: %3, dbpass: %4,  port: %5. %6</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Table: Config corrupted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Info</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connected!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Question</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do you want to open the converter now? Ignore: do not tell this again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Manual</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Printed Slips</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ctrl+R</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MasterSteps</name>
    <message>
        <source>a percentage outside of 0 to 100 became 0</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the unit&apos;s name was taken, its code has been put behind it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>row %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it has no code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the code exists already</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>too long for &quot;%1&quot; and cut, in full &quot;%2&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>without a name, the code took its place</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; was missing and has been added (%2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Without type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Without unit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it has no name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the company profile has been entered already</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Contact: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Discount in the former system: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MemberTextBox</name>
    <message>
        <source>Code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MoneyEdit</name>
    <message>
        <source>The amount must not be negative</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The amount is too large, the largest is %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 will be stored as %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>OrderBoard</name>
    <message>
        <source>%1 Items</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Can not find entity with id: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Info</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This order is billed already: %1. What you change now is not on the bill. Press Pay afterwards.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>OrderBoardModel</name>
    <message>
        <source>Status</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Menu</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>OrderDialog</name>
    <message>
        <source>Table :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Code or name of a table; another table moves the order there</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Member :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Code or name of a member</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Guest :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Total</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[F3] Menu</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please select a member</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add one or more menu</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The total of this order is too large. Please take it as two orders</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>OrderItemPicker</name>
    <message>
        <source>Item Type :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Code :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Code or name; Return finds it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unit Price :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Qty :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Amount :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Notes :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter the item code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please enter a valid item code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter the qty of the item</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This amount is too large for one line. Please enter a smaller qty</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>OrderLinesModel</name>
    <message>
        <source>Code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Qty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unit Price</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Amount</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Status</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Description</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>OrderLinesTab</name>
    <message>
        <source>Add Menu</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add menu items, one after the other (F12)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F12</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add Inventory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add stock items, one after the other (F11)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F11</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change the selected lines (F2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Take the selected lines off the order (Del)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Del</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This item: %1 is already exist in the list. Do you want to update it with this data?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Question</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The items are priced in %1, and the total adds them as if they were one currency. The owner can restate the items under Configuration &gt; General.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do you want to save it all the same?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>OrderPaymentDialog</name>
    <message>
        <source>Can not find entity with id: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2, by %3 at %4</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This order was billed meanwhile: %1. Nothing was saved.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do you want to open that bill?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Question</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This order has changed since it was billed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Take Off the Bill</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add to This Bill</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Make a Second Bill</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Leave the Bill</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do you want to end this order all the same?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the status of its order</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Later, press OK in this form again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>reading it again</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>OrderText</name>
    <message>
        <source>Telp : </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Total</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Order Cancelled.
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Taken back:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Moved from table %1 to table %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>was %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>was %1, %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PaperCut</name>
    <message>
        <source>This type cuts nothing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This type&apos;s cut lacks its end: some printers wait for it and swallow the first letters of the next slip.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cuts the paper and leaves a point that holds it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cuts the paper through.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Feeds the paper to the knife and cuts it through.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Feeds the paper to the knife, cuts it and leaves a point that holds it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sends the bytes %1 to cut the paper.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PartPaymentDialog</name>
    <message>
        <source>Amount Due :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Amount Paid :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remaining :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This amount is too large. Please check the figures.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Question</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The amount paid is larger than the amount due. Do you want to book all of it?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PayeeDialog</name>
    <message>
        <source>none</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PaymentDialog</name>
    <message>
        <source>[F3] Menu</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save the invoice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add one or more menu</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An amount is larger than an invoice can hold. Please check the figures.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Question</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PaymentMoneyPane</name>
    <message>
        <source>Total :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sub Total :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Discount :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tax         :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Services :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invoice Total :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[F9] Amount Paid at Sale :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[F10] Other Applied Credit :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Net Due :</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PaymentParties</name>
    <message>
        <source>There is no record with the code: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please select a Cash Accounts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please select a valid Cash Accounts</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PaymentStep</name>
    <message>
        <source>there is no supplier &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Still owed to the supplier then: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>none of its purchases is there</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its lines do not add up to what was paid</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no such purchase</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PaymentType</name>
    <message>
        <source>Cash</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Electronic Funds Transfer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Electronic funds transfer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Checks</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PercentEdit</name>
    <message>
        <source>The percentage must not be negative</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is not between 0 and 100</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PosInstaller</name>
    <message>
        <source>POS Data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> error: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cash on Hand</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Checking Account</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cost of Sales</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Inventory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Accounts Payable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Account Receivable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Commisions and Fees Expense</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sales of Materials</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Thank You</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PrinterConfigDialog</name>
    <message>
        <source>Yes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose %1 instead.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PurchaseStep</name>
    <message>
        <source>the purchase order %1 was not found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no supplier &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reference: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bank: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Account No.: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no such item</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the lines do not add up to the sub total</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PurchasingDialog</name>
    <message>
        <source>An amount is larger than a document can hold. Please check the figures.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The account is not of the type Cash: the day&apos;s close does not count the amount paid.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PurchasingLineDialog</name>
    <message>
        <source>Code :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unit Price :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Qty :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Discount :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Amount :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This quantity is too large for one line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please enter a valid item code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The discount should be between zero and the amount of the line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This amount is too large for one line. Please enter a smaller qty</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PurchasingLinesModel</name>
    <message>
        <source>Code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unit Price</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Amount</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PurchasingLinesTab</name>
    <message>
        <source>This item: %1 is already in the list. Do you want to update it with this data?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PurchasingListTab</name>
    <message>
        <source>From Date :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>To Date :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Supplier :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In :</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PurchasingTotalsPane</name>
    <message>
        <source>Sub Total :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Discount :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tax         :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Grand Total :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Amount Paid at Purchase :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Other Payments and Credits :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Net Due :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Account Payable :</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QuantityEdit</name>
    <message>
        <source>Please enter a whole number from %1 to %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please enter a whole number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 will be stored as %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ReplaceQuestion</name>
    <message>
        <source>Question</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The database %1 is in use already. A clean installation makes all tables anew, and everything that they hold is lost. Do you want that?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A further workstation of the restaurant uses it as it is.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Use It As It Is</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ReportBill</name>
    <message>
        <source>The bill is saved. Only its slip is missing.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ReportTestSlip</name>
    <message>
        <source>Test slip of the printer %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Columns: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This line is bold.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The paper is cut below.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The paper is not cut.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Reports</name>
    <message>
        <source>Cash Flow Reports</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Master Data Reports</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Purchases Reports</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type of sale:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dine in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fast food</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Take away</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cashier:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Item type:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Item:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Member:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Supplier:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Agent:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Waitress:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Account:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sales by day</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sales</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Subtotal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Discount</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tax</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Service</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Total</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Average sale</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sales Reports</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Inventory Reports</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Total %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Others</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This month</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Today</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This week</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last week</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last month</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This year</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last year</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Five years</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Other period</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Period:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read the report</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop reading</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preview</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>See the pages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print the report</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PDF</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save the pages as a file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CSV</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save the rows for a spreadsheet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Press Show (F5) to read the report.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The report could not be read. %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reading... %1 rows, %2 s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing was found for these questions.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only the first %1 rows are shown, and the totals are theirs alone. Please ask for a shorter period.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 rows, read on %2 in %3 s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saved as %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file %1 could not be written.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Printed %1 by %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The report could not be printed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Day&apos;s close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What each cashier took on the day. Expected cash is the cash of the sales without the change, the cash from members, and what else came into and left accounts of the type Cash; the change in the drawer at opening comes on top. Credit is what the sales of the day had settled otherwise, and later by members.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Day:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cashier</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not known</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Account</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cash</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Credit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Still due</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Members: cash</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Members: transfer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Members: check</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Other in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paid out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Expected cash</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opening balance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Member payment</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Returned to supplier</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Purchases</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Purchase order</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bill paid</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Agent commission</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Transfer of funds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Journal entry</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Closing balance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Debit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kind</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ledger by account</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Every movement of each account with its balance, as in the general journal: documents with their whole total, whatever was paid of it, and none without an account.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Description</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Balance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Entered by</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Account balances</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What each account had at the beginning of the period, what came and went, and what it had at the end, reckoned from all documents since the first as the general journal has them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Movements</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Money in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Money out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In less out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Money in and out by kind</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The movements of the general journal by their kind. A transfer counts on both of its accounts; choose an account to see one side alone.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Money in and out by day</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The movements of the general journal day by day, and the balance at the end of each day since the first document.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Item</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Item type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Supplier</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Notes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>User</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Status</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fully paid</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unpaid</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Partially paid</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Class</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stock</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Menu or service</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Items and prices</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Every item with its unit cost, the price of its last purchase, and the margin that its sales price leaves over the unit cost.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Class:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unit cost</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last bought at</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last purchase</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sales price</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Margin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Margin %</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Items and accounts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The accounts that each item&apos;s sales, stock and cost are booked on.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sales account</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Inventory account</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cost of sales account</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Components of grouped items</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What each grouped item is made of, and what that costs at the components&apos; unit costs.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Grouped item</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Component</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cost</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Accounts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The ledger&apos;s accounts by their types.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Accounts payable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Accounts receivable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Income</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Expense</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Assets</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Other current liabilities</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Inventory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cost of sales</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type of account:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type of account</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Active</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Yes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tables</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The tables of the restaurant.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stock items</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Menu and service items</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Items</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Item types</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The kinds of items, and how many items are of each.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Units</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The units that items are counted in, and how many items use each.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Age on:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open orders</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Orders that are not received, closed or cancelled, with what has come of each item so far. Late is counted from the ship date.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ship date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Days late</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sent to supplier</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Changed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ordered</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Received</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>To come</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Worth to come</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Returns to suppliers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What went back to suppliers, item by item. Cancelled returns are not in it; they moved nothing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Purchase No.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Price each</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unpaid purchases</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Every purchase that is not fully paid today, the first due first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invoice No.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Due date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paid</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Net due</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Payables by age</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What is still to be paid to each supplier today, by the days that have gone since it was due.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not yet due</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1-30 days</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>31-60 days</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>61-90 days</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Over 90 days</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bills paid</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What was paid to suppliers for earlier purchases and for expenses. What was paid with the purchase itself is not in it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paid by</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Electronic funds transfer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Expenses</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Code or name:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Phone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>E-mail</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Account No.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Account holder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Suppliers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The suppliers with their bank accounts, and what is to be paid to each today.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only those to be paid</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>To be paid</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Members</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The members with their discounts, and what each owes today on invoices that are not fully paid.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only those who owe</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Expires</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open invoices</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Owes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Agents</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The agents with their commissions and bank accounts.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Commission</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Employees</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The employees who serve the tables.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>User group:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>User group</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Users</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Who can log in, and in which group.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Created</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rights by group</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What each group of users may do. Own records are those that the user entered.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>None</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Own records</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All records</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Right:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Subject</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Granted on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Purchases by day</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What was bought on each day, paid or not. Returns are not taken off.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Purchases by supplier</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What was bought from each supplier, and what of it is still to be paid. Returns are not taken off the totals.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Average</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Purchases by item</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What was bought of each item at the prices of the lines: discount and tax of the whole purchase are not in it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lowest price</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Highest price</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Average price</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>List of purchases</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Every purchase with what was paid at once, what was paid or credited later, and what is still due.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Status:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paid later</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Price history by item</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What each supplier asked for an item from purchase to purchase. The change is against the item&apos;s purchase before, from whomever it was.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Net price</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Commissions earned</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The invoices that agents brought, with the commission at the percentage that the agent has today, and what was paid for it. Percentages of former times are known only where the commission was paid.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not yet paid</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Agent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Percent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paid on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Amount paid</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Commissions paid</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The payments to agents, by the day of the payment. Amount paid is what was handed over: more than the commission means change came back.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Payment No.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invoices</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reference</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invoice number missing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Order without its invoice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invoice without its order</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Payment for a deleted invoice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invoice saved again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Credit unlike the payments</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Large discount</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ended with money due</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dated on another day</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exceptions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Where to look twice. The data do not tell who deleted an invoice or when, nor what stood in it: a gap in the numbers or an order without its invoice is all that remains, and a gap may also come from running numbers that were changed. Of a changed invoice they tell who changed it last, but not what. A deleted member payment is seen only while another one of the same invoice stands.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kind:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Discounts from percent:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Document</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Guest or table</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Amount</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saved by</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saved</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Changed by</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Guest</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Member</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No member</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Each invoice of the period, as in the list of all sales. For years of sales the reports by month are the better choice.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Waitress</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Discounts given</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The invoices with a discount, by the cashier who saved them first. The percentage is of the subtotal, before tax and service.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>From percent:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Until:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The invoices up to the day that are not fully paid today. Days late are counted from the due date, or from the sale where there is none.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Receivables by age</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What members and guests owe on the invoices up to the day, as it stands today, by the days since it was due.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 to 30 days</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>31 to 60 days</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>61 to 90 days</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Share</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sold</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sales by item</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What was sold of each item, at the prices of the lines: discount, tax and service of the whole invoice are not in it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sales by item type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What the kinds of items bring, at the prices of the lines: discount, tax and service of the whole invoice are not in it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Different items</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Margin by item</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What remains of the sales of each item after its cost: the price of its last purchase up to the end of the period, before discounts of that purchase, or the item&apos;s unit cost where none was made. Discounts of whole invoices are not in it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cost each</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sales by type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dine in, fast food and take away side by side.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sales by table</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What each table brought, at the table where the guests paid. Each part of a divided bill counts as a sale.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Table</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sales by waitress</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What was sold under each waitress&apos;s name. Take-away has none.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No waitress</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sales by cashier</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Who saved the invoices first. Whoever changes one later is told on the page of exceptions.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sales by member</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What each member spent, and what is still due of it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sales by agent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What the guests spent whom an agent brought. Take-away has none.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Days</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Total per day</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sales by hour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>At which hours of the day the invoices were saved first, which is when the guests paid rather than when they came. Days counts the days of the period with any sale.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sales by weekday</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What each weekday brings. Days counts the days with a sale, so that a holiday does not lower the total per day.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Weekday</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Monday</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Friday</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What was invoiced on each day, paid or not. Cash is what was received at the sale less the change; credit is what was settled otherwise, by members later too.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sales by week</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What was invoiced in each week from Monday to Sunday. The first and the last week count the days of the period alone.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Week from</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sales by month</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What was invoiced in each month. The first and the last month count the days of the period alone.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Month</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Movements by item</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What there was of each item before the period, what came and went in it, and what was left. Counted is what counts of the storeroom changed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Before</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bought</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Returned</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Counted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Movements by day</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Every purchase, return and adjustment of an item, and what was sold of it on each day.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Purchase</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Adjustment</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Return</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Movement:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Movement</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No. or reason</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Adjustments by reason</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What counts of the storeroom took away or added, why, and who entered it; the worth is at the price of the last purchase.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>User:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reason</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>After</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Worth</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Usage against purchases</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What was bought of each item, less what went back, beside what was sold of it, alone or as a component of grouped items. Much more bought than used is waste, loss or a growing stock. Components do not change the stock on hand.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In grouped items</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Used</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not used</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Used %</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>On:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>On hand</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stock on hand</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What there was of each stock item at the end of the day, and its worth at the price of the last purchase until then, or at the item&apos;s unit cost where none was made.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quantity:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>More than zero</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zero or below</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Negative stock</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Items of which more was sold than there can have been: a purchase or a count was not entered, or a sale was entered on the wrong item.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last counted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Idle stock</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What there is of items that were neither sold nor bought for so many days: money that lies in the storeroom.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Idle days:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last sold</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Idle days</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ordered, not billed</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RestoreInstallPage</name>
    <message>
        <source>Restore from Backup File Installation Details</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Below you should enter your database connection details and backup file path.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hostname:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Username:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Password:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Database Port:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Browse</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Backup File Path:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restore to Database:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set it where the server has no database of this name yet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create a New Database:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Backup File (*.bak)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Question</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nobody answers on port %1. %2 Do you want to use that one?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RestoreQuestion</name>
    <message>
        <source>Question</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The database %1 holds %2 tables already. A backup is not restored into them: it would be mixed into what they hold, and spoil their numbering.

Do you want to replace the database? The backup goes into a new database %1, and the one of now stays on the server under the name %3. Nobody may work with it meanwhile.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 can not be read as a backup. Nothing was restored, and the database is as it was.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The database %1 was not replaced: it is as it was, and nothing was restored. While anybody works with it, this program too, it can not be replaced. Restore into a new database instead, and make that one the active one afterwards.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The former database is kept under the name %1.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SelectDocumentTab</name>
    <message>
        <source>Search</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 Items</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ServiceTextBox</name>
    <message>
        <source>Code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SettlementDialog</name>
    <message>
        <source>The total is larger than a payment can hold. Please check the figures.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SettlementTab</name>
    <message>
        <source>%1 Items</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SetupOptions</name>
    <message>
        <source>install, update or status</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show this text.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The database server (localhost).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Its port (6666).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The database user (postgres).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The database (ZavelPOS).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>install: create the database where there is none.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>install: make the tables anew where there are some. What they hold is lost.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>install: the administrator&apos;s user name (admin).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>install: the administrator&apos;s password; better in the environment.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>install: how numbers and money are written, en_US or id_ID (en_US).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>install: how dates are shown (d MMM yyyy).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>install: let the program on this workstation use the database.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The settings file to write (the program&apos;s own).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Say one of: install, update, status (--help tells more).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is no port: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is no locale: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Makes or updates the database of Zavel POS.
The database password is taken from ZAVEL_DB_PASSWORD, the administrator&apos;s from ZAVEL_ADMIN_PASSWORD.
Exit status of install and update: 0 when every step was done, 1 otherwise, 2 for wrong arguments.
Exit status of status: 0 installed, 3 reachable but not installed, 4 installed and of a newer version than this program, 1 otherwise.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SlipQueue</name>
    <message>
        <source>It is not known whether it was printed: the print server does not answer.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not printed before the program ended</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The slip cannot be read any more.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>COPY %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SlipSpooler</name>
    <message>
        <source>A slip is being printed already.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No printer is chosen.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The printer is not open.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SlipStatus</name>
    <message>
        <source>1 slip waiting: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 slips waiting: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 slip was not printed: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 slips were not printed: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No printer is chosen yet: slips are kept and shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Slips are printed, but they cannot be kept</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SlipWords</name>
    <message>
        <source>Bill</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kitchen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Order recap</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Test</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, copy %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Printed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Given back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No printer</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SourceLinesTab</name>
    <message>
        <source>Info</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please select a supplier</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>StockDocumentService</name>
    <message>
        <source>the rows of its goods on the stock card</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SupplierTextBox</name>
    <message>
        <source>Code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TabAgent</name>
    <message>
        <source>Agents</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you sure you want to delete this agent: %1 ?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Can not find entity with id: %</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TabAllKomisiAgen</name>
    <message>
        <source>Agent Commissions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>From Date :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>To Date :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Status :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fully Paid</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unpaid</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Agent :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pay</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pay the agent, or open the payment that did (F2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Can not find invoice of this agent</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TabBank</name>
    <message>
        <source>Accounts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you sure you want to delete this account: %1 ?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TabBawaPulang</name>
    <message>
        <source>Take Away Foods</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Status</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search (Return)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Return</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add New Order</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Take a new order (F12)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F12</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit Order</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change the selected orders (F2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pay</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Take the payment of the selected orders (F9)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F9</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Refresh (F5)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F5</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel Order</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel the selected orders (Del)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Del</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close (Esc)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Esc</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paid</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Partially Paid</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Waiting for the order</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Take Away - Add a new order</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Take Away - Edit Order</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you sure you want to delete this order? order id: %1 </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Order %1 already has an invoice. Please finish the payment, or press Done in the payment form</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please select an order</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TabBayarMakanDitempatDetail</name>
    <message>
        <source>Pay apart</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Split this invoice among the guests</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Split</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Take a quantity off the selected lines</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove Split</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Put back what was taken off the selected lines</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Process Split</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save, and take the money of each group</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TabCashFlow</name>
    <message>
        <source>General Journal Entries</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>From Date :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Account :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DEBET</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CREDIT</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>To Date :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Account Name :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please open it from Purchases menu or Sales menu</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Can not find entity with no: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you sure, you want to delete this entity with no: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TabCreditNote</name>
    <message>
        <source>Credit Notes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Status :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Purchase No.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Supplier Code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invoice No.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you sure you want to delete Credit Note with No: %1 ?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Can not find Credit Note with id: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TabCreditNoteInvoice</name>
    <message>
        <source>Select Purchases</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Take the lines of a purchase over (F12)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Can not find entity with id: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TabCreditNotePurchases</name>
    <message>
        <source>This item: %1 is already exist in the list. Do you want to update it with this data?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TabDaftarPenjualan</name>
    <message>
        <source>Customer Payments</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>From Date :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invoice No. :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Status :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fully Paid</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Partially Paid</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unpaid</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>To Date :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Guest :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Payment :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cash</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Other</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Table :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Member :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Waitress :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Agent :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Empty the filters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you sure, you want to delete this sales invoice: %1 ?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TabDashboard</name>
    <message>
        <source>Dashboard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>about:blank</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TabEmployee</name>
    <message>
        <source>Employees</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you sure you want to delete this employee: %1 ?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TabFastFood</name>
    <message>
        <source>Fast Food</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>From Date :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>To Date :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Status :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fully Paid</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Partially Paid</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unpaid</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Waitress :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add New Order</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit Order</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Can not find entity #</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Question</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do you want to print this invoice ?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you sure, you want to delete this invoice: %1 ?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Less :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change :</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TabGLAccounts</name>
    <message>
        <source>GL Sales Account :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>GL Inventory Account :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>GL Cost of Sales Account :</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TabInventoryAdj</name>
    <message>
        <source>Inventory Adjustments</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you sure you want to delete this item: %1 ?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The adjustment is saved. Please do not enter it again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its row on the stock card</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Later, delete the adjustment and enter it anew.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The adjustment is deleted.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>taking its row off the stock card</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TabItem</name>
    <message>
        <source>Items</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Item Type:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filter:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you sure you want to delete this item: %1 ?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TabJenisItem</name>
    <message>
        <source>Item Types</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you sure you want to delete this item: %1 ?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TabKartuStok</name>
    <message>
        <source>Item History</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>From Date :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>To Date :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Item :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Total In :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saldo :</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TabKeyTable</name>
    <message>
        <source>Running Numbers</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TabKitchenPrinter</name>
    <message>
        <source>Kitchen Printers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Where to search</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kitchen Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Printer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you sure you want to delete this kitchen: %1 ?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TabKomisiAgen</name>
    <message>
        <source>Agent Commission Payments</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>From Date :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>To Date :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Agent :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Code :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you sure you want to delete Payment with No: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Can not find Payment with id: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TabKomisiAgenDetail</name>
    <message>
        <source>Set Percentage</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove Invoice</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TabMakanDitempat</name>
    <message>
        <source>Dine</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Code or name of a table (Ctrl+F)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search (Return)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Return</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add New Order</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Take an order for the selected tables (F12)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F12</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit Order</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change the orders of the selected tables, or move them (F2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pay</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Take the payment of the selected table (F9)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F9</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print the order of the selected table (F8)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F8</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Refresh (F5)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F5</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel Order</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel the orders of the selected tables (Del)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Del</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close (Esc)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Esc</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This table: %1 is empty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Table %1 is empty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dine - Add a new order</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dine - Edit Order</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you sure you want to delete order of table: %1 ?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Table %1 is already have an invoice. Please finish the payment or click Finish button on Payment Dialog</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please select a table</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TabMeja</name>
    <message>
        <source>Tables</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you sure you want to delete this table: %1 ?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TabMember</name>
    <message>
        <source>Members</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you sure you want to delete this member: %1 ?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TabPayment</name>
    <message>
        <source>Pay Bills</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Payment Type :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Purchase Invoice No.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Supplier Code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check No</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you sure you want to delete purchase invoice with No: %1 ?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Can not find purchase invoice with id: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TabPaymentInvoice</name>
    <message>
        <source>Pay Invoice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pay All Invoices</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TabPesananMasuk</name>
    <message>
        <source>Incoming Orders</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Code or name of a table</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Code or name of a table; orders to take away stay in the list (Ctrl+F)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Refresh (F5)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F5</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close (Esc)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Esc</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print the selected orders on the kitchens&apos; slips (F8)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F8</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print Addition</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print the new and changed lines of the selected orders (F7)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F7</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What the kitchen says about the selected lines</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Send Status</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write the status on the selected lines (F9)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F9</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Out of Stock</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Processed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not Enough Stock</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>These are the orders of %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New ones cannot be read at present. This page tries again by itself.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 Items</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TabPiutang</name>
    <message>
        <source>Member Payments</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>From Date :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>To Date :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Payment Type :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Member :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you sure you want to delete Payment with No: %1 ?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Can not find Payment with id: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>what is still due of the invoices that it pays</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TabPiutangInvoice</name>
    <message>
        <source>Pay Invoice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pay All Invoices</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TabPrintedSlips</name>
    <message>
        <source>Printed Slips</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search (Return)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>From Date :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>State :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>To Date :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kind :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Printer :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The slip</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Refresh (F5)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close (Esc)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print Again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print the selected slip once more, marked as a copy (F8)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print on :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 Slips</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No slip is selected.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The slip is empty, or cannot be read.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TabPurchaseDetailPO</name>
    <message>
        <source>Select PO</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Take the lines of a purchase order over (F12)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Can not find PO with id: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TabPurchaseOrder</name>
    <message>
        <source>Purchase Orders</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Status :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sent to Supplier</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Received</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Changed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Closed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PO No.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Supplier Code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you sure you want to delete Purchase Order with No: %1 ?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Can not find PO with id: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TabPurchases</name>
    <message>
        <source>Purchases/Receive Inventory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Status :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Purchase No.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Supplier Code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invoice No</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you sure you want to delete Purchase with No: %1 ?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Can not find PO with id: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You have received all items from Purchase Order No: %1. Do you want to close this Purchase Order now?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Info</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the closing of Purchase Order No: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Later, close it in the form of the purchase order.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TabSatuan</name>
    <message>
        <source>Units</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you sure you want to delete this unit: %1 ?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TabSelectPurchases</name>
    <message>
        <source>All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Status :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Purchase No.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invoice No.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TabStokAwal</name>
    <message>
        <source>Beginning Balances</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TabSubItem</name>
    <message>
        <source>Components</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you sure you want to delete this sub item: %1 ?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TabSupplier</name>
    <message>
        <source>Suppliers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you sure you want to delete this supplier: %1 ?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TabTransfer</name>
    <message>
        <source>Transferring Funds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>From Date :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>To Date :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Can not find transaction with id: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Can not find transaction with no: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you sure, you want to delete transaction with no: %1 ?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TabUser</name>
    <message>
        <source>Users</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you sure, you want to delete user: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TabUserAccess</name>
    <message>
        <source>User Access</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Info</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Application needs to be restarted to take the effect</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Group :</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TabUserGroup</name>
    <message>
        <source>User Groups</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you sure, you want to delete user group: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Can not delete user groupd with id: %1, it is still in use</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TableModelAccountingTransaction</name>
    <message>
        <source>Date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Trans No.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Source Acc. Code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Source Acc. Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Destination Acc. Code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Destination Acc. Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Amount Paid</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Description</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Operator</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TableModelAllKomisiAgen</name>
    <message>
        <source>Invoice No.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Agent Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invoice Total</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>% Commision</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Total Commision</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Status</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TableModelBank</name>
    <message>
        <source>ID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TableModelBawaPulang</name>
    <message>
        <source>Id</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Guest</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Waiting for the menu</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Served</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Empty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paid</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Partially Paid</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unpaid</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TableModelCashFlow</name>
    <message>
        <source>Date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Account Code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Account Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Debit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Credit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Trans. No.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Description</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Operator</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TableModelCreditNote</name>
    <message>
        <source>Date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Credit Note No.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Supplier</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Status</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Total</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Amount Paid</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TableModelCreditNoteInvoice</name>
    <message>
        <source>Qty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Returned</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Discount</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TableModelCreditNotePurchases</name>
    <message>
        <source>Qty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Discount</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TableModelDaftarPenjualan</name>
    <message>
        <source>No</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>User</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Member Code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Guest Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Waitress</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invoice Total</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cash</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Credit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Net Due</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Status</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TableModelFastFood</name>
    <message>
        <source>Invoice No.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Guest</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Waitress</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Total</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Amount Paid</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Status</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Menu</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TableModelFastFoodDetail</name>
    <message>
        <source>None</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TableModelGroupedItem</name>
    <message>
        <source>ID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Qty</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TableModelInventoryAdj</name>
    <message>
        <source>Code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Old Qty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Adjust Qty by</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New Qty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reason to Adjust</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TableModelItem</name>
    <message>
        <source>ID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Class</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unit Cost</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sales Price</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stock</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unit</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TableModelJenisItem</name>
    <message>
        <source>ID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TableModelKartuStok</name>
    <message>
        <source>Trans No.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saldo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Purchase</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sales</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Adjustment</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Credit Note</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Begining Balance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>None</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TableModelKeyTable</name>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Next No</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Increment By</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number of Zero</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Format</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Description</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TableModelKitchenPrinter</name>
    <message>
        <source>Kitchen Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Printer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Item Type Code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[ALL]</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TableModelKomisiAgen</name>
    <message>
        <source>Code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Agent Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Total Commision</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Total Amount Paid</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Net Due</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Description</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TableModelKomisiAgenDetail</name>
    <message>
        <source>Invoice No.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Guest</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invoice Total</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>% Commision</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Total Commision</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TableModelMakanDitempat</name>
    <message>
        <source>Table Code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Table Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Guest</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>From Table</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Waiting for the menu</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Served</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Empty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fully Paid</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Partially Paid</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Done</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unpaid</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TableModelMeja</name>
    <message>
        <source>ID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TableModelPayment</name>
    <message>
        <source>Payment No.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Supplier</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Total Payment</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TableModelPaymentExpenses</name>
    <message>
        <source>Discount</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TableModelPaymentInvoice</name>
    <message>
        <source>Purchase Invoice No.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Due Date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Total</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Amount Due</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Amount Paid</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The supplier&apos;s invoice no. : %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TableModelPiutang</name>
    <message>
        <source>No.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Member Code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Member Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Total Amount Paid</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Payment Type</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TableModelPiutangInvoice</name>
    <message>
        <source>Invoice No.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invoice Total</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Net Due</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Amount Paid</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TableModelPrintedSlips</name>
    <message>
        <source>Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kind</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Table/Guest</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Printer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>User</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>State</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TableModelPurchaseDetail</name>
    <message>
        <source>Qty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Discout</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TableModelPurchaseDetailPO</name>
    <message>
        <source>Ordered</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Received</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Discount</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TableModelPurchaseOrder</name>
    <message>
        <source>PO No.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ship Date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Supplier</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Status</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Total</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sent to supplier</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Received</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Changed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Closed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>None</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TableModelPurchaseOrderDetail</name>
    <message>
        <source>Qty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Discount</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TableModelPurchases</name>
    <message>
        <source>Date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invoice No.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Supplier</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Due Date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Status</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invoice Total</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Net Due</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Purchase No. : %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TableModelQueue</name>
    <message>
        <source>Code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Take Away:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Elapsed Time</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TableModelQueueMenu</name>
    <message>
        <source>Code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Qty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Status</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Description</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Created</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Updated</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TableModelSatuan</name>
    <message>
        <source>ID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Code</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TableModelSelectPurchases</name>
    <message>
        <source>Purchase No.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invoice No.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Status</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invoice Total</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Net Due</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TableModelSelectSplitInvoice</name>
    <message>
        <source>Invoice No.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invoice Total</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Amount Paid</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Credits</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Net Due</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Status</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TableModelStokAwal</name>
    <message>
        <source>Code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Qty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unit Cost</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Total Cost</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TableModelUser</name>
    <message>
        <source>ID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>User Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>First Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Group</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Created Date</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TableModelUserAccess</name>
    <message>
        <source>ID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Permission Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Access</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ALL</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OWNER</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>NONE</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TableTextBox</name>
    <message>
        <source>Code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TimeAgoWords</name>
    <message>
        <source>1 second</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> second</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 minute</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> minutes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 hour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> hours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>yesterday</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> day</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 month</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> months</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 year</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> years</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ToolDialog</name>
    <message>
        <source>Question</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The work is still going on. Do you want to stop it? A backup that is stopped is thrown away; a database that is being restored stays incomplete.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Info</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TotalsCascade</name>
    <message>
        <source>Less :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The discount should not be larger than the sub total</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>UnfinishedSave</name>
    <message>
        <source>%1 is saved. Please do not enter it again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Later, open it from its list and press OK: that does the same.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not done yet: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do you want to have it done now?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Finish Now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Later</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>UserGroupTableModel</name>
    <message>
        <source>ID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Created Date</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WizardConnection</name>
    <message>
        <source>Error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Can not connect to the database, please update your database connection details</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Can&apos;t write the settings file: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Use Port %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server has no database %1 yet.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Create Database</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PostgreSQL listens on port %1 here.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The database %1 was not created: %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ZavelApplication</name>
    <message>
        <source>Application Started</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed to open the database using this configuration:<byte value="xd"/>
Host: %1, DB Name: %2, DB User: %3, DB Password: %4, Port: %5</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Table: Config corrupted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>.<byte value="xd"/>
Please install the initial data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Success</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Successfully connected to the database.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Warning</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Info</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ZavelConverter</name>
    <message>
        <source>The data are being brought over at another workstation.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 on %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Converting company profile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Converting item type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Converting item unit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Converting suppliers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Converting members</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Converting agents</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Converting employees</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Converting items</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Converting purchases</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Converting payment</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>done</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The source database holds no table of the former system.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 rows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The connection to the source database is lost: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The conversion has been stopped.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ZavelInstaller</name>
    <message>
        <source>Zavel Data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kitchen 1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Thanks</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ZavelReportFactory</name>
    <message>
        <source>Can not find entity with id: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no company profile, so nothing can be printed at the cashier. Please enter it first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There are no settings of the cashier printer in this database, so nothing can be printed at the cashier.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The order is cancelled. Only its slip is missing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The order is saved. Only its slip is missing.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>dashboard</name>
    <message>
        <source>January</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>February</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>March</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>April</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>May</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>June</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>July</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>August</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>September</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>October</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>November</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>December</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Monday</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Friday</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dashboard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read the figures anew (F5)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No sales yet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Begin with the company profile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Figures</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Today</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Average sale</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Best day</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sales by day</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Amount</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number of sales</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Day</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Best sellers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>by quantity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Item</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sold</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing was sold by the piece.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set up the restaurant</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Company profile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name, address and logo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cashier printer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>For the guests’ bills</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kitchen printers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>For what is to be cooked</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Item types</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Food, drinks, desserts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Units</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Portion, glass, kilogram</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tables</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Where your guests sit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Items</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dishes with their prices</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Beginning balances</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What lies on the shelf</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cash</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What lies in the drawer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Every day</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dine in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tables, orders and bills</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fast food</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sell over the counter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>en</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 sale</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 sales</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Good morning</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Good afternoon</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Good evening</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last %1 days</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>over %1 days</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing was sold between %1 and %2. As soon as the first invoice is saved, the figures appear here. Is the restaurant new? The steps below set it up, one after the other.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not chosen yet</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
