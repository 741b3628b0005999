#pragma once

#include "app/context/EntityPool.h"
#include "zavel/payment/BillLines.h"
#include "zavel/payment/PaymentDialog.h"

class EntityInvoiceLink;
class EntityOrder;

/**
 * The payment form of an order, on a table or to take away: turns the order into an invoice, prints the bill and
 * finishes the order. The form stays open after saving; after a failed save it keeps the user's input.
 */
class OrderPaymentDialog : public PaymentDialog
{
    Q_OBJECT

public:
    /**
     * Opens the order's invoice or a new one. Returns false if the cashier cancelled or the invoices could not be read;
     * the form must then not be shown. The form does not own the order, but objects that it sets in the order are
     * deleted with the form.
     */
    [[nodiscard]] bool openOrder(EntityOrder* order);

    KorEntity* getEntity() override;
    void setEntity(KorEntity* sale) override;
    bool beforeAccept() override;

public slots:
    void on_btnFinish_clicked();

protected:
    /** The texts of the form's questions and messages. */
    struct Texts
    {
        QString print;
        QString finish;
        QString notSavedYet;
    };

    OrderPaymentDialog(NetDueSign netDue, QWidget* parent) : PaymentDialog(netDue, parent) {}

    // Defined by each form.
    [[nodiscard]] virtual Texts texts() const = 0;
    virtual void setLines(const InvoiceLines& lines) = 0;
    /** Reads the order; an error stays in the service. */
    virtual EntityOrder* readOrder(int id) = 0;
    virtual QList<EntityInvoiceLink*> readInvoices(int orderId) = 0;
    /** Chooses which of the order's invoices to open; null if the cashier cancels. */
    virtual EntityInvoiceLink* choose(const QList<EntityInvoiceLink*>& invoices) { return invoices.first(); }
    virtual EntityInvoiceLink* createSale() = 0;
    virtual EntityInvoiceLink* readSale(int id) = 0;
    [[nodiscard]] virtual EntityOrder* orderOf(const EntityInvoiceLink& sale) const = 0;
    /** Fills the fields that the link stores besides the invoice; both objects belong to the form. */
    virtual void fillSale(EntityInvoiceLink* sale, EntityOrder* order) = 0;
    /** Shows the fields that the link stores besides the invoice. */
    virtual void showSale(const EntityInvoiceLink&) {}
    virtual void showOrder(const EntityOrder& order) = 0;
    virtual bool finish(EntityOrder* order) = 0;
    virtual void printBill(int saleId) = 0;

    /** Invoice ids of the order's bills that this form knows; other bills were created elsewhere meanwhile. */
    [[nodiscard]] const QList<int>& knownBills() const { return m_knownBills; }
    void addKnownBills(const QList<int>& invoiceIds) { m_knownBills += invoiceIds; }
    /** Shows a new invoice with these lines. */
    void showNewSale(EntityOrder* order, const InvoiceLines& lines);
    /** Saves, reads again and offers to print; false, after a message, if saving or reading failed. */
    bool saveInvoice();
    void offerToFinish();
    /** Saves and prints the bill without asking. */
    void saveAndPrint(QWidget* button);
    /** Reads order and invoice from the database again; false, after a message, if that fails. */
    bool readAgain();
    /** The same without a message; an error stays in the service. */
    bool readStored();
    /** The same after a save: the message says that the invoice is saved and only reading failed. */
    bool readSaved();

    /** Shows why the record with this id could not be read: an error, or it does not exist. */
    void showMissing(int id);

    [[nodiscard]] bool isStored() const override;
    [[nodiscard]] EntityOrder* order() const { return m_order; }
    /** Null before the first save. */
    [[nodiscard]] EntityInvoiceLink* sale() const { return m_sale; }

private:
    enum Remedy { ChangeBill, MakeSecondBill, LeaveBill };
    /** Shows what was ordered or taken back since the order was billed, and asks what to do about it. */
    Remedy askForRemedy(const BillDifference& difference);
    /** Updates the lines of the bill shown to match the order, without saving. */
    void changeLines(const BillDifference& difference);
    /** Shows who has billed the order meanwhile, and opens that bill on request; false if nobody has. */
    bool showBillOfAnother();
    /** Whether the order may be finished: its bills match it, or the cashier confirms. */
    bool mayEnd();
    bool finishOrder();

    // Owns everything that the form has read, until it is deleted: its lines may refer to items read earlier.
    EntityPool m_read;
    EntityOrder* m_order = nullptr;
    EntityInvoiceLink* m_sale = nullptr;
    bool m_print = false;
    QList<int> m_knownBills;
};
