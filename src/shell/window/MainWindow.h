#pragma once

#include "shell/window/ReportPlugins.h"

#include <QMainWindow>

#include <memory>

class BusinessConfiguration;
class DatabaseUpdate;
class InterfaceLanguage;
class Manual;
class PageArea;
class QLabel;
class Sidebar;
class SlipStatus;

namespace Ui
{
class MainWindow;
}

/**
 * The program's main window: the menus, the sidebar that mirrors them, and a tab widget with the pages, each open at
 * most once.
 */
class MainWindow final : public QMainWindow
{
    Q_OBJECT

public:
    explicit MainWindow(QWidget* parent = nullptr);
    ~MainWindow() override;

    void setSettingsFile(const QString& path) { m_settingsFile = path; }
    /** True if a new page was opened. If a page of this class is already open, it only becomes current. */
    bool openTab(const QString& className);
    /**
     * Lets the user choose another database; called by code outside the menus. False if the user cancelled the dialog.
     */
    bool setupDatabase();

    // Not declared as slots: there are no actions of these names, and connectSlotsByName() would warn at every start.
    void on_actionPrinter_triggered();
    void on_pushButton_clicked() {}
    void on_actionKomisi_Agen_triggered() {}
    void on_actionDapur_Makanan_triggered() {}

signals:
    void window_loaded();

public slots:
    void closeTab(QWidget* tab);
    /** Closes only reports with the same title, since one class shows several reports. */
    void closeReportTab(QWidget* tab);
    void closeTabX(int index);
    void closeAllTab();
    /** Reads the settings file again and changes to its database. */
    void updateDBConfig();
    void slotReboot();
    /** Offers the update if the database is older than the program. */
    void checkDBUpdate();
    /** Shows a message if the conversion of a former system's data was interrupted. */
    void checkConversion();
    void onLoaded() {}
    /** Runs a command of the dashboard page; ignores unknown commands. */
    void on_callMainWindowCmd(const QString& cmd);
    void slotLanguageChanged(QAction* action);

    void on_actionMeja_triggered() { openTab("TabMeja"); }
    void on_actionUser_triggered() { openTab("TabUser"); }
    void on_actionConfig_triggered();
    void on_actionUser_group_triggered() { openTab("TabUserGroup"); }
    void on_actionUser_access_triggered() { openTab("TabUserAccess"); }
    void on_actionPerusahaan_triggered();
    void on_actionJenis_Item_triggered() { openTab("TabJenisItem"); }
    void on_actionSatuan_triggered() { openTab("TabSatuan"); }
    void on_actionSupplier_triggered() { openTab("TabSupplier"); }
    void on_actionMember_triggered() { openTab("TabMember"); }
    void on_actionAgent_triggered() { openTab("TabAgent"); }
    void on_actionBank_triggered() { openTab("TabBank"); }
    void on_actionItem_triggered() { openTab("TabItem"); }
    void on_actionStok_Awal_triggered() { openTab("TabStokAwal"); }
    void on_actionInventory_Adjustment_triggered() { openTab("TabInventoryAdj"); }
    void on_actionPesanan_Pembelian_triggered() { openTab("TabPurchaseOrder"); }
    void on_actionPurchases_Receive_Inventory_triggered() { openTab("TabPurchases"); }
    void on_actionCredit_Note_triggered() { openTab("TabCreditNote"); }
    void on_actionHutang_Payments_triggered() { openTab("TabPayment"); }
    void on_actionKaryawan_triggered() { openTab("TabEmployee"); }
    void on_actionKartu_Stok_triggered() { openTab("TabKartuStok"); }
    void on_actionRunning_Numbers_triggered() { openTab("TabKeyTable"); }
    void on_actionMakan_Ditempat_triggered() { openTab("TabMakanDitempat"); }
    void on_actionFastfood_triggered() { openTab("TabFastFood"); }
    void on_actionBawa_Pulang_triggered() { openTab("TabBawaPulang"); }
    void on_actionPesanan_Masuk_triggered() { openTab("TabPesananMasuk"); }
    void on_actionDaftar_Penjualan_triggered() { openTab("TabDaftarPenjualan"); }
    void on_actionPiutang_triggered() { openTab("TabPiutang"); }
    void on_actionPrinted_Slips_triggered() { openTab("TabPrintedSlips"); }
    void on_actionManual_triggered();
    void on_actionAbout_triggered();
    void on_actionDaftar_Pembayaran_Komisi_triggered() { openTab("TabKomisiAgen"); }
    void on_actionDaftar_Komisi_Agen_triggered() { openTab("TabAllKomisiAgen"); }
    void on_actionArus_Kas_triggered() { openTab("TabCashFlow"); }
    void on_actionTransfer_triggered() { openTab("TabTransfer"); }
    void on_actionPrinter_Kasir_triggered();
    void on_actionDapur_triggered() { openTab("TabKitchenPrinter"); }
    void on_actionMaster_Data_triggered() { openReport("Master Data"); }
    void on_actionPersediaan_triggered() { openReport("Persediaan"); }
    void on_actionPembelian_triggered() { openReport("Pembelian"); }
    void on_actionPenjualan_triggered() { openReport("Penjualan"); }
    void on_actionKas_triggered() { openReport("Kas"); }
    void on_actionDashboard_triggered() {}
    void on_actionShow_Sidebar_triggered();
    void on_actionShow_Dashboard_triggered();
    void on_actionBackup_Database_triggered();
    void on_actionConverter_triggered();
    void on_actionClear_Transactions_triggered();

protected:
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void loadPlugin();
    /** Adds the menu entries that are not in MainWindow.ui. */
    void addMenuEntries();
    void nameMenuEntries();
    void buildSidebar();
    void showStartPages();
    void openReport(const QString& reportName);
    void nameUser();
    /** Title and status bar of a restaurant that was made up tell so. */
    void nameSample();
    void closeDashboard();
    /** Checks the menu entry if the dashboard is open, however it was opened or closed. */
    void tickDashboard();
    void showInfo(const QString& text);

    std::unique_ptr<Ui::MainWindow> m_ui;
    PageArea* m_pages = nullptr;
    QString m_settingsFile;
    ReportPlugins m_reports;
    QLabel* m_statusUser;
    /** Null in a restaurant that is real. */
    QLabel* m_statusSample = nullptr;
    BusinessConfiguration* m_configuration;
    bool m_inDatabaseSetup = false;
    DatabaseUpdate* m_update = nullptr;
    InterfaceLanguage* m_language;
    Manual* m_manual;
    Sidebar* m_sidebar = nullptr;
    SlipStatus* m_slipStatus = nullptr;
};
