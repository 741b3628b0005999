#pragma once

#include "app/widgets/AppEntityModel.h"

/** The lines of an invoice in a payment form. */
class InvoiceLinesModel : public AppEntityModel
{
    Q_OBJECT

public:
    /** With showSplit two more columns show what is split off to separate invoices. */
    InvoiceLinesModel(const QList<KorEntity*>& lines, bool showSplit, QObject* parent);
};
