#pragma once

#include "shell/database/tools/InstallProgressPage.h"

class KorInstaller;
class QTimer;

/** The page that runs the database update; it starts only once. */
class AppDBUpdateConclusion final : public InstallProgressPage
{
    Q_OBJECT

public:
    explicit AppDBUpdateConclusion(QWidget* parent = nullptr);

    void initializePage() override;
    /** If the user presses "Finish" before the update has started, it starts now. */
    bool validatePage() override;

signals:
    /** The page is shown and the update starts soon: nothing else may use the database from now on. */
    void entered();
    /** The update starts; it continues when the page is closed. */
    void begun(KorInstaller* installer);

private:
    void begin();

    QTimer* m_delay;
    QTimer* m_standstill;
};
