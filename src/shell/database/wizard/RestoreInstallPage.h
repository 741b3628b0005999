#pragma once

#include "shell/database/wizard/DetailsPage.h"

/** Which backup goes where. The check box alone need not be set. */
class RestoreInstallPage final : public DetailsPage
{
    Q_OBJECT

public:
    explicit RestoreInstallPage(QWidget* parent = nullptr);

    [[nodiscard]] int nextId() const override;

private slots:
    void handleBrowse();

private:
    QLineEdit* m_file;
};
