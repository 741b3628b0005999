#pragma once

#include <QWizard>

class AppDBUpdateConclusion;

/** Leads through the update of an older database in two pages. */
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
