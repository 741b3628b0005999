#pragma once

#include <QWizardPage>

/** The first page of the update: explains it and asks for a backup before it. */
class AppDbUpdateInfo final : public QWizardPage
{
    Q_OBJECT

public:
    explicit AppDbUpdateInfo(QWidget* parent = nullptr);
};
