#include "shell/window/MainWindow.h"

#include "app/configuration/BusinessConfiguration.h"
#include "app/context/AccessCheck.h"
#include "app/context/AppContext.h"
#include "app/context/ConnectionSettings.h"
#include "app/context/DatabaseManager.h"
#include "app/context/DatabaseVersion.h"
#include "app/context/EntityPool.h"
#include "app/context/EntityUser.h"
#include "kor/business/KorErrorScope.h"
#include "kor/business/KorServiceDirectory.h"
#include "kor/persistence/KorServerCall.h"
#include "kor/widgets/KorErrorBox.h"
#include "kor/widgets/KorPluginTabInterface.h"
#include "kor/widgets/KorTab.h"
#include "pos/masterdata/company/BusinessDataPerusahaan.h"
#include "pos/masterdata/company/DialogDataPerusahaan.h"
#include "pos/masterdata/company/EntityDataPerusahaan.h"
#include "pos/printing/configuration/DialogCashierAndKitchenPrinter.h"
#include "pos/printing/printer/DialogPrinter.h"
#include "shell/database/backup/DialogBackupDB.h"
#include "shell/database/clearing/DialogClearTransactions.h"
#include "shell/database/converter/ConversionMark.h"
#include "shell/database/converter/DialogConverter.h"
#include "shell/database/updater/DatabaseUpdate.h"
#include "shell/window/ConfigDialog.h"
#include "shell/window/DatabaseChange.h"
#include "shell/window/DialogAbout.h"
#include "shell/window/InterfaceLanguage.h"
#include "shell/window/Manual.h"
#include "shell/window/MenuShortcuts.h"
#include "shell/window/PageArea.h"
#include "shell/window/Pages.h"
#include "shell/window/RestartStatus.h"
#include "shell/window/Sidebar.h"
#include "shell/window/SlipStatus.h"
#include "shell/window/WindowKeys.h"
#include "zavel/install/ZavelInstaller.h"

#include "ui_MainWindow.h"

#include <QApplication>
#include <QEvent>
#include <QHash>
#include <QLabel>
#include <QMessageBox>
#include <QTabBar>
#include <QTimer>

namespace
{
constexpr int updateCheckDelay = 2000;
QStringList databaseInUse()
{
    const QSqlDatabase open = AppContext::instance()->databaseManager()->database();
    return {open.hostName(), QString::number(open.port()), open.databaseName()};
}
} // namespace

MainWindow::MainWindow(QWidget* parent)
    : QMainWindow(parent), m_ui(std::make_unique<Ui::MainWindow>()), m_statusUser(new QLabel(this)),
      m_language(new InterfaceLanguage(QCoreApplication::applicationDirPath() + "/languages", this))
{
    m_ui->setupUi(this);
    m_manual = new Manual(QCoreApplication::applicationDirPath() + "/help", m_ui->tabWidget);
    m_statusUser->setAlignment(Qt::AlignHCenter);
    m_statusUser->setContentsMargins(8, 2, 8, 2);
    m_ui->statusBar->addWidget(m_statusUser);
    m_slipStatus = new SlipStatus(this);
    m_ui->statusBar->addPermanentWidget(m_slipStatus);
    connect(m_slipStatus, &SlipStatus::listWanted, this, [this] { openTab("TabPrintedSlips"); });
    setContextMenuPolicy(Qt::NoContextMenu);
    m_ui->mainToolBar->setVisible(!m_ui->mainToolBar->actions().isEmpty());
    showMaximized();
    m_configuration = service<BusinessConfiguration>("Configuration");

    m_pages = new PageArea(m_ui->tabWidget);
    connect(m_pages, &PageArea::changed, this, &MainWindow::tickDashboard);
    connect(m_ui->tabWidget, &QTabWidget::tabCloseRequested, this, &MainWindow::closeTabX);
    nameUser();
    if (!m_configuration->getValue(BusinessConfiguration::sampleKey()).isEmpty()) {
        m_statusSample = new QLabel(this);
        m_ui->statusBar->addWidget(m_statusSample);
    }
    nameSample();
    setWindowIcon(QIcon(":/icons/Beverage-Coffee-02.png"));
    setIconSize({48, 48});
    loadPlugin();
    addMenuEntries();
    buildSidebar();
    showStartPages();
    QTimer::singleShot(updateCheckDelay, this, [this] {
        checkDBUpdate();
        if (!m_update || !m_update->isRunning())
            checkConversion();
    });
    m_language->fillMenu(m_ui->menuLanguage_2);
    connect(m_language, &InterfaceLanguage::chosen, this, &MainWindow::slotLanguageChanged);
    connect(m_language, &InterfaceLanguage::switched, m_manual, &Manual::setLanguage);
    connect(m_language, &InterfaceLanguage::loaded, this, [this](const QString& name) {
        m_ui->statusBar->showMessage(tr("Current Language changed to %1").arg(name));
    });
    new MenuShortcuts(m_ui->menuBar);
    new WindowKeys(m_ui->menuBar, m_ui->tabWidget);
}

