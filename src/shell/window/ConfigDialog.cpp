#include "shell/window/ConfigDialog.h"

#include "app/configuration/BusinessConfiguration.h"
#include "app/context/AppContext.h"
#include "app/context/ConnectionSettings.h"
#include "app/context/DatabaseManager.h"
#include "kor/business/KorErrorScope.h"
#include "kor/business/KorServiceDirectory.h"
#include "kor/install/KorInstallerThread.h"
#include "kor/widgets/KorErrorBox.h"
#include "pos/masterdata/item/BusinessItem.h"
#include "shell/database/check/ReplaceQuestion.h"
#include "shell/window/RestartStatus.h"
#include "zavel/install/ZavelInstaller.h"
#include "zavel/service/BusinessPenjualan.h"

#include "ui_ConfigDialog.h"

#include <QDir>
#include <QEventLoop>
#include <QFileInfo>
#include <QMessageBox>
#include <QPointer>
#include <QTimer>

namespace
{
constexpr int settleTime = 1000;
constexpr int closingTime = 2000;
} // namespace

ConfigDialog::ConfigDialog(QWidget* parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::ConfigDialog>()), m_settingsPath(ConnectionSettings::defaultPath()),
      m_configuration(service<BusinessConfiguration>("Configuration"))
{
    m_ui->setupUi(this);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    setWindowIcon(QIcon(":/icons/Beverage-Coffee-02.png"));
    // One setting with two boxes: Setup uses it for the currency of the first prices, General changes it later.
    for (QComboBox* box : {m_ui->txtLocale, m_ui->ddlSetupLocale}) {
        box->addItems(BusinessConfiguration::locales());
        box->setCurrentText(BusinessConfiguration::localeOfMachine());
    }
    connect(m_ui->txtLocale, &QComboBox::currentTextChanged, m_ui->ddlSetupLocale, &QComboBox::setCurrentText);
    connect(m_ui->ddlSetupLocale, &QComboBox::currentTextChanged, m_ui->txtLocale, &QComboBox::setCurrentText);
    connect(this, &ConfigDialog::onClearMemory, this, &ConfigDialog::onClearMemory_trigered);
    QDir().mkpath(QFileInfo(m_settingsPath).path());
    m_ui->tabWidget->setCurrentIndex(0);
    loadSettings();
    QTimer::singleShot(0, m_ui->txtDBHost, [this] { m_ui->txtDBHost->setFocus(); });
}

ConfigDialog::~ConfigDialog() = default;

bool ConfigDialog::isConnected()
{
    const DatabaseManager* manager = AppContext::instance()->databaseManager();
    return manager && manager->isOpen();
}

ConnectionEdits ConfigDialog::connectionEdits() const
{
    return {m_ui->txtDBHost, m_ui->txtDBName, m_ui->txtDBUser, m_ui->txtDBPassword, m_ui->txtDBPort};
}

void ConfigDialog::loadSettings()
{
    if (const KorLogger* logger = AppContext::instance()->logger())
        m_ui->txtLogFile->setText(logger->filePath());
    const ConnectionSettings settings = ConnectionSettings::read(m_settingsPath).withDefaults();
    connectionEdits().show(settings);
    loadLocalization();
    m_ui->cbShowSidebar->setChecked(settings.showSidebar);
    m_ui->cbShowDashboard->setChecked(settings.showDashboard);
}

void ConfigDialog::loadLocalization()
{
    // Without a connection every read would wait for the server's timeout.
    if (!m_configuration || !isConnected())
        return;
    const KorErrorScope errors(m_configuration);
    m_localization = m_configuration->getLocalization();
    m_ui->txtDateTimeFormat->setText(m_localization->getDateTimeFormat());
    m_ui->txtLocale->setCurrentText(m_localization->getLocale());
}

bool ConfigDialog::saveSettings()
{
    ConnectionSettings settings = connectionEdits().read();
    settings.showSidebar = m_ui->cbShowSidebar->isChecked();
    settings.showDashboard = m_ui->cbShowDashboard->isChecked();
    if (!settings.write(m_settingsPath)) {
        QMessageBox::critical(this, tr("Error"), tr("Can't write the settings file: %1").arg(m_settingsPath));
        return false;
    }
    saveLocalization();
    waitFor(settleTime);
    emit onUpdateDBConf();
    if (m_reconnect)
        m_reconnect();
    // The old record may belong to another database now, and a saved record has an outdated version.
    loadLocalization();
    return true;
}

void ConfigDialog::saveLocalization()
{
    // Uses the connection from before this change.
    if (!m_localization || m_localization->getId() == KorNoValue || !isConnected())
        return;
    m_localization->setDateTimeFormat(m_ui->txtDateTimeFormat->text());
    if (m_localization->getLocale() != m_ui->txtLocale->currentText() && settleCurrencies())
        m_localization->setLocale(m_ui->txtLocale->currentText());
    KorErrorScope errors(m_configuration);
    if (!m_configuration->update(m_localization))
        KorErrorBox::tell(this, errors.take());
}

