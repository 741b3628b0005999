#pragma once

#include "zavel/payment/InvoiceLinesModel.h"

/** The lines of a table's invoice. */
class TableModelBayarMakanDitempatDetail final : public InvoiceLinesModel
{
    Q_OBJECT

public:
    using InvoiceLinesModel::InvoiceLinesModel;
};
