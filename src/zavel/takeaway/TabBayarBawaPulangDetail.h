#pragma once

#include "zavel/payment/InvoiceLinesTab.h"
#include "zavel/takeaway/TableModelBayarBawaPulangDetail.h"

/** The lines in the payment form of an order to take away. */
class TabBayarBawaPulangDetail final : public InvoiceLinesTab
{
    Q_OBJECT

public:
    explicit TabBayarBawaPulangDetail(QWidget* parent = nullptr) : InvoiceLinesTab(parent) { refresh(); }

protected:
    InvoiceLinesModel* createModel(const QList<KorEntity*>& lines) override
    {
        return new TableModelBayarBawaPulangDetail(lines, this);
    }
};
