#pragma once

#include "zavel/payment/InvoiceLinesModel.h"

/** The lines of the invoice of an order to take away. */
class TableModelBayarBawaPulangDetail final : public InvoiceLinesModel
{
    Q_OBJECT

public:
    TableModelBayarBawaPulangDetail(const QList<KorEntity*>& lines, QObject* parent)
        : InvoiceLinesModel(lines, false, parent)
    {}
};
