#pragma once

#include "app/widgets/AppListTab.h"

class QDateEdit;

/** The list of transfers between accounts. */
class TabTransfer final : public AppListTab
{
    Q_OBJECT

public:
    explicit TabTransfer(QWidget* parent = nullptr);

protected:
    QList<KorEntity*> readRows(const QString& filter) override;
    KorEntityModel* createModel(const QList<KorEntity*>& rows) override;
    void modelApplied() override;
    std::unique_ptr<KorDialog> createDialog() override;
    [[nodiscard]] QString notFoundText(int id) const override;
    [[nodiscard]] QString deleteNotFoundText(int id) const override;
    [[nodiscard]] QString deleteQuestion(const KorEntity* entity) const override;

private:
    QDateEdit* m_from;
    QDateEdit* m_to;
};
