#pragma once

#include "zavel/payment/BillLines.h"
#include "zavel/payment/OrderPaymentDialog.h"

#include <memory>

class EntityInvoiceMakanDitempat;
class EntityMakanDitempat;
class TabBayarMakanDitempatDetail;

namespace Ui
{
class DialogBayarMakanDitempat;
}

/** The payment form of a table. When guests pay separately, each group gets its own invoice. */
class DialogBayarMakanDitempat final : public OrderPaymentDialog
{
    Q_OBJECT

public:
    explicit DialogBayarMakanDitempat(QWidget* parent = nullptr);
    ~DialogBayarMakanDitempat() override;

    bool validate() override;
    bool beforeAccept() override;

public slots:
    void onTableSelected() {}
    void on_btnPrintBill_clicked();
    /** Saves the invoice with the remaining lines, then opens a payment form for each group. */
    void onSplitInvoice();
    /** Collects the split-off lines by group. */
    void getSplitInvoices();

protected:
    [[nodiscard]] QList<EntityInvoiceDetail*> invoiceLines() const override;
    void focusLines() override;
    [[nodiscard]] Texts texts() const override;
    void setLines(const InvoiceLines& lines) override;
    EntityOrder* readOrder(int id) override;
    QList<EntityInvoiceLink*> readInvoices(int orderId) override;
    EntityInvoiceLink* choose(const QList<EntityInvoiceLink*>& invoices) override;
    EntityInvoiceLink* createSale() override;
    EntityInvoiceLink* readSale(int id) override;
    [[nodiscard]] EntityOrder* orderOf(const EntityInvoiceLink& sale) const override;
    void fillSale(EntityInvoiceLink* sale, EntityOrder* order) override;
    void showSale(const EntityInvoiceLink& sale) override;
    void showOrder(const EntityOrder& order) override;
    bool finish(EntityOrder* order) override;
    void printBill(int saleId) override;

private:
    /** Shows one group: its note is shown instead of the invoice number, and the form never finishes the order. */
    void showGroup(EntityMakanDitempat* order, const InvoiceLines& lines, const QString& note);
    /** False if the group got no invoice: the cashier closed the form, or the order could not be read. */
    bool payGroup(const QString& group, const InvoiceLines& lines);
    /** Moves unpaid lines back to the invoice. */
    void takeBack(const InvoiceLines& lines);
    [[nodiscard]] bool confirmsSplit();

    std::unique_ptr<Ui::DialogBayarMakanDitempat> m_ui;
    TabBayarMakanDitempatDetail* m_menu;
    QMap<QString, InvoiceLines> m_groups;
    bool m_isGroup = false;
    bool m_splitting = false;
    bool m_saved = false;
};
