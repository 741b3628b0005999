#pragma once

#include "pos/cash/entry/CutTextModel.h"

/** The rows of the list of transfers. */
class TableModelAccountingTransaction final : public CutTextModel
{
    Q_OBJECT

public:
    enum Column { Date, TransNo, FromCode, FromName, ToCode, ToName, Amount, Description, Operator };

    TableModelAccountingTransaction(const QList<KorEntity*>& transfers, QObject* parent);
};
