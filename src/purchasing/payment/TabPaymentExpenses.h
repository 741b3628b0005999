#pragma once

#include "purchasing/document/PurchasingLinesTab.h"
#include "purchasing/payment/DialogPaymentExpenses.h"
#include "purchasing/payment/EntityPaymentExpenses.h"
#include "purchasing/payment/TableModelPaymentExpenses.h"

/** What is paid for without a purchase, in the form of a payment. */
class TabPaymentExpenses final
    : public PurchasingLinesOf<EntityPaymentExpenses, TableModelPaymentExpenses, DialogPaymentExpenses>
{
    Q_OBJECT

public:
    explicit TabPaymentExpenses(QWidget* parent = nullptr) : PurchasingLinesOf(parent) { refresh(); }

protected:
    [[nodiscard]] QList<int> columnWidths() const override { return {110, 260, 100, 150, 150}; }
};
