#pragma once

#include "pos/cash/settlement/SettlementTab.h"

/** The page of the commission form: the invoices that the payment pays for, each with its percent. */
class TabKomisiAgenDetail final : public SettlementTab
{
    Q_OBJECT

public:
    explicit TabKomisiAgenDetail(QWidget* parent = nullptr);

public slots:
    /** Removes the selected invoices from the payment; they stay unpaid. */
    void on_pushButton_clicked();
    void on_btnSetPerc_clicked();

protected:
    [[nodiscard]] KorEntityModel* createModel(const QList<KorEntity*>& lines) override;
};
