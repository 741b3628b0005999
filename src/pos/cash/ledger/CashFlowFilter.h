#pragma once

#include <QDate>
#include <QString>

/** What the ledger is narrowed to. Both dates count; an empty code stands for every account. */
struct CashFlowFilter
{
    /** The numbers are those of the forms' lists. */
    enum Side { AllRows = 0, DebitRows = 3, CreditRows = 4 };

    QDate fromDate;
    QDate toDate;
    int type = AllRows;
    QString code;
};
