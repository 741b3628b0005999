#pragma once

#include <QWidget>

class KorEntity;
class MoneyEdit;
class QHBoxLayout;

/** The totals of the shown rows, below the ledger. There is no opening balance. */
class LedgerTotals final : public QWidget
{
    Q_OBJECT

public:
    explicit LedgerTotals(QWidget* parent = nullptr);

    void show(const QList<KorEntity*>& rows);

private:
    MoneyEdit* addField(QHBoxLayout* row, const QString& name, const QString& label);

    MoneyEdit* m_debit;
    MoneyEdit* m_credit;
    MoneyEdit* m_balance;
};
