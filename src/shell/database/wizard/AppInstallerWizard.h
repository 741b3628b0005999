#pragma once

#include <QWizard>

class ConclusionPage;

/**
 * Sets up a workstation that has no settings file: with a fresh database, or with one that is restored from a backup.
 * It leaves the settings file behind. While its work runs it cannot be closed.
 */
class AppInstallerWizard final : public QWizard
{
    Q_OBJECT

public:
    enum Page { Intro = 0, FreshInstall = 2, RestoreInstall = 3, Conclusion = 4 };

    explicit AppInstallerWizard(QWidget* parent = nullptr);

    void done(int result) override;

private:
    ConclusionPage* m_conclusion;
};
