#pragma once

#include "zavel/order/OrderKind.h"

#include <QObject>

class EntityOrder;

/**
 * Where screens ask for a bill or a slip. Who composes slips knows the records of every way of selling, and so lies
 * above their screens; these know no more of it than what can be asked. What cannot be printed is told in a box; the
 * sale stands either way.
 */
class SlipRequests : public QObject
{
    Q_OBJECT

public:
    /** Who answers; made with the registry of services. */
    static SlipRequests* instance();

    // By the sale's own row: the one that ties the invoice to its way of selling.
    virtual void printBillMakanDitempat(int invoiceId) = 0;
    virtual void printBillFastFood(int invoiceId) = 0;
    virtual void printBillBawaPulang(int invoiceId) = 0;

    /** The recap of an order on the cashier printer. */
    virtual void printMakanDitempat(int orderId) = 0;
    /** A slip to each kitchen that prints by itself, with the lines that the order holds in memory. */
    virtual void printMenuOrder(OrderKind kind, EntityOrder* order) = 0;
    /** The same to all kitchens. */
    virtual void reprintMenuOrder(OrderKind kind, EntityOrder* order) = 0;
    /**
     * What an edit has changed, from the order's own lists: first what is taken back, then what is new or changed, and
     * where the table is another one a word to the kitchens that hear nothing else of it. To kitchens that print by
     * themselves, and only of what they cook. The former table is empty where the order has not moved.
     */
    virtual void printMenuOrderChange(OrderKind kind, EntityOrder* order, const QString& formerTable) = 0;
    enum CancelTo { AllKitchens, KitchensThatHadIt };
    virtual void printMenuOrderCanceled(OrderKind kind, EntityOrder* order, CancelTo to = AllKitchens) = 0;

protected:
    explicit SlipRequests(QObject* parent);
};
