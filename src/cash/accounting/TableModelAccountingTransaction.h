#pragma once

#include "app/widgets/AppEntityModel.h"

/** Transfers between accounts as their page shows them. */
class TableModelAccountingTransaction final : public AppEntityModel
{
    Q_OBJECT

public:
    enum Column { Date, TransNo, FromCode, FromName, ToCode, ToName, Amount, Description, Operator };

    TableModelAccountingTransaction(const QList<KorEntity*>& transfers, QObject* parent);
};
