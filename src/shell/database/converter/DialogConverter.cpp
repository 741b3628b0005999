#include "shell/database/converter/DialogConverter.h"

#include "app/configuration/BusinessConfiguration.h"
#include "kor/business/KorServiceDirectory.h"
#include "kor/widgets/KorErrorBox.h"
#include "shell/database/converter/ConversionMark.h"
#include "shell/database/converter/ZavelConverter.h"
#include "shell/database/tools/StatusText.h"

#include "ui_DialogConverter.h"

#include <QMessageBox>
#include <QThread>

DialogConverter::DialogConverter(QWidget* parent) : QDialog(parent), m_ui(std::make_unique<Ui::DialogConverter>())
{
    m_ui->setupUi(this);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    m_source = {m_ui->txtSourceHost, m_ui->txtSourceDBName, m_ui->txtSourceUser, m_ui->txtSourcePassword,
                m_ui->txtSourcePort};
    m_ui->txtSourcePassword->setText("sorrelmint");
    const ConnectionSettings target = ConnectionSettings::read(ConnectionSettings::defaultPath()).withDefaults();
    m_ui->lblTargetName->setText(
        tr("%1 on %2:%3, as %4").arg(target.database, target.host, QString::number(target.port), target.user));
    const QString explanation = ConversionMark(service<BusinessConfiguration>("Configuration")).explanation();
    if (!explanation.isEmpty())
        appendStatusLine(m_ui->txtStatus, explanation);
}

DialogConverter::~DialogConverter()
{
    if (m_converter)
        m_converter->stop();
    if (m_thread) {
        m_thread->quit();
        m_thread->wait();
    }
}

QString DialogConverter::missing() const
{
    const QList<QPair<QLineEdit*, QString>> rules{
        {m_source.host, tr("Enter the source host")},
        {m_source.user, tr("Enter the source database username")},
        {m_source.password, tr("Enter the source database password")},
        {m_source.port, tr("Enter the source database port")},
        {m_source.database, tr("Enter the source database name")},
    };
    for (const auto& rule : rules) {
        if (rule.first->text().isEmpty()) {
            rule.first->setFocus();
            return rule.second;
        }
    }
    return {};
}

void DialogConverter::on_btnConvert_clicked()
{
    const QString text = missing();
    if (!text.isEmpty()) {
        QMessageBox::information(this, tr("Info"), text);
        return;
    }
    m_ui->txtStatus->clear();
    m_thread = new QThread;
    m_converter = new ZavelConverter(m_source.read());
    m_converter->moveToThread(m_thread);
    connect(m_thread, &QThread::started, m_converter, &ZavelConverter::process);
    connect(m_converter, &ZavelConverter::onProgress, this, &DialogConverter::onProgress);
    connect(m_converter, &ZavelConverter::report, this,
            [this](const QString& report) { appendStatusLine(m_ui->txtStatus, report); });
    connect(m_converter, &ZavelConverter::error, this, &DialogConverter::errorString);
    connect(m_converter, &ZavelConverter::finished, m_thread, &QThread::quit);
    connect(m_converter, &ZavelConverter::finished, m_converter, &QObject::deleteLater);
    // When the thread has finished, both of its connections are closed.
    connect(m_thread, &QThread::finished, this, &DialogConverter::ended);
    connect(m_thread, &QThread::finished, m_thread, &QObject::deleteLater);
    setRunning(true);
    m_thread->start(QThread::InheritPriority);
}

void DialogConverter::setRunning(bool running)
{
    m_ui->groupSource->setEnabled(!running);
    m_ui->btnConvert->setEnabled(!running);
    if (running)
        m_ui->progressBar->setValue(0);
}

void DialogConverter::ended()
{
    setRunning(false);
    if (m_closing)
        QDialog::done(Rejected);
}

void DialogConverter::done(int result)
{
    if (m_ui->btnConvert->isEnabled()) {
        QDialog::done(result);
        return;
    }
    if (m_closing || QMessageBox::question(this, tr("Question"),
                                           tr("The data are still being brought over. Do you want to stop? What has "
                                              "been brought over stays, and another run adds the rest."),
                                           QMessageBox::Yes | QMessageBox::No, QMessageBox::No) != QMessageBox::Yes)
        return;
    m_closing = true;
    // The run may have ended while the message box was open.
    if (m_ui->btnConvert->isEnabled())
        QDialog::done(result);
    else if (m_converter)
        m_converter->stop();
}

void DialogConverter::onProgress(int perc, const QString& status)
{
    m_ui->progressBar->setValue(perc);
    appendStatusLine(m_ui->txtStatus, QString("[%1%] %2").arg(perc).arg(status));
}

void DialogConverter::errorString(const QString& err)
{
    appendStatusLine(m_ui->txtStatus, err);
    if (!m_closing)
        KorErrorBox::critical(this, tr("Error"), err);
}
