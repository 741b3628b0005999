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

/** The payment form of a table. A party that pays apart gets an invoice for each of its groups. */
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
    /** Saves the invoice with what stays on it, then takes the money of each group in a form of its own. */
    void onSplitInvoice();
    /** Sorts what is split off into its groups. */
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
    /** Makes the form that of a group: its note stands where the number will be, and it never ends the table. */
    void showGroup(EntityMakanDitempat* order, const InvoiceLines& lines, const QString& note);
    /** False when the group has no invoice: the cashier left the form, or the order could not be read. */
    bool payGroup(const QString& group, const InvoiceLines& lines);
    /** The invoice takes back what nobody paid for. */
    void takeBack(const InvoiceLines& lines);
    [[nodiscard]] bool confirmsSplit();

    std::unique_ptr<Ui::DialogBayarMakanDitempat> m_ui;
    TabBayarMakanDitempatDetail* m_menu;
    QMap<QString, InvoiceLines> m_groups;
    bool m_isGroup = false;
    bool m_splitting = false;
    bool m_saved = false;
};
