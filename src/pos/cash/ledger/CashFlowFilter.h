#pragma once

#include <QDate>
#include <QString>

/** The filter of the ledger. Both dates are inclusive; an empty code means every account. */
struct CashFlowFilter
{
    /** The numbers are those of the forms' lists. */
    enum Side { AllRows = 0, DebitRows = 3, CreditRows = 4 };

    QDate fromDate;
    QDate toDate;
    int type = AllRows;
    QString code;
};
