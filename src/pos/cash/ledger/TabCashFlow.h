#pragma once

#include "app/widgets/AppListTab.h"

#include <QHash>

class BankTextBox;
class LedgerTotals;
class QComboBox;
class QDateEdit;
class QLabel;
class QLineEdit;

/** The ledger: every movement of money of a period, of one account or all, and the entries made by hand. */
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
    /** The entry made by hand behind the row; a row of a document has none and is changed where it was made. */
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
    /** Rows are known by their numbers: these are what the grid has instead of ids, the same at every refresh. */
    QHash<QString, int> m_ids;
};
