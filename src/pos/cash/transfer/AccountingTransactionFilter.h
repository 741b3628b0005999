#pragma once

#include <QDate>

/** The period of a list of transfers; both dates are inclusive. */
struct AccountingTransactionFilter
{
    QDate fromDate;
    QDate toDate;
};
