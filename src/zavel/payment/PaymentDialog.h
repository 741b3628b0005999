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
 * The payment form that all ways of selling share: who pays, discount, tax and service, the money, the account that
 * takes it. A concrete form lays the boxes out, knows the lines that are paid for and what a save does.
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
    // Nothing follows from an amount while it is being typed.
    void on_txtDiscPerc_textChanged(const QString&) {}
    void on_txtTaxPerc_textChanged(const QString&) {}
    void on_txtServicePerc_textChanged(const QString&) {}
    void on_txtDiscount_textChanged(const QString&) {}
    void on_txtTax_textChanged(const QString&) {}
    void on_txtService_textChanged(const QString&) {}
    void on_txtDiscount_selectionChanged() {}

protected:
    /** The boxes of a form, which owns them. */
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
    /** The boxes that every form has, by the names that they have in common. */
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

    /** What the stored net due means: what is owed, or the change that the form shows, which has the other sign. */
    enum NetDueSign { StoresWhatIsOwed, StoresWhatIsShown };

    PaymentDialog(NetDueSign netDue, QWidget* parent);

    /** Called once, when the form's boxes and the page of the lines are made. */
    void setUp(const Form& form, QWidget* linesPage);

    // What a concrete form tells.
    [[nodiscard]] virtual QList<EntityInvoiceDetail*> invoiceLines() const = 0;
    virtual void focusLines() = 0;
    /** A stored invoice keeps the discount that it was saved with. */
    [[nodiscard]] virtual bool isStored() const = 0;

    /** Zero everywhere, today, and the default account. */
    void showNewInvoice(const QDate& date);
    /** All but the guest and the lines. */
    void showInvoice(const Invoice& invoice);
    void showGuest(EntityMember* member, const QString& name);
    void applyMemberDiscount(const EntityMember* member);
    /** All but the guest's name. The member and the account are those of the last validation. */
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
