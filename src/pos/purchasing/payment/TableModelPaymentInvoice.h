#pragma once

#include "app/widgets/AppEntityModel.h"

/** The open purchases of a supplier with the amounts to pay. */
class TableModelPaymentInvoice final : public AppEntityModel
{
    Q_OBJECT

public:
    TableModelPaymentInvoice(const QList<KorEntity*>& lines, QObject* parent);

    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
};
