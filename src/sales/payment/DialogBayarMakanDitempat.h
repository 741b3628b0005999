#pragma once

#include "app/context/EntityPool.h"
#include "kor/widgets/KorDialog.h"
#include "sales/invoice/InvoiceTotals.h"

#include <memory>

class BusinessPenjualan;
class EntityInvoiceDetail;
class EntityInvoiceMakanDitempat;
class EntityMakanDitempat;
class EntityMember;
class PaymentCascade;
class PaymentParties;
class TabBayarMakanDitempatDetail;

namespace Ui
{
class DialogBayarMakanDitempat;
}

/**
 * Turns the order of a table into an invoice: takes discount, tax and service, takes the money, prints the bill and
 * ends the table. A save leaves the form open on the saved invoice; a failed one leaves it as it was typed.
 */
class DialogBayarMakanDitempat final : public KorDialog
{
    Q_OBJECT

public:
    explicit DialogBayarMakanDitempat(QWidget* parent = nullptr);
    ~DialogBayarMakanDitempat() override;

    /**
     * Opens the order's invoice, the one that the cashier chooses among several, or a new one. False means that the
     * action is to be dropped: the cashier cancelled, or the invoices could not be read. The order is borrowed;
     * what the form puts into it dies with the form.
     */
    [[nodiscard]] bool openOrder(EntityMakanDitempat* order);

    bool validate() override;
    KorEntity* getEntity() override;
    void setEntity(KorEntity* entity) override;
    bool beforeAccept() override;

public slots:
    void onTableSelected();
    void onMemberSelected();
    void onAgentSelected();
    void onEmployeeSelected();
    void onItemAdded();
    void onTabItemSelected();
    void on_txtDiscPerc_textChanged(const QString&) {}
    void on_txtTaxPerc_textChanged(const QString&) {}
    void on_txtServicePerc_textChanged(const QString&) {}
    void on_txtPaid_textChanged(const QString& text);
    void on_txtCredit_textChanged(const QString& text);
    void on_btnFinish_clicked();
    void onCashAccountSelected();
    void on_btnPrintBill_clicked();
    void on_txtDiscPerc_editingFinished();
    void on_txtDiscount_textChanged(const QString&) {}
    void on_txtService_textChanged(const QString&) {}
    void on_txtDiscount_selectionChanged() {}
    void on_txtTax_textChanged(const QString&) {}
    void on_txtDiscount_editingFinished();
    void on_txtTaxPerc_editingFinished();
    void on_txtTax_editingFinished();
    void on_txtServicePerc_editingFinished();
    void on_txtService_editingFinished();

private:
    void setUpFields();
    void newInvoice();
    void showInvoice();
    void showGuest();
    void applyMemberDiscount(const EntityMember* member);
    void checkAmounts();
    bool readOrderAgain();
    void readInvoiceAgain();
    void showMissing(int id);
    void saveInvoice();
    void offerToPrint();
    void offerToFinish();
    bool finishTable();
    void printBill();
    bool ask(const QString& question);
    void showServiceError();

    std::unique_ptr<Ui::DialogBayarMakanDitempat> m_ui;
    BusinessPenjualan* m_sales;
    PaymentCascade* m_cascade;
    PaymentParties* m_parties;
    TabBayarMakanDitempatDetail* m_menu;
    // What the form read last: the order, the invoice and all that hangs on them. A reload replaces it.
    EntityPool m_read;
    EntityMakanDitempat* m_order = nullptr;
    EntityInvoiceMakanDitempat* m_sale = nullptr;
    bool m_print = false;
};
