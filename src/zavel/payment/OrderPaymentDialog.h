#pragma once

#include "app/context/EntityPool.h"
#include "zavel/payment/BillLines.h"
#include "zavel/payment/PaymentDialog.h"

class EntityInvoiceLink;
class EntityOrder;

/**
 * The payment form of an order, on a table or to take away: turns the order into an invoice, prints the bill and ends
 * the order. A save leaves the form open on the saved invoice; a failed one leaves it as it was typed.
 */
class OrderPaymentDialog : public PaymentDialog
{
    Q_OBJECT

public:
    /**
     * Opens the order's invoice or a new one. False means that the action is to be dropped: the cashier cancelled, or
     * the invoices could not be read. The order is borrowed; what the form puts into it dies with the form.
     */
    [[nodiscard]] bool openOrder(EntityOrder* order);

    KorEntity* getEntity() override;
    void setEntity(KorEntity* sale) override;
    bool beforeAccept() override;

public slots:
    void on_btnFinish_clicked();

protected:
    /** What the form asks and says. */
    struct Texts
    {
        QString print;
        QString finish;
        QString notSavedYet;
    };

    OrderPaymentDialog(NetDueSign netDue, QWidget* parent) : PaymentDialog(netDue, parent) {}

    // What a concrete form tells.
    [[nodiscard]] virtual Texts texts() const = 0;
    virtual void setLines(const InvoiceLines& lines) = 0;
    /** The order as it stands now; a failure is left in the service. */
    virtual EntityOrder* readOrder(int id) = 0;
    virtual QList<EntityInvoiceLink*> readInvoices(int orderId) = 0;
    /** The one to open of an order's invoices; null when the cashier wants none. */
    virtual EntityInvoiceLink* choose(const QList<EntityInvoiceLink*>& invoices) { return invoices.first(); }
    virtual EntityInvoiceLink* createSale() = 0;
    virtual EntityInvoiceLink* readSale(int id) = 0;
    [[nodiscard]] virtual EntityOrder* orderOf(const EntityInvoiceLink& sale) const = 0;
    /** What the link keeps beside the invoice; both are the form's. */
    virtual void fillSale(EntityInvoiceLink* sale, EntityOrder* order) = 0;
    /** Shows what the link keeps beside the invoice. */
    virtual void showSale(const EntityInvoiceLink&) {}
    virtual void showOrder(const EntityOrder& order) = 0;
    virtual bool finish(EntityOrder* order) = 0;
    virtual void printBill(int saleId) = 0;

    /** Bills of the order that were made beside this form, and with its knowledge. */
    [[nodiscard]] const QList<int>& knownBills() const { return m_knownBills; }
    void addKnownBills(const QList<int>& invoiceIds) { m_knownBills += invoiceIds; }
    /** A new invoice for these lines, which the form takes. */
    void showNewSale(EntityOrder* order, const InvoiceLines& lines);
    /** Saves, reads everything again and offers to print; false, with a box, when one of the first two failed. */
    bool saveInvoice();
    void offerToFinish();
    /** What a print button does: the bill comes without a question. */
    void saveAndPrint(QWidget* button);
    /** Replaces the order and the invoice by what stands in the database now; false, with a box, when it fails. */
    bool readAgain();
    /** The same without a word about a failure, which the service keeps. */
    bool readStored();
    /** The same behind a save: a failure to read is not taken for one to save. */
    bool readSaved();

    /** Tells why the record with this id could not be read: a failure, or that it is not there. */
    void showMissing(int id);

    [[nodiscard]] bool isStored() const override;
    [[nodiscard]] EntityOrder* order() const { return m_order; }
    /** Null before the first save. */
    [[nodiscard]] EntityInvoiceLink* sale() const { return m_sale; }

private:
    enum Remedy { ChangeBill, MakeSecondBill, LeaveBill };
    /** Tells what was ordered or taken back since the order was billed, and asks what to do about it. */
    Remedy askForRemedy(const BillDifference& difference);
    /** Brings the bill in hand up to the order; nothing is saved yet. */
    void changeLines(const BillDifference& difference);
    /** Says who has billed the order meanwhile, and opens that bill on request; false where nobody has. */
    bool showBillOfAnother();
    /** Whether the order may be ended: nothing is unbilled, or the cashier wants it so. */
    bool mayEnd();
    bool finishOrder();

    // All that the form read. Nothing of it goes before the form does: lines in hand show items that were read earlier.
    EntityPool m_read;
    EntityOrder* m_order = nullptr;
    EntityInvoiceLink* m_sale = nullptr;
    bool m_print = false;
    QList<int> m_knownBills;
};
