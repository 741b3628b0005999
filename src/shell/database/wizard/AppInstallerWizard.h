#pragma once

#include <QWizard>

class ConclusionPage;

/**
 * Sets up a workstation that has no settings file: with a new database or with one restored from a backup. Writes the
 * settings file. It cannot be closed during the installation or restore.
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
