#pragma once

#include "pos/cash/entry/CutTextModel.h"

/** The rows of the ledger as its page shows them. */
class TableModelCashFlow final : public CutTextModel
{
    Q_OBJECT

public:
    enum Column { Date, AccountCode, AccountName, Debit, Credit, TransNo, Type, Description, Operator };

    TableModelCashFlow(const QList<KorEntity*>& rows, QObject* parent);
};
