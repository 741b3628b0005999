#pragma once

#include <QDialog>

#include <memory>
#include <vector>

class QPlainTextEdit;
class QPushButton;
class ToolRun;

/** Base of dialogs that run PostgreSQL's client programs. While one is running, the dialog asks before it closes. */
class ToolDialog : public QDialog
{
    Q_OBJECT

public:
    explicit ToolDialog(QWidget* parent = nullptr);
    ~ToolDialog() override;

    void done(int result) override;

protected:
    /** Adds a run, owned by the dialog. */
    ToolRun* addRun(QPlainTextEdit* status, const QList<QPushButton*>& buttons);
    [[nodiscard]] bool isBusy() const;
    /** Stops all running programs. */
    void stop();
    void showInfo(const QString& text);
    /** Shows a start or run error: the number in the status box, the text in a message box. */
    void showError(ToolRun* run, int number);

private:
    std::vector<std::unique_ptr<ToolRun>> m_runs;
};
