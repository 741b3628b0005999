#pragma once

#include "pos/cash/settlement/PartPaymentsTab.h"

/** The page of the member payment form: the open invoices of the member. */
class TabPiutangInvoice final : public PartPaymentsTab
{
    Q_OBJECT

public:
    explicit TabPiutangInvoice(QWidget* parent = nullptr);

public slots:
    // The buttons' object names are swapped.
    /** Pays all invoices. */
    void on_pushButton_clicked() { payAll(); }
    /** Pays the selected invoice. */
    void on_btnPayAll_clicked() { paySelected(); }

protected:
    [[nodiscard]] KorEntityModel* createModel(const QList<KorEntity*>& lines) override;
    [[nodiscard]] std::unique_ptr<KorDialog> createDialog() override;
};
