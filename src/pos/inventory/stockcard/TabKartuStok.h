#pragma once

#include "app/widgets/AppListTab.h"

class ItemField;
class QDateEdit;

/** The stock card: the movements of one item in a period; read-only. */
class TabKartuStok final : public AppListTab
{
    Q_OBJECT

public:
    explicit TabKartuStok(QWidget* parent = nullptr);
    ~TabKartuStok() override;

public slots:
    void onItemSelected();

protected:
    QList<KorEntity*> readRows(const QString& filter) override;
    KorEntityModel* createModel(const QList<KorEntity*>& rows) override;
    std::unique_ptr<KorDialog> createDialog() override;
    [[nodiscard]] QString deleteQuestion(const KorEntity*) const override { return {}; }
    void modelApplied() override;

private:
    void makeFilters();
    void makeTotals();

    QDateEdit* m_from;
    QDateEdit* m_to;
    ItemField* m_item;
    QLabel* m_in;
    QLabel* m_balance;
};
