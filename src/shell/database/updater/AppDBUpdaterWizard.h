#pragma once

#include <QWizard>

class AppDBUpdateConclusion;

/** The wizard that updates an older database, with two pages. */
class AppDBUpdaterWizard final : public QWizard
{
    Q_OBJECT

public:
    enum Pages { InfoPage, ConclusionPage };

    explicit AppDBUpdaterWizard(QWidget* parent = nullptr);

    [[nodiscard]] AppDBUpdateConclusion* conclusion() const { return m_conclusion; }

private:
    AppDBUpdateConclusion* m_conclusion;
};
