#include "shell/database/tools/ToolDialog.h"

#include "shell/database/tools/ToolRun.h"

#include <QIcon>
#include <QMessageBox>

#include <algorithm>

ToolDialog::ToolDialog(QWidget* parent) : QDialog(parent)
{
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    setWindowIcon(QIcon(":/icons/Beverage-Coffee-02.png"));
}

ToolDialog::~ToolDialog() = default;

ToolRun* ToolDialog::addRun(QPlainTextEdit* status, const QList<QPushButton*>& buttons)
{
    m_runs.push_back(std::make_unique<ToolRun>(status, buttons));
    return m_runs.back().get();
}

bool ToolDialog::isBusy() const
{
    return std::any_of(m_runs.cbegin(), m_runs.cend(), [](const auto& run) { return run->isBusy(); });
}

void ToolDialog::done(int result)
{
    if (isBusy() &&
        QMessageBox::question(this, tr("Question"),
                              tr("The work is still going on. Do you want to stop it? A backup that is stopped is "
                                 "thrown away; a database that is being restored stays incomplete."),
                              QMessageBox::Yes | QMessageBox::No, QMessageBox::No) != QMessageBox::Yes)
        return;
    stop();
    QDialog::done(result);
}

void ToolDialog::stop()
{
    for (const auto& run : m_runs)
        run->stop();
}

void ToolDialog::showInfo(const QString& text) { QMessageBox::information(this, tr("Info"), text); }

void ToolDialog::showError(ToolRun* run, int number)
{
    const QString reason = run->errorText();
    run->say(tr("Error %1").arg(number));
    QMessageBox::critical(this, tr("Error"), tr("Error: %1").arg(reason));
}
