#pragma once

#include "app/widgets/AppEntityModel.h"

/** The invoices of one order, to choose one from. */
class TableModelSelectSplitInvoice final : public AppEntityModel
{
    Q_OBJECT

public:
    TableModelSelectSplitInvoice(const QList<KorEntity*>& invoices, QObject* parent);
};
