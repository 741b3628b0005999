#pragma once

#include "zavel/payment/OrderPaymentDialog.h"

#include <memory>

class TabBayarBawaPulangDetail;

namespace Ui
{
class DialogBayarBawaPulang;
}

/** The payment form of a take-away order, which has exactly one invoice. */
class DialogBayarBawaPulang final : public OrderPaymentDialog
{
    Q_OBJECT

public:
    explicit DialogBayarBawaPulang(QWidget* parent = nullptr);
    ~DialogBayarBawaPulang() override;

public slots:
    void on_btnPrint_clicked();

protected:
    [[nodiscard]] QList<EntityInvoiceDetail*> invoiceLines() const override;
    void focusLines() override;
    [[nodiscard]] Texts texts() const override;
    void setLines(const InvoiceLines& lines) override;
    EntityOrder* readOrder(int id) override;
    QList<EntityInvoiceLink*> readInvoices(int orderId) override;
    EntityInvoiceLink* createSale() override;
    EntityInvoiceLink* readSale(int id) override;
    [[nodiscard]] EntityOrder* orderOf(const EntityInvoiceLink& sale) const override;
    void fillSale(EntityInvoiceLink* sale, EntityOrder* order) override;
    void showOrder(const EntityOrder&) override {}
    bool finish(EntityOrder* order) override;
    void printBill(int saleId) override;

private:
    std::unique_ptr<Ui::DialogBayarBawaPulang> m_ui;
    TabBayarBawaPulangDetail* m_menu;
};
