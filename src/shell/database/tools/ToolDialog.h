#pragma once

#include <QDialog>

#include <memory>
#include <vector>

class QPlainTextEdit;
class QPushButton;
class ToolRun;

/** A form that lets PostgreSQL's programs work: it does not close over one that is still at it without asking. */
class ToolDialog : public QDialog
{
    Q_OBJECT

public:
    explicit ToolDialog(QWidget* parent = nullptr);
    ~ToolDialog() override;

    void done(int result) override;

protected:
    /** Stands as long as the form. */
    ToolRun* addRun(QPlainTextEdit* status, const QList<QPushButton*>& buttons);
    [[nodiscard]] bool isBusy() const;
    /** Ends every program that is at work. */
    void stop();
    void showInfo(const QString& text);
    /** Of a program that did not start or end as it should: the number in the status box, the words in a box. */
    void showError(ToolRun* run, int number);

private:
    std::vector<std::unique_ptr<ToolRun>> m_runs;
};
