#include "shell/database/tools/ToolRun.h"

#include "shell/database/tools/ClientProcess.h"
#include "shell/database/tools/ClientPrograms.h"
#include "shell/database/tools/StatusText.h"

#include <QApplication>
#include <QPlainTextEdit>
#include <QPushButton>

#include <utility>

ToolRun::ToolRun(QPlainTextEdit* status, QList<QPushButton*> buttons) : m_status(status), m_buttons(std::move(buttons))
{}

ToolRun::~ToolRun() = default;

void ToolRun::begin()
{
    if (m_busy)
        return;
    m_busy = true;
    m_focused = QApplication::focusWidget();
    for (QPushButton* button : qAsConst(m_buttons))
        button->setEnabled(false);
}

void ToolRun::end()
{
    m_busy = false;
    for (QPushButton* button : qAsConst(m_buttons))
        button->setEnabled(true);
    // Disabling the focused button moved the focus. Restore it unless the user has changed to another window.
    if (m_focused && m_focused->isVisible() && m_focused->window()->isActiveWindow() &&
        m_buttons.contains(qobject_cast<QPushButton*>(m_focused)))
        m_focused->setFocus();
}

void ToolRun::stop()
{
    m_process.reset();
    if (m_busy)
        end();
}

ClientProcess* ToolRun::renew()
{
    begin();
    // The former process may be emitting its last signal now, so it is not deleted at once.
    if (ClientProcess* former = m_process.release()) {
        former->disconnect();
        former->deleteLater();
    }
    m_process = std::make_unique<ClientProcess>();
    return m_process.get();
}

void ToolRun::start(const ClientCommand& command, const QString& doing)
{
    ClientProcess* process = renew();
    connect(process, &QProcess::started, this, &ToolRun::started);
    connect(process, &QProcess::errorOccurred, this, &ToolRun::error);
    connect(process, &QProcess::readyReadStandardOutput, this, &ToolRun::readyRead);
    connect(process, QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished), this, &ToolRun::exited);
    say(doing);
    process->run(command);
}

void ToolRun::look(const ClientCommand& command, std::function<void(bool, const QString&)> answer)
{
    ClientProcess* process = renew();
    const auto ended = [process, answer = std::move(answer)] { answer(process->succeeded(), process->takeOutput()); };
    connect(process, &QProcess::errorOccurred, this, [ended](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            ended();
    });
    connect(process, QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished), this, ended);
    process->run(command);
}

bool ToolRun::succeeded() const { return m_process && m_process->succeeded(); }

QString ToolRun::errorText() const { return m_process ? m_process->errorString() : QString(); }

void ToolRun::showOutput()
{
    if (m_process)
        appendStatus(m_status, m_process->takeOutput());
}

void ToolRun::say(const QString& line) { appendStatusLine(m_status, line); }
