#pragma once

#include <QWizardPage>

class QPlainTextEdit;
class ZavelInstaller;

/** Base of the wizard pages that run an installer; a status box shows its progress lines. */
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
    /** The installer has ended, with or without errors. */
    void ended();

protected:
    [[nodiscard]] QPlainTextEdit* statusBox() const { return m_status; }
    /** One line per failed step of the last run; empty after success. */
    [[nodiscard]] const QStringList& failures() const { return m_failures; }
    /** Runs the installer on a separate thread. If one is running already, the new one is deleted. Takes ownership. */
    void run(ZavelInstaller* installer);

private:
    void keepFailure(const QString& status, const QStringList& reasons, bool expected);
    void sumUp();

    QPlainTextEdit* m_status;
    QStringList m_failures;
    bool m_running = false;
};
