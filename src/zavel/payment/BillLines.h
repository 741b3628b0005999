#pragma once

#include <QCoreApplication>
#include <QList>
#include <QMap>
#include <QString>

class EntityInvoiceDetail;
class EntityOrder;
class QObject;

// Operations on the lines of bills: copy them from the order, split them among guests, compare them with the order.

using InvoiceLines = QList<EntityInvoiceDetail*>;

/** The order's lines as new bill lines, children of the owner. */
[[nodiscard]] InvoiceLines billOf(const EntityOrder& order, QObject* owner);

/** The quantities split off, as new lines by name of their group, children of the owner. */
[[nodiscard]] QMap<QString, InvoiceLines> splitGroups(const InvoiceLines& lines, QObject* owner);

/** Adds the quantities to lines of the same dish and price; others become new lines, children of the owner. */
void addLines(const InvoiceLines& added, InvoiceLines* lines, QObject* owner);

/** Subtracts the quantities of these dishes from the lines, at most to 0; lines that reach 0 leave the list. */
void takeOffLines(const InvoiceLines& takenOff, InvoiceLines* lines);

/** The differences in quantity, dish by dish, between an order and all its bills. Prices are not compared. */
class BillDifference
{
    Q_DECLARE_TR_FUNCTIONS(BillDifference)

public:
    /** Ordered, but on no bill; at the order's price. */
    InvoiceLines unbilled;
    /** On a bill, but no longer ordered; at the bill's price. */
    InvoiceLines takenBack;

    [[nodiscard]] bool isEmpty() const { return unbilled.isEmpty() && takenBack.isEmpty(); }
    /** Text for the cashier: dishes, quantities and amounts, and the sum if there are several. */
    [[nodiscard]] QString text() const;

private:
    /** "2 Rice (Rp500), 1 Tea (Rp80); Rp580 in all" */
    [[nodiscard]] static QString dishesOf(const InvoiceLines& lines);
};

/** Compares the order with the lines of all its bills. The result's lines are children of the owner. */
[[nodiscard]] BillDifference differenceOf(const EntityOrder& order, const InvoiceLines& billed, QObject* owner);