MainWindow::~MainWindow() = default;

void MainWindow::loadPlugin()
{
    if (!m_reports.load(ReportPlugins::folder(QDir(QCoreApplication::applicationDirPath()))))
        showInfo(tr("Could not load the plugin"));
    for (const QString& error : m_reports.errors())
        showInfo(error);
}

void MainWindow::addMenuEntries()
{
    for (const Page& page : allPages()) {
        if (!page.entry.menu)
            continue;
        auto* action = new QAction(this);
        action->setObjectName("action" + page.className.mid(3));
        action->setShortcut(QKeySequence(page.entry.key));
        connect(action, &QAction::triggered, this, [this, name = page.className] { openTab(name); });
        findChild<QMenu*>(page.entry.menu)->addAction(action);
    }
    nameMenuEntries();
}

void MainWindow::nameMenuEntries()
{
    for (const Page& page : allPages()) {
        if (page.entry.menu)
            findChild<QAction*>("action" + page.className.mid(3))
                ->setText(QCoreApplication::translate("Pages", page.entry.text));
    }
}

void MainWindow::buildSidebar()
{
    m_sidebar = new Sidebar(m_ui->treeWidget);
    m_sidebar->addMenu(m_ui->menuMaster_Data, ":/icons/Workflow-01-WF.png");
    m_sidebar->addMenu(m_ui->menuPersediaan, ":/icons/Calendar -01 .png");
    m_sidebar->addMenu(m_ui->menuPembelia, ":/icons/Shopping-Cart-01.png");
    m_sidebar->addMenu(m_ui->menuPenjualan, ":/icons/Shopping-Bag.png");
    m_sidebar->addMenu(m_ui->menuKas, ":/icons/Finance-03.png");
    m_sidebar->addMenu(m_ui->menuReports, ":/icons/Graph-01.png");
    m_sidebar->addMenu(m_ui->menuConfiguration, ":/icons/Tools-02.png");
}

void MainWindow::showStartPages()
{
    const AppContext* context = AppContext::instance();
    if (context->showDashboard())
        openTab("TabDashboard");
    else
        closeDashboard();
    tickDashboard();
    m_ui->treeWidget->setVisible(context->showSidebar());
    m_ui->actionShow_Sidebar->setChecked(context->showSidebar());
}

void MainWindow::showEvent(QShowEvent* event)
{
    QMainWindow::showEvent(event);
    emit window_loaded();
}

void MainWindow::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LocaleChange) {
        m_language->load(InterfaceLanguage::systemCode());
    } else if (event->type() == QEvent::LanguageChange) {
        m_ui->retranslateUi(this);
        nameMenuEntries();
        m_sidebar->retranslate();
        nameUser();
        nameSample();
        m_slipStatus->retranslate();
        m_pages->retranslate();
    }
    QMainWindow::changeEvent(event);
}

void MainWindow::nameUser()
{
    const EntityUser* user = AppContext::instance()->currentUser();
    if (!user)
        return;
    m_statusUser->setText(tr("Username: ") + user->getUserName());
    m_statusUser->setMinimumSize(0, 0);
    m_statusUser->setMinimumSize(m_statusUser->sizeHint());
}

void MainWindow::nameSample()
{
    if (!m_statusSample)
        return;
    setWindowTitle(tr("%1 - Sample").arg(windowTitle()));
    m_statusSample->setText(tr("Sample data: nothing here was really sold"));
}

void MainWindow::slotLanguageChanged(QAction* action)
{
    if (!action)
        return;
    m_language->load(action->data().toString());
    setWindowIcon(action->icon());
}

// Pages

bool MainWindow::openTab(const QString& className)
{
    if (findPage(className))
        return m_pages->open(className);
    QMessageBox::critical(this, tr("Error"), tr("can not load tab: %1").arg(className));
    return false;
}

void MainWindow::openReport(const QString& reportName)
{
    KorTab* report = m_reports.plugin() ? m_reports.plugin()->createTab(reportName) : nullptr;
    if (report)
        m_pages->openReport(report);
    else
        QMessageBox::critical(
            this, tr("Error"),
            tr("The report can not be shown, because no plug-in with reports is installed: %1").arg(reportName));
}

