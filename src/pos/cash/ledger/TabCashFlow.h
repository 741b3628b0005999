#pragma once

#include "app/widgets/AppListTab.h"

#include <QHash>

class BankTextBox;
class LedgerTotals;
class QComboBox;
class QDateEdit;
class QLabel;
class QLineEdit;

/** The page of the ledger: all movements of money in a period, for one account or all, and the manual entries. */
class TabCashFlow final : public AppListTab
{
    Q_OBJECT

public:
    explicit TabCashFlow(QWidget* parent = nullptr);

public slots:
    void onBankSelected();

protected:
    QList<KorEntity*> readRows(const QString& filter) override;
    KorEntityModel* createModel(const QList<KorEntity*>& rows) override;
    void modelApplied() override;
    std::unique_ptr<KorDialog> createDialog() override;
    [[nodiscard]] int addKey() const override;
    [[nodiscard]] int editKey() const override;
    [[nodiscard]] int deleteKey() const override;
    /** The manual entry of the row; null for a document's row, which can only be edited in its own form. */
    KorEntity* readEntity(int id) override;
    [[nodiscard]] QString notFoundText(int id) const override;
    [[nodiscard]] QString deleteNotFoundText(int id) const override;
    [[nodiscard]] QString deleteQuestion(const KorEntity* entity) const override;

private:
    void makeFilters();

    QDateEdit* m_from = nullptr;
    QDateEdit* m_to = nullptr;
    QComboBox* m_type = nullptr;
    QLineEdit* m_code = nullptr;
    BankTextBox* m_accounts = nullptr;
    QLabel* m_accountName = nullptr;
    LedgerTotals* m_totals;
    /** Row ids by number: ledger rows have no id, but the grid needs one that stays the same after a refresh. */
    QHash<QString, int> m_ids;
};
