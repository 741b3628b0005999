#pragma once

#include "app/widgets/AppEntityModel.h"

/** The rows of a list of credit notes; colour and icon show how much was refunded. */
class TableModelCreditNote final : public AppEntityModel
{
    Q_OBJECT

public:
    enum Column { Date, No, Supplier, Status, Total, Paid };

    TableModelCreditNote(const QList<KorEntity*>& notes, QObject* parent);

    [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
};
