#pragma once

#include "kor/widgets/KorDialog.h"
#include "pos/totals/TotalsCascade.h"
#include "zavel/payment/PaymentParties.h"

class BusinessPenjualan;
class EntityInvoiceDetail;
class EntityMember;
class Invoice;
class QDateEdit;
class QDialogButtonBox;
class QPlainTextEdit;
class QTabWidget;

/**
 * Base of the payment forms of all kinds of sale: the guest, discount, tax and service, the amounts, and the account
 * that receives the money. A derived form has the layout, the invoice's lines and the saving.
 */
class PaymentDialog : public KorDialog
{
    Q_OBJECT

public:
    bool validate() override;

public slots:
    void onMemberSelected();
    void onAgentSelected() {}
    void onEmployeeSelected() {}
    void onItemAdded();
    void onTabItemSelected();
    void on_txtPaid_textChanged(const QString& text);
    void on_txtCredit_textChanged(const QString& text);
    void on_txtDiscPerc_editingFinished();
    void on_txtDiscount_editingFinished();
    void on_txtTaxPerc_editingFinished();
    void on_txtTax_editingFinished();
    void on_txtServicePerc_editingFinished();
    void on_txtService_editingFinished();
    // Amounts are not recalculated while the user types.
    void on_txtDiscPerc_textChanged(const QString&) {}
    void on_txtTaxPerc_textChanged(const QString&) {}
    void on_txtServicePerc_textChanged(const QString&) {}
    void on_txtDiscount_textChanged(const QString&) {}
    void on_txtTax_textChanged(const QString&) {}
    void on_txtService_textChanged(const QString&) {}
    void on_txtDiscount_selectionChanged() {}

protected:
    /** The boxes of a form; the form owns them. */
    struct Form
    {
        TotalsCascade::Boxes amounts;
        PaymentParties::Boxes parties;
        QLineEdit* number;
        QLineEdit* guest;
        QDateEdit* date;
        QPlainTextEdit* notes;
        QTabWidget* pages;
        QDialogButtonBox* buttons;
    };
    /** Collects the boxes by the object names that all forms use. */
    template <class Ui>
    static Form formOf(const Ui& ui)
    {
        return {ui.moneyPane->boxes(),
                {ui.txtMember, nullptr, nullptr, ui.txtCashAccount, ui.lblCashAccount},
                ui.txtKode,
                ui.txtNamaPelanggan,
                ui.datePay,
                ui.txtNotes,
                ui.tabDetail,
                ui.buttonBox};
    }

    /** The sign of the stored net due: the amount owed, or its negative, the change, as the form shows it. */
    enum NetDueSign { StoresWhatIsOwed, StoresWhatIsShown };

    PaymentDialog(NetDueSign netDue, QWidget* parent);

    /** Must be called once, after the form's boxes and the page of lines are created. */
    void setUp(const Form& form, QWidget* linesPage);

    // Defined by each form.
    [[nodiscard]] virtual QList<EntityInvoiceDetail*> invoiceLines() const = 0;
    virtual void focusLines() = 0;
    /** A stored invoice keeps the discount that it was saved with. */
    [[nodiscard]] virtual bool isStored() const = 0;

    /** Shows an empty invoice: all amounts 0, this date and the default account. */
    void showNewInvoice(const QDate& date);
    /** Shows everything except the guest and the lines. */
    void showInvoice(const Invoice& invoice);
    void showGuest(EntityMember* member, const QString& name);
    void applyMemberDiscount(const EntityMember* member);
    /** Fills everything except the guest's name. Member and account are those found by the last validate(). */
    void fillInvoice(Invoice* invoice);

    bool ask(const QString& question);
    void onKey(const QKeySequence& key, const std::function<void()>& action);

    [[nodiscard]] BusinessPenjualan* sales() const { return m_sales; }
    [[nodiscard]] TotalsCascade* cascade() const { return m_cascade; }
    [[nodiscard]] PaymentParties* parties() const { return m_parties; }

private:
    void connectParties();
    void checkAmounts();

    NetDueSign m_netDue;
    BusinessPenjualan* m_sales;
    Form m_form{};
    QWidget* m_linesPage = nullptr;
    TotalsCascade* m_cascade = nullptr;
    PaymentParties* m_parties = nullptr;
};
