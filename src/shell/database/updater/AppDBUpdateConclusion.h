#pragma once

#include "shell/database/tools/InstallProgressPage.h"

class KorInstaller;
class QTimer;

/** The page on which the database is brought up to date; once only, whatever is pressed. */
class AppDBUpdateConclusion final : public InstallProgressPage
{
    Q_OBJECT

public:
    explicit AppDBUpdateConclusion(QWidget* parent = nullptr);

    void initializePage() override;
    /** Whoever finishes before the work began has asked for it all the same. */
    bool validatePage() override;

signals:
    /** The page is there, and the work begins in a moment: from now on nobody else may use the database. */
    void entered();
    /** The work begins; it goes on when the page is gone. */
    void begun(KorInstaller* installer);

private:
    void begin();

    QTimer* m_delay;
    QTimer* m_standstill;
};