bool ConfigDialog::settleCurrencies()
{
    auto* items = service<BusinessItem>("Item");
    auto* sales = service<BusinessPenjualan>("Sales");
    const QString sign = QLocale(m_ui->txtLocale->currentText()).currencySymbol(QLocale::CurrencySymbol);
    KorErrorScope errors({items, sales});
    const int otherItems = items->countOfOtherCurrency(sign);
    const int otherOrders = sales->countOpenOrdersOfOtherCurrency(sign);
    if (KorErrorBox::tell(this, errors.take()))
        return false;
    if (otherItems == 0 && otherOrders == 0)
        return true;
    QMessageBox box(QMessageBox::Question, tr("Question"),
                    tr("%1 items and %2 open orders are priced in another currency than %3. Amounts of two currencies "
                       "would be added as if they were one. Finish the open orders first; the items can be restated: "
                       "the same figures, in %3.")
                        .arg(otherItems)
                        .arg(otherOrders)
                        .arg(sign),
                    QMessageBox::Cancel, this);
    box.addButton(QMessageBox::Yes)->setText(tr("Restate the Items"));
    box.addButton(QMessageBox::No)->setText(tr("Leave Them"));
    box.button(QMessageBox::Cancel)->setText(tr("Keep the Locale"));
    box.setDefaultButton(QMessageBox::Yes);
    box.setEscapeButton(QMessageBox::Cancel);
    const int answer = box.exec();
    if (answer == QMessageBox::Yes && !items->restate(sign)) {
        KorErrorBox::tell(this, errors.take());
        return false;
    }
    return answer == QMessageBox::Yes || answer == QMessageBox::No;
}

void ConfigDialog::on_btnSaveDBConf_clicked() { saveSettings(); }

void ConfigDialog::on_buttonBox_accepted()
{
    if (saveSettings())
        accept();
}

void ConfigDialog::waitFor(int milliseconds)
{
    const QPointer<QWidget> focused = focusWidget();
    setEnabled(false);
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
    setEnabled(true);
    if (focused)
        focused->setFocus();
}

void ConfigDialog::done(int result)
{
    if (m_installing) {
        QMessageBox::information(this, tr("Info"), tr("Please wait until the installation completed."));
        return;
    }
    QDialog::done(result);
}

void ConfigDialog::on_btnRestart_clicked()
{
    done(Accepted);
    emit onRestart();
    QCoreApplication::exit(restartStatus);
}

void ConfigDialog::on_installBtn_clicked()
{
    m_ui->txtStatus->clear();
    if (!isConnected()) {
        errorString(tr("There is no connection to a database yet. Please save one under \"Database\" first."));
        return;
    }
    const bool isUpdate = m_ui->rbInstallUpdate->isChecked();
    if (!isUpdate && ReplaceQuestion::ask(this) != ReplaceQuestion::Replace)
        return;

    auto* installer = new ZavelInstaller;
    installer->setLogger(AppContext::instance()->logger());
    installer->setType(isUpdate ? KorInstaller::UpdateInstall : KorInstaller::FreshInstall);
    installer->setDateFormat(m_ui->txtDateTimeFormat->text());
    installer->setLocale(m_ui->txtLocale->currentText());
    connect(installer, &KorInstaller::onProgress, this, &ConfigDialog::onProgress);
    connect(installer, &KorInstaller::error, this, &ConfigDialog::errorString);
    connect(installer, &KorInstaller::finished, this, [this] {
        setInstalling(false);
        loadLocalization();
    });
    setInstalling(true);
    startInstaller(installer);
}

void ConfigDialog::setInstalling(bool installing)
{
    m_installing = installing;
    // Only one installation at a time, and no other use of the database during it.
    for (QWidget* widget : std::initializer_list<QWidget*>{m_ui->installBtn, m_ui->btnSaveDBConf, m_ui->buttonBox})
        widget->setEnabled(!installing);
}

void ConfigDialog::onProgress(int perc, const QString& status)
{
    m_ui->txtStatus->appendPlainText(QString("[%1%] %2").arg(perc).arg(status));
}

void ConfigDialog::errorString(const QString& err) { m_ui->txtStatus->insertPlainText(err); }

void ConfigDialog::on_btnListEntities_clicked()
{
    QString text;
    const QList<KorEntity*> entities = AppContext::instance()->liveEntities();
    for (int i = 0; i < entities.size(); ++i)
        text += QString("child #%1:%2 id:%3\r\n")
                    .arg(i)
                    .arg(QLatin1String(entities.at(i)->metaObject()->className()))
                    .arg(entities.at(i)->getId());
    m_ui->txtStatusEntities->setPlainText(text);
}

void ConfigDialog::on_btnKillEntities_clicked()
{
    if (QMessageBox::question(this, tr("Question"), tr("Are you sure all the windows has been closed?"),
                              QMessageBox::Yes | QMessageBox::No) != QMessageBox::Yes)
        return;
    emit onCloseAllTab();
    waitFor(closingTime);
    emit onClearMemory();
}

void ConfigDialog::onClearMemory_trigered()
{
    AppContext::instance()->resetEntityPool();
    on_btnListEntities_clicked();
    loadLocalization();
}
