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
 * One place of a form where PostgreSQL's programs work, one at a time: the status box that tells of them, and the
 * buttons that are locked meanwhile. Whoever connects to its signals hears of every program but those that only look.
 */
class ToolRun final : public QObject
{
    Q_OBJECT

public:
    ToolRun(QPlainTextEdit* status, QList<QPushButton*> buttons);
    /** A program that is still at work ends, and nobody hears of it. */
    ~ToolRun() override;

    /** From begin() to end(), however many programs run in between. */
    [[nodiscard]] bool isBusy() const { return m_busy; }
    void begin();
    void end();
    /** The same, with the program that is at work ended; nobody hears of that. */
    void stop();

    /** Says what is being done and starts the program. */
    void start(const ClientCommand& command, const QString& doing);
    /** Runs a program that only looks: nothing of it is shown. Hands over whether it went well, and what it wrote. */
    void look(const ClientCommand& command, std::function<void(bool, const QString&)> answer);

    // Of the program that was started last.
    [[nodiscard]] bool succeeded() const;
    [[nodiscard]] QString errorText() const;
    /** Moves what the program has written since to the status box. */
    void showOutput();
    /** Writes a line of our own. */
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
