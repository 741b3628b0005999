#pragma once

#include "pos/purchasing/document/PurchasingLinesTab.h"
#include "pos/purchasing/payment/DialogPaymentExpenses.h"
#include "pos/purchasing/payment/EntityPaymentExpenses.h"
#include "pos/purchasing/payment/TableModelPaymentExpenses.h"

/** The expenses without a purchase, in the form of a payment. */
class TabPaymentExpenses final
    : public PurchasingLinesOf<EntityPaymentExpenses, TableModelPaymentExpenses, DialogPaymentExpenses>
{
    Q_OBJECT

public:
    explicit TabPaymentExpenses(QWidget* parent = nullptr) : PurchasingLinesOf(parent) { refresh(); }

protected:
    [[nodiscard]] QList<int> columnWidths() const override { return {110, 260, 100, 150, 150}; }
};
