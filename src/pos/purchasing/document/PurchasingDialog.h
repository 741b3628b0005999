#pragma once

#include "kor/widgets/KorDialog.h"
#include "pos/purchasing/document/EntityPurchasingLine.h"
#include "pos/totals/TotalsCascade.h"

class AccountField;
class AppLinesTab;
class EntitySupplier;
class PurchasingTotalsPane;
class QDateEdit;
class QTabWidget;
template <typename Entity>
class RecordField;

/**
 * The form that all purchasing documents share: the supplier, pages of lines, discount and tax, the money, the account.
 * A concrete form lays the boxes out, has the pages and knows its record.
 */
class PurchasingDialog : public KorDialog
{
    Q_OBJECT

public:
    using PurchasingLines = QList<EntityPurchasingLine*>;

    bool validate() override;

public slots:
    /** The supplier's box names another one, or none. */
    void onSupplierSelected();
    void onItemAdded();
    void on_txtPaid_textChanged(const QString&);
    void on_txtDiscPerc_editingFinished();
    void on_txtDiscount_editingFinished();
    void on_txtTaxPerc_editingFinished();
    void on_txtTax_editingFinished();

protected:
    /** The boxes of a form, which owns them. */
    struct Form
    {
        QLineEdit* supplier;
        QLineEdit* supplierName;
        QLineEdit* supplierAddress;
        QLineEdit* supplierPhone;
        QList<QDateEdit*> dates;
        PurchasingTotalsPane* totals;
        QTabWidget* pages;
        QDialogButtonBox* buttons;
    };
    /** The boxes that every form has, by the names that they have in common; the dates are the form's own. */
    template <class Ui>
    static Form formOf(const Ui& ui)
    {
        return {ui.txtSupplier, ui.txtSupplierName, ui.txtSupplierAddress, ui.txtSupplierPhone, {},
                ui.totalsPane,  ui.tabDetail,       ui.buttonBox};
    }
    struct Words
    {
        QString noSupplier;
        QString noLine;
        QString noAccount;
        QString unknownAccount;
    };

    explicit PurchasingDialog(QWidget* parent) : KorDialog(parent) {}

    /** The account that orders, purchases and returns start with. */
    [[nodiscard]] static QString payableAccount() { return "2000"; }

    /** Called once, at the end of the constructor; a new document starts with the account that is handed in. */
    void setUpPurchasing(const Form& form, const Words& words, const QString& accountCode);
    /** To be called behind it: the form edits such documents, by these boxes and those of supplier and account. */
    template <class Document>
    void editsDocument(const QList<Bound>& boxes)
    {
        edits<Document>({{supplierField(), "Supplier"}});
        edits<Document>(boxes);
        edits<Document>({{accountField(), "Bank"}});
    }
    /** Puts a page of lines into the form, which F3, F4 and so on lead to. */
    void addLinesPage(AppLinesTab* page, const QString& title, Qt::Key key);

    // What a concrete form tells.
    /** The lines of all pages. */
    [[nodiscard]] virtual PurchasingLines allLines() const = 0;
    /** Reports what is wrong with the lines; by default that there is none. */
    virtual void checkLines();
    /** Reports what is wrong with further boxes, between the lines and the account. */
    virtual void checkMoney() {}
    /** Another supplier was chosen, or none. */
    virtual void supplierChanged() {}

    void showTotals(const InvoiceTotals& stored);
    /** What the boxes say now. */
    [[nodiscard]] const InvoiceTotals& totals();

    /** As the last validation found it; lives as long as the form. */
    [[nodiscard]] EntitySupplier* supplier() const;
    [[nodiscard]] const Words& words() const { return m_words; }
    [[nodiscard]] QTabWidget* pages() const { return m_form.pages; }
    [[nodiscard]] TotalsCascade* cascade() const { return m_cascade; }

private:
    [[nodiscard]] QObject* supplierField() const;
    [[nodiscard]] QObject* accountField() const;
    /** Money that does not come from a cash account is no cash that has left the drawer. */
    void noteWhatCashMisses();
    void checkAmounts();

    Form m_form{};
    Words m_words;
    TotalsCascade* m_cascade = nullptr;
    AccountField* m_account = nullptr;
    RecordField<EntitySupplier>* m_supplier = nullptr;
};
