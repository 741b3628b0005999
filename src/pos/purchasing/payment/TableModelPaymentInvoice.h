#pragma once

#include "app/widgets/AppEntityModel.h"

/** The open purchases of a supplier, with what a payment pays of each. */
class TableModelPaymentInvoice final : public AppEntityModel
{
    Q_OBJECT

public:
    TableModelPaymentInvoice(const QList<KorEntity*>& lines, QObject* parent);

    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
};
