#pragma once

#include <QWizardPage>

class QPlainTextEdit;
class ZavelInstaller;

/** The page on which a wizard's work is done: a status box that takes the lines of the worker. */
class InstallProgressPage : public QWizardPage
{
    Q_OBJECT

public:
    explicit InstallProgressPage(QWidget* parent = nullptr);

    [[nodiscard]] bool isRunning() const { return m_running; }

public slots:
    void onProgress(int perc, const QString& status);
    void errorString(const QString& err);

signals:
    /** The installer has ended, well or not. */
    void ended();

protected:
    [[nodiscard]] QPlainTextEdit* statusBox() const { return m_status; }
    /** A line for each step of the last run that failed; empty after a good one. */
    [[nodiscard]] const QStringList& failures() const { return m_failures; }
    /** Runs it on a thread of its own; one at a time: a second one is thrown away. Takes the installer over. */
    void run(ZavelInstaller* installer);

private:
    void keepFailure(const QString& status, const QStringList& reasons, bool expected);
    void sumUp();

    QPlainTextEdit* m_status;
    QStringList m_failures;
    bool m_running = false;
};
