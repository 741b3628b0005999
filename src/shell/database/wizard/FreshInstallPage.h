#pragma once

#include "shell/database/wizard/DetailsPage.h"

/** Asks for the database of a new installation and for its administrator. */
class FreshInstallPage final : public DetailsPage
{
    Q_OBJECT

public:
    explicit FreshInstallPage(QWidget* parent = nullptr);

    void initializePage() override;
    /** Opens the database, asks before it replaces tables, and writes the settings file. */
    bool validatePage() override;
    [[nodiscard]] int nextId() const override;

private:
    QString m_settingsPath;
    QLineEdit* m_adminName;
    bool m_nothingToInstall = false;
};
