#pragma once

#include "pos/cash/settlement/PartPaymentsTab.h"

/** The page of the payment form: the open purchases of the supplier. */
class TabPaymentInvoice final : public PartPaymentsTab
{
    Q_OBJECT

public:
    explicit TabPaymentInvoice(QWidget* parent = nullptr);

public slots:
    /** Pays the selected purchases one after the other. */
    void on_btnPay_clicked() { paySelected(); }
    void on_btnPayAll_clicked() { payAll(); }

protected:
    [[nodiscard]] KorEntityModel* createModel(const QList<KorEntity*>& lines) override;
    [[nodiscard]] std::unique_ptr<KorDialog> createDialog() override;
};
