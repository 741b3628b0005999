#pragma once

#include "app/widgets/AppEntityModel.h"

/** The open invoices of a member, with the amount that a payment pays of each. */
class TableModelPiutangInvoice final : public AppEntityModel
{
    Q_OBJECT

public:
    TableModelPiutangInvoice(const QList<KorEntity*>& lines, QObject* parent);
};