void MainWindow::closeTab(QWidget* tab) { m_pages->removeClass(tab->metaObject()->className()); }

void MainWindow::closeReportTab(QWidget* tab) { m_pages->removeReport(tab); }

void MainWindow::closeTabX(int index) { m_pages->remove(index); }

void MainWindow::closeAllTab() { m_pages->removeAll(); }

void MainWindow::closeDashboard() { m_pages->removeClass("TabDashboard"); }

void MainWindow::tickDashboard() { m_ui->actionShow_Dashboard->setChecked(m_pages->find("TabDashboard") >= 0); }

// Actions and commands

void MainWindow::on_actionShow_Sidebar_triggered()
{
    const bool show = m_ui->actionShow_Sidebar->isChecked();
    AppContext::instance()->setShowSidebar(show);
    m_ui->treeWidget->setVisible(show);
}

void MainWindow::on_actionShow_Dashboard_triggered()
{
    const bool show = m_ui->actionShow_Dashboard->isChecked();
    AppContext::instance()->setShowDashboard(show);
    if (show)
        openTab("TabDashboard");
    else
        closeDashboard();
    tickDashboard();
}

void MainWindow::on_actionConfig_triggered()
{
    if (!hasAccess("Configuration", 0))
        return;
    ConfigDialog dialog(this);
    connect(&dialog, &ConfigDialog::onUpdateDBConf, this, &MainWindow::updateDBConfig);
    connect(&dialog, &ConfigDialog::onCloseAllTab, this, &MainWindow::closeAllTab);
    dialog.exec();
}

void MainWindow::on_actionPerusahaan_triggered()
{
    if (!hasAccess("Company Profile", 0))
        return;
    EntityPool read;
    const EntityPoolScope scope(read);
    auto* company = service<BusinessDataPerusahaan>("Company Profile");
    KorErrorScope errors(company);
    DialogDataPerusahaan dialog(this);
    if (EntityDataPerusahaan* profile = company->getData())
        dialog.setEntity(profile);
    if (KorErrorBox::tell(this, errors.take()))
        return;
    dialog.setSaver([&] {
        const bool saved = company->updateData(static_cast<EntityDataPerusahaan*>(dialog.getEntity()));
        KorErrorBox::tell(this, errors.take());
        return saved;
    });
    dialog.exec();
}

void MainWindow::on_actionPrinter_Kasir_triggered()
{
    if (hasAccess("Printer Config", 0))
        DialogCashierAndKitchenPrinter(this).exec();
}

void MainWindow::on_actionBackup_Database_triggered()
{
    if (!hasAccess("Printer Config", 0))
        return;
    DialogBackupDB dialog(this);
    const QStringList before = databaseInUse();
    connect(&dialog, &DialogBackupDB::onUpdateDBConf, this, &MainWindow::updateDBConfig);
    dialog.exec();
    // The dialog can change to a restored or another database.
    if (databaseInUse() != before)
        closeAllTab();
}

void MainWindow::on_actionClear_Transactions_triggered()
{
    if (!hasAccess("Printer Config", 0))
        return;
    DialogClearTransactions dialog(this);
    connect(&dialog, &DialogClearTransactions::onCloseAllTab, this, &MainWindow::closeAllTab);
    dialog.exec();
}

void MainWindow::on_actionConverter_triggered()
{
    if (hasAccess("Configuration", 0))
        DialogConverter(this).exec();
}

void MainWindow::on_actionPrinter_triggered() { DialogPrinter(this).exec(); }

void MainWindow::on_actionManual_triggered() { m_manual->open(); }

void MainWindow::on_actionAbout_triggered() { DialogAbout(this).exec(); }

void MainWindow::on_callMainWindowCmd(const QString& cmd)
{
    static const QHash<QString, void (MainWindow::*)()> commands{
        {"companyprofile", &MainWindow::on_actionPerusahaan_triggered},
        {"cashier", &MainWindow::on_actionPrinter_Kasir_triggered},
        {"kitchenprinter", &MainWindow::on_actionDapur_triggered},
        {"itemtype", &MainWindow::on_actionJenis_Item_triggered},
        {"table", &MainWindow::on_actionMeja_triggered},
        {"unit", &MainWindow::on_actionSatuan_triggered},
        {"item", &MainWindow::on_actionItem_triggered},
        {"beginingbalance", &MainWindow::on_actionStok_Awal_triggered},
        {"cash", &MainWindow::on_actionArus_Kas_triggered},
        {"salesorder", &MainWindow::on_actionMakan_Ditempat_triggered},
        {"fastfood", &MainWindow::on_actionFastfood_triggered},
    };
    const auto command = commands.value(cmd);
    if (!command)
        return;
    // The web page's click may arrive while a statement waits for the server; no page may open then.
    if (KorServerCall::isUnderWay())
        QTimer::singleShot(0, this, command);
    else
        (this->*command)();
}

