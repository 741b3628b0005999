#pragma once

#include <QDate>

/** The period of a list of transfers; both dates count. */
struct AccountingTransactionFilter
{
    QDate fromDate;
    QDate toDate;
};
