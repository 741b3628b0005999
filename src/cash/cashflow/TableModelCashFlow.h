#pragma once

#include "app/widgets/AppEntityModel.h"

/** The rows of the ledger as its page shows them. */
class TableModelCashFlow final : public AppEntityModel
{
    Q_OBJECT

public:
    enum Column { Date, AccountCode, AccountName, Debit, Credit, TransNo, Type, Description, Operator };

    TableModelCashFlow(const QList<KorEntity*>& rows, QObject* parent);

    /** Words that a column cuts off are told when the mouse rests on them. */
    [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
};
