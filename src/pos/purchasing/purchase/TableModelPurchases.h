#pragma once

#include "app/widgets/AppEntityModel.h"

/** A list of purchases; a row's colour and mark tell what is paid. */
class TableModelPurchases final : public AppEntityModel
{
    Q_OBJECT

public:
    enum Column { Date, InvoiceNo, Supplier, DueDate, Status, Total, NetDue };

    TableModelPurchases(const QList<KorEntity*>& purchases, QObject* parent);

    [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
};
