#pragma once

#include "zavel/order/OrderKind.h"

#include <QObject>

class EntityOrder;

/**
 * The interface through which screens request bills and slips. The implementation depends on the records of every
 * kind of sale and therefore belongs to a layer above their screens; these only know this interface. A failure to print
 * is shown in a box; the sale stays saved.
 */
class SlipRequests : public QObject
{
    Q_OBJECT

public:
    /** The implementation, created together with the registry of services. */
    static SlipRequests* instance();

    // The id is that of the link row between the invoice and its kind of sale, not of the invoice.
    virtual void printBillMakanDitempat(int invoiceId) = 0;
    virtual void printBillFastFood(int invoiceId) = 0;
    virtual void printBillBawaPulang(int invoiceId) = 0;

    /** Prints the summary of an order on the cashier printer. */
    virtual void printMakanDitempat(int orderId) = 0;
    /** Prints a slip for each kitchen with automatic printing, with the order's lines as they are in memory. */
    virtual void printMenuOrder(OrderKind kind, EntityOrder* order) = 0;
    /** The same for all kitchens. */
    virtual void reprintMenuOrder(OrderKind kind, EntityOrder* order) = 0;
    /**
     * Prints the changes of an edit, from the order's lists of changes: first what was taken back, then what is new or
     * changed. After a move to another table, kitchens that get none of these slips get one about the move. Only for
     * kitchens with automatic printing, and only items that they cook. The former table is empty without a move.
     */
    virtual void printMenuOrderChange(OrderKind kind, EntityOrder* order, const QString& formerTable) = 0;
    enum CancelTo { AllKitchens, KitchensThatHadIt };
    virtual void printMenuOrderCanceled(OrderKind kind, EntityOrder* order, CancelTo to = AllKitchens) = 0;

protected:
    explicit SlipRequests(QObject* parent);
};
