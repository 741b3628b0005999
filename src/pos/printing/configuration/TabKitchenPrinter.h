#pragma once

#include "app/widgets/AppListTab.h"

class QComboBox;

/** The list of the kitchens and their printers. */
class TabKitchenPrinter final : public AppListTab
{
    Q_OBJECT

public:
    explicit TabKitchenPrinter(QWidget* parent = nullptr);

protected:
    // One right covers adding, editing and deleting.
    [[nodiscard]] int editKey() const override { return 0; }
    [[nodiscard]] int deleteKey() const override { return 0; }
    QList<KorEntity*> readRows(const QString& filter) override;
    KorEntityModel* createModel(const QList<KorEntity*>& rows) override;
    std::unique_ptr<KorDialog> createDialog() override;
    [[nodiscard]] QString deleteQuestion(const KorEntity* entity) const override;
    void modelApplied() override;

private:
    QComboBox* m_column;
};
