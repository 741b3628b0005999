#pragma once

#include "app/widgets/AppEntityModel.h"

/** A list of credit notes; a row's colour and mark tell what came back of the money. */
class TableModelCreditNote final : public AppEntityModel
{
    Q_OBJECT

public:
    enum Column { Date, No, Supplier, Status, Total, Paid };

    TableModelCreditNote(const QList<KorEntity*>& notes, QObject* parent);

    [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
};
