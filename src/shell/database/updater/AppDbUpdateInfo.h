#pragma once

#include <QWizardPage>

/** The first page of the update: what comes, and that a backup comes before it. */
class AppDbUpdateInfo final : public QWizardPage
{
    Q_OBJECT

public:
    explicit AppDbUpdateInfo(QWidget* parent = nullptr);
};