// The database

bool MainWindow::setupDatabase()
{
    m_inDatabaseSetup = true;
    ConfigDialog dialog(this);
    connect(&dialog, &ConfigDialog::onUpdateDBConf, this, &MainWindow::updateDBConfig);
    connect(&dialog, &ConfigDialog::onRestart, this, &MainWindow::slotReboot);
    const int result = dialog.exec();
    m_inDatabaseSetup = false;
    return result != 0;
}

void MainWindow::slotReboot() { QCoreApplication::exit(restartStatus); }

void MainWindow::updateDBConfig()
{
    const QString pleaseInstall = tr(".\r\nPlease fill the db connection fields and install the initial data");
    if (!ConnectionSettings::exists(m_settingsFile)) {
        showInfo(tr("Can't open settings file: %1").arg(m_settingsFile) + pleaseInstall);
        return;
    }
    const ConnectionSettings settings = ConnectionSettings::read(m_settingsFile);
    const QStringList former = databaseInUse();
    QString reason;
    if (!changeDatabase(settings, &reason)) {
        showInfo(tr("Failed open db. Host: %1, dbname: %2, dbuser: %3, dbpass: %4,  port: %5. %6")
                     .arg(settings.host, settings.database, settings.user, settings.password,
                          QString::number(settings.port), reason));
        return;
    }
    const DatabaseVersion version = DatabaseVersion::read();
    if (!version.isKnown() || version.isNewerThan(DatabaseVersion::ofProgram())) {
        closeAllTab();
        showInfo(version.isKnown() ? version.tooNew() : tr("Table: Config corrupted") + pleaseInstall);
        return;
    }
    AppContext* context = AppContext::instance();
    const EntityConfigLocalizationFormat* localization = m_configuration->getLocalization();
    context->setDateFormat(localization->getDateTimeFormat());
    context->setLocale(localization->getLocale());
    settings.putIntoContext();
    m_reports.handOverSettings();
    // Both values set the sidebar, the dashboard's value last; the dashboard itself does not change.
    context->setShowSidebar(settings.showSidebar);
    context->setShowSidebar(settings.showDashboard);
    if (m_inDatabaseSetup)
        QMessageBox::information(this, tr("Info"), tr("Connected!"));
    // The pages show records of the former database: saving them would change other records in this one.
    if (databaseInUse() != former)
        m_pages->makeAnew();
}

void MainWindow::checkDBUpdate()
{
    // Do not interrupt a modal form; try again later.
    if (QApplication::activeModalWidget()) {
        QTimer::singleShot(updateCheckDelay, this, &MainWindow::checkDBUpdate);
        return;
    }
    ZavelInstaller installer;
    {
        const KorErrorScope errors(m_configuration);
        if (!installer.isUpdateNeeded())
            return;
    }
    if (!m_update) {
        m_update = new DatabaseUpdate(this);
        // Pages read the database on timers, and their data is older than the update.
        connect(m_update, &DatabaseUpdate::entered, this, &MainWindow::closeAllTab);
        connect(m_update, &DatabaseUpdate::left, this, &MainWindow::showStartPages);
    }
    m_update->offer();
}

void MainWindow::checkConversion()
{
    ConversionMark mark(m_configuration);
    const QString explanation = mark.explanation();
    if (explanation.isEmpty())
        return;
    if (!checkAccess("Configuration", 0)) {
        QMessageBox::information(this, tr("Info"), explanation);
        return;
    }
    const auto answer = QMessageBox::question(
        this, tr("Question"),
        explanation + "\r\n\r\n" + tr("Do you want to open the converter now? Ignore: do not tell this again."),
        QMessageBox::Yes | QMessageBox::No | QMessageBox::Ignore, QMessageBox::No);
    if (answer == QMessageBox::Yes)
        on_actionConverter_triggered();
    else if (answer == QMessageBox::Ignore && !mark.remove())
        KorErrorBox::tell(this, m_configuration->takeErrors());
}

void MainWindow::showInfo(const QString& text) { QMessageBox::information(this, tr("Error"), text); }
