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
 * Base of the forms of purchasing documents: supplier, pages of lines, discount and tax, amounts, account. A subclass
 * has the widgets, the pages and the record.
 */
class PurchasingDialog : public KorDialog
{
    Q_OBJECT

public:
    using PurchasingLines = QList<EntityPurchasingLine*>;

    bool validate() override;

public slots:
    /** The supplier field has another supplier, or none. */
    void onSupplierSelected();
    void onItemAdded();
    void on_txtPaid_textChanged(const QString&);
    void on_txtDiscPerc_editingFinished();
    void on_txtDiscount_editingFinished();
    void on_txtTaxPerc_editingFinished();
    void on_txtTax_editingFinished();

protected:
    /** The widgets of a form, which owns them. */
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
    /** The widgets with the same names in every form. Each form sets its own dates. */
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

    /** The initial account of orders, purchases and returns. */
    [[nodiscard]] static QString payableAccount() { return "2000"; }

    /** Call it once, at the end of the constructor; the account is that of a new document. */
    void setUpPurchasing(const Form& form, const Words& words, const QString& accountCode);
    /** Call it after setUpPurchasing(): binds these boxes, supplier and account to the fields of the document. */
    template <class Document>
    void editsDocument(const QList<Bound>& boxes)
    {
        edits<Document>({{supplierField(), "Supplier"}});
        edits<Document>(boxes);
        edits<Document>({{accountField(), "Bank"}});
    }
    /** Adds a page of lines; the key (F3, F4 and so on) shows it. */
    void addLinesPage(AppLinesTab* page, const QString& title, Qt::Key key);

    // Defined by subclasses.
    /** The lines of all pages. */
    [[nodiscard]] virtual PurchasingLines allLines() const = 0;
    /** Adds errors about the lines; by default if there are none. */
    virtual void checkLines();
    /** Adds errors about further fields, between those of the lines and the account. */
    virtual void checkMoney() {}
    /** Called when another supplier was chosen, or none. */
    virtual void supplierChanged() {}

    void showTotals(const InvoiceTotals& stored);
    /** The current values of the fields. */
    [[nodiscard]] const InvoiceTotals& totals();

    /** Null if the code was not looked up yet or is unknown. The record lives as long as the form. */
    [[nodiscard]] EntitySupplier* supplier() const;
    [[nodiscard]] const Words& words() const { return m_words; }
    [[nodiscard]] QTabWidget* pages() const { return m_form.pages; }
    [[nodiscard]] TotalsCascade* cascade() const { return m_cascade; }

private:
    [[nodiscard]] QObject* supplierField() const;
    [[nodiscard]] QObject* accountField() const;
    /** Shows a note if the paying account is no cash account: the amount is then not counted at the day's close. */
    void noteWhatCashMisses();
    void checkAmounts();

    Form m_form{};
    Words m_words;
    TotalsCascade* m_cascade = nullptr;
    AccountField* m_account = nullptr;
    RecordField<EntitySupplier>* m_supplier = nullptr;
};
