#pragma once

#include "cash/settlement/SettlementTab.h"

/** The page of the member payment form: the open invoices, to be paid one by one or all together. */
class TabPiutangInvoice final : public SettlementTab
{
    Q_OBJECT

public:
    explicit TabPiutangInvoice(QWidget* parent = nullptr);

public slots:
    // The names are the reverse of what the buttons do.
    /** Pays all invoices. */
    void on_pushButton_clicked();
    /** Pays the selected invoice. */
    void on_btnPayAll_clicked();

protected:
    [[nodiscard]] KorEntityModel* createModel(const QList<KorEntity*>& lines) override;
};
