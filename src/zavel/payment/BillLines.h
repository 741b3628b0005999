#pragma once

#include <QCoreApplication>
#include <QList>
#include <QMap>
#include <QString>

class EntityInvoiceDetail;
class EntityOrder;
class QObject;

// What is done with the lines of bills: taken over from the order, shared among the guests, compared with the order.

using InvoiceLines = QList<EntityInvoiceDetail*>;

/** The order's lines as those of a bill; they are the owner's. */
[[nodiscard]] InvoiceLines billOf(const EntityOrder& order, QObject* owner);

/** The quantities split off, as new lines of the owner, under the name of their group. */
[[nodiscard]] QMap<QString, InvoiceLines> splitGroups(const InvoiceLines& lines, QObject* owner);

/** Adds the quantities to the lines of the same dish and price; what has no such line becomes one of the owner. */
void addLines(const InvoiceLines& added, InvoiceLines* lines, QObject* owner);

/** Takes the quantities of these dishes off the lines, as far as they are there; a line with nothing left goes. */
void takeOffLines(const InvoiceLines& takenOff, InvoiceLines* lines);

/** What an order and all its bills together tell differently, dish by dish. Prices are not compared. */
class BillDifference
{
    Q_DECLARE_TR_FUNCTIONS(BillDifference)

public:
    /** Ordered, and on no bill; at the order's price. */
    InvoiceLines unbilled;
    /** On a bill, and no longer ordered; at the bill's price. */
    InvoiceLines takenBack;

    [[nodiscard]] bool isEmpty() const { return unbilled.isEmpty() && takenBack.isEmpty(); }
    /** For the cashier: dishes, quantities and amounts, and the sum where there are several. */
    [[nodiscard]] QString text() const;

private:
    /** "2 Rice (Rp500), 1 Tea (Rp80); Rp580 in all" */
    [[nodiscard]] static QString dishesOf(const InvoiceLines& lines);
};

/** The difference's lines are the owner's. */
[[nodiscard]] BillDifference differenceOf(const EntityOrder& order, const InvoiceLines& billed, QObject* owner);
