#pragma once

#include <QWizardPage>

class QRadioButton;

/** Asks whether to begin with an empty database or with a backup. */
class IntroPage final : public QWizardPage
{
    Q_OBJECT

public:
    explicit IntroPage(QWidget* parent = nullptr);

    [[nodiscard]] int nextId() const override;

private:
    QRadioButton* m_fresh;
};
