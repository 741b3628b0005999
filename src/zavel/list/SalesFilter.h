#pragma once

#include "kor/entity/KorEntity.h"

#include <QDate>

/** What the list of sales is narrowed to. Both dates count; 0, KorNoValue and empty texts leave all. */
struct SalesFilter
{
    /** All invoices that are not fully paid, beside the statuses of an invoice. */
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
