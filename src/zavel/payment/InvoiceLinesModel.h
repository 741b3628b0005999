#pragma once

#include "app/widgets/AppEntityModel.h"

/** The lines of an invoice in a payment form. */
class InvoiceLinesModel : public AppEntityModel
{
    Q_OBJECT

public:
    /** While a party pays apart two more columns tell what is split off. */
    InvoiceLinesModel(const QList<KorEntity*>& lines, bool showSplit, QObject* parent);
};
