#pragma once

#include "app/widgets/AppEntityModel.h"

/** The invoices of one order, to choose among. */
class TableModelSelectSplitInvoice final : public AppEntityModel
{
    Q_OBJECT

public:
    TableModelSelectSplitInvoice(const QList<KorEntity*>& invoices, QObject* parent);
};
