#pragma once

#include <QPointer>
#include <QProcess>

#include <functional>
#include <memory>

class ClientProcess;
class QPlainTextEdit;
class QPushButton;
struct ClientCommand;

/**
 * Runs PostgreSQL's client programs one at a time for a part of a form: shows their output in a status box and locks
 * its buttons meanwhile. Signals are emitted for all programs except those started by look().
 */
class ToolRun final : public QObject
{
    Q_OBJECT

public:
    ToolRun(QPlainTextEdit* status, QList<QPushButton*> buttons);
    /** Stops a running program without signals. */
    ~ToolRun() override;

    /** True from begin() to end(), also between several programs. */
    [[nodiscard]] bool isBusy() const { return m_busy; }
    void begin();
    void end();
    /** Like end(), but also stops the running program without signals. */
    void stop();

    /** Shows the text in the status box and starts the program. */
    void start(const ClientCommand& command, const QString& doing);
    /** Runs a program without showing anything; answer gets its success and its output. */
    void look(const ClientCommand& command, std::function<void(bool, const QString&)> answer);

    // About the last program started.
    [[nodiscard]] bool succeeded() const;
    [[nodiscard]] QString errorText() const;
    /** Appends the program's new output to the status box. */
    void showOutput();
    /** Appends a line of this program's own text. */
    void say(const QString& line);

signals:
    void started();
    void error(QProcess::ProcessError error);
    void readyRead();
    void exited(int exitCode, QProcess::ExitStatus exitStatus);

private:
    ClientProcess* renew();

    QPlainTextEdit* m_status;
    QList<QPushButton*> m_buttons;
    QPointer<QWidget> m_focused;
    std::unique_ptr<ClientProcess> m_process;
    bool m_busy = false;
};
