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
 * The program's one window: menus, the sidebar that mirrors them, and the working screens as pages of a tab widget,
 * each open at most once.
 */
class MainWindow final : public QMainWindow
{
    Q_OBJECT

public:
    explicit MainWindow(QWidget* parent = nullptr);
    ~MainWindow() override;

    void setSettingsFile(const QString& path) { m_settingsFile = path; }
    /** True when a new page was opened; an open page of that class is only shown. */
    bool openTab(const QString& className);
    /** Lets the user choose another database from outside of the menus; false when the dialog was given up. */
    bool setupDatabase();

    // Not under "slots": no action of the form bears these names, and connecting by name would warn at every start.
    void on_actionPrinter_triggered();
    void on_pushButton_clicked() {}
    void on_actionKomisi_Agen_triggered() {}
    void on_actionDapur_Makanan_triggered() {}

signals:
    void window_loaded();

public slots:
    void closeTab(QWidget* tab);
    /** Takes only the reports of the same title away: one class shows several reports. */
    void closeReportTab(QWidget* tab);
    void closeTabX(int index);
    void closeAllTab();
    /** Reads the settings file anew and changes over to the database that it names. */
    void updateDBConfig();
    void slotReboot();
    /** Offers the update when the database is older than the program. */
    void checkDBUpdate();
    /** Tells when bringing over the data of a former system was broken off. */
    void checkConversion();
    void onLoaded() {}
    /** Carries out a command of the dashboard page; an unknown one is ignored. */
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
    /** The menus' lines of pages that MainWindow.ui has none for. */
    void addMenuEntries();
    void nameMenuEntries();
    void buildSidebar();
    void showStartPages();
    void openReport(const QString& reportName);
    void nameUser();
    void closeDashboard();
    /** The menu's tick tells whether the page is there, however it came or went. */
    void tickDashboard();
    void showInfo(const QString& text);

    std::unique_ptr<Ui::MainWindow> m_ui;
    PageArea* m_pages = nullptr;
    QString m_settingsFile;
    ReportPlugins m_reports;
    QLabel* m_statusUser;
    BusinessConfiguration* m_configuration;
    bool m_inDatabaseSetup = false;
    DatabaseUpdate* m_update = nullptr;
    InterfaceLanguage* m_language;
    Manual* m_manual;
    Sidebar* m_sidebar = nullptr;
    SlipStatus* m_slipStatus = nullptr;
};
