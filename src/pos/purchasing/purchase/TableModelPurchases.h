#pragma once

#include "app/widgets/AppEntityModel.h"

/** The rows of a list of purchases; colour and icon show the payment status. */
class TableModelPurchases final : public AppEntityModel
{
    Q_OBJECT

public:
    enum Column { Date, InvoiceNo, Supplier, DueDate, Status, Total, NetDue };

    TableModelPurchases(const QList<KorEntity*>& purchases, QObject* parent);

    [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
};
