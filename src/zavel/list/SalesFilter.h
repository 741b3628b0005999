#pragma once

#include "kor/entity/KorEntity.h"

#include <QDate>

/** The filter of the list of sales. Both dates are inclusive; 0, KorNoValue and empty texts match everything. */
struct SalesFilter
{
    /** A filter value besides the invoice statuses: all invoices that are not fully paid. */
    static constexpr int OpenInvoices = 4;
    enum Payment { AnyPayment = 0, CashPayment = 1, OtherPayment = 2 };

    QDate from;
    QDate to;
    int status = 0;
    int payment = AnyPayment;
    QString invoiceNo;
    int tableId = KorNoValue;
    int memberId = KorNoValue;
    int employeeId = KorNoValue;
    int agentId = KorNoValue;
    QString guest;
};
