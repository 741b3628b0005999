#pragma once

#include "shell/database/wizard/DetailsPage.h"

/** Where a fresh installation goes, and who administrates it. */
class FreshInstallPage final : public DetailsPage
{
    Q_OBJECT

public:
    explicit FreshInstallPage(QWidget* parent = nullptr);

    void initializePage() override;
    /** Opens the database, asks before it loses anything, and leaves the settings file behind. */
    bool validatePage() override;
    [[nodiscard]] int nextId() const override;

private:
    QString m_settingsPath;
    QLineEdit* m_adminName;
    bool m_nothingToInstall = false;
};
