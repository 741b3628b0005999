#include "shell/window/ZavelApplication.h"

#include "app/access/DialogLogin.h"
#include "app/configuration/BusinessConfiguration.h"
#include "app/context/AppContext.h"
#include "app/context/ConnectionSettings.h"
#include "app/context/DatabaseManager.h"
#include "app/context/DatabaseVersion.h"
#include "kor/business/KorServiceDirectory.h"
#include "kor/widgets/KorTextGuard.h"
#include "kor/widgets/KorViewMemory.h"
#include "kor/widgets/KorWaitingSign.h"
#include "pos/printing/slips/SlipArchive.h"
#include "pos/printing/slips/SlipQueue.h"
#include "shell/database/check/DatabaseCondition.h"
#include "shell/database/wizard/AppInstallerWizard.h"
#include "shell/window/ConfigDialog.h"
#include "shell/window/HouseStyle.h"
#include "shell/window/MainWindow.h"
#include "zavel/registry/ZavelBusinessRegistry.h"

#include <QFileInfo>
#include <QIcon>
#include <QMessageBox>
#include <QSplashScreen>
#include <QTimer>

namespace
{
/** Sets attributes that must be set before the application object exists. */
int& sharpOnDenseScreens(int& argc)
{
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    return argc;
}
} // namespace

ZavelApplication::ZavelApplication(int& argc, char** argv)
    : QApplication(sharpOnDenseScreens(argc), argv), m_dataDir(QFileInfo(ConnectionSettings::defaultPath()).path())
{
    HouseStyle::apply(*this);
    KorTextGuard::watch();
    KorWaitingSign::watch();
    // For message boxes that are shown before the first window.
    setWindowIcon(QIcon(":/icons/Beverage-Coffee-02.png"));
    m_dataDir.mkpath(".");
    KorViewMemory::setFile(m_dataDir.filePath("view.ini"));
    auto* logger = new KorLogger(this, m_dataDir.filePath("zavel.log"));
    logger->log(tr("Application Started"));
    AppContext::instance()->setLogger(logger);
    SlipArchive::instance()->setFolder(m_dataDir.filePath("slips"),
                                       SlipArchive::limitsFrom(m_dataDir.filePath("settings.ini")));
}

bool ZavelApplication::hasSettingsFile()
{
    m_settingsPath = m_dataDir.filePath("settings.ini");
    return ConnectionSettings::exists(m_settingsPath);
}

bool ZavelApplication::openDatabase()
{
    const ConnectionSettings settings = ConnectionSettings::read(m_settingsPath);
    AppContext* context = AppContext::instance();
    if (!context->databaseManager()->open(settings.host, settings.database, settings.user, settings.password,
                                          settings.port)) {
        QMessageBox::information(nullptr, tr("Error"),
                                 tr("Failed to open the database using this configuration:\r\nHost: %1, DB Name: %2, "
                                    "DB User: %3, DB Password: %4, Port: %5")
                                     .arg(settings.host, settings.database, settings.user, settings.password,
                                          QString::number(settings.port)));
        return false;
    }
    if (!checkDatabase())
        return false;
    const EntityConfigLocalizationFormat* localization =
        service<BusinessConfiguration>("Configuration")->getLocalization();
    context->setDateFormat(localization->getDateTimeFormat());
    context->setLocale(localization->getLocale());
    settings.putIntoContext();
    context->setShowDashboard(settings.showDashboard);
    context->setShowSidebar(settings.showSidebar);
    return true;
}

bool ZavelApplication::checkDatabase()
{
    const DatabaseVersion version = DatabaseVersion::read();
    const DatabaseCondition condition = DatabaseCondition::read(version.text());
    if (!version.isKnown()) {
        QMessageBox box(QMessageBox::Critical, tr("Error"),
                        tr("Table: Config corrupted") + tr(".\r\nPlease install the initial data"), QMessageBox::Ok);
        box.setInformativeText(condition.explanation());
        box.exec();
        return false;
    }
    if (!condition.isUsable()) {
        QMessageBox::critical(nullptr, tr("Error"), condition.explanation());
        return false;
    }
    if (const QString text = condition.updateFirst(); !text.isEmpty()) {
        QMessageBox::information(nullptr, tr("Info"), text);
        return false;
    }
    if (!condition.isWhole())
        QMessageBox::warning(nullptr, tr("Warning"), condition.explanation());
    return true;
}

void ZavelApplication::reconnect()
{
    m_connected = openDatabase();
    if (m_connected)
        QMessageBox::information(nullptr, tr("Success"), tr("Successfully connected to the database."));
}

int ZavelApplication::run()
{
    AppContext::instance()->setDatabaseManager(new DatabaseManager);
    ZavelBusinessRegistry::instance();
    while (!hasSettingsFile()) {
        AppInstallerWizard wizard;
        if (wizard.exec() == QDialog::Rejected)
            return 0;
    }
    m_connected = openDatabase();

    ConfigDialog configuration;
    configuration.setReconnect([this] { reconnect(); });
    while (!m_connected) {
        if (configuration.exec() == QDialog::Rejected && !m_connected)
            return 0;
    }
    DialogLogin login;
    if (login.exec() == QDialog::Rejected)
        return 0;
    // The login dialog may have been open for hours, and the database updated meanwhile.
    if (const DatabaseVersion version = DatabaseVersion::read(); version.isNewerThan(DatabaseVersion::ofProgram())) {
        QMessageBox::critical(nullptr, tr("Error"), version.tooNew());
        return 0;
    }

    const QPixmap picture(":/images/logo.png");
    QSplashScreen splash(picture);
    splash.show();
    processEvents();
    MainWindow window;
    AppContext::instance()->setMainWindow(&window);
    window.setSettingsFile(m_settingsPath);
    window.show();
    processEvents();
    splash.finish(&window);
    // After the window exists, since its status bar shows them.
    SlipQueue::instance()->takeOver();
    // The converter is needed only once, so it has no menu entry.
    if (arguments().contains("--converter"))
        QTimer::singleShot(0, &window, &MainWindow::on_actionConverter_triggered);
    return exec();
}
