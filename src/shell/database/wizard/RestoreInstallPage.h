#pragma once

#include "shell/database/wizard/DetailsPage.h"

class QCheckBox;

/**
 * Asks for the backup and the target database. Only the check box is optional. The field "restore.aside" is the new
 * name of a database that was renamed for the backup; empty if there was none.
 */
class RestoreInstallPage final : public DetailsPage
{
    Q_OBJECT

public:
    explicit RestoreInstallPage(QWidget* parent = nullptr);

    /** Asks before the backup replaces a database that has tables. */
    bool validatePage() override;
    [[nodiscard]] int nextId() const override;

private slots:
    void handleBrowse();

private:
    /** True if the database can be opened, perhaps through another port than the one entered. */
    bool openTarget();
    bool replace(int tables);

    QLineEdit* m_file;
    QCheckBox* m_create;
};
