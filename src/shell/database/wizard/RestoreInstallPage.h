#pragma once

#include "shell/database/wizard/DetailsPage.h"

class QCheckBox;

/**
 * Which backup goes where. The check box alone need not be set. The field "restore.aside" names the database that made
 * way for the backup; empty where there was none.
 */
class RestoreInstallPage final : public DetailsPage
{
    Q_OBJECT

public:
    explicit RestoreInstallPage(QWidget* parent = nullptr);

    /** Asks before the backup takes the place of a database that holds tables; goes on where there is nothing to ask.
     */
    bool validatePage() override;
    [[nodiscard]] int nextId() const override;

private slots:
    void handleBrowse();

private:
    /** The database can be looked into, perhaps by another port than the one that was entered. */
    bool openTarget();
    bool replace(int tables);

    QLineEdit* m_file;
    QCheckBox* m_create;
};
