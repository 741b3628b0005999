#pragma once

#include "kor/entity/KorEntity.h"

#include <QDate>
#include <QString>

// What the lists of sales and of the money that follows are narrowed to. Both dates count; 0 stands for every status
// or kind, KorNoValue for every record and an empty text for any.

struct FastFoodFilter
{
    QDate from;
    QDate to;
    int status = 0;
    QString employeeCode;
};

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

struct ReceivableFilter
{
    QDate from;
    QDate to;
    int paymentType = 0;
    int memberId = KorNoValue;
};

struct CommissionFilter
{
    QDate from;
    QDate to;
    int agentId = KorNoValue;
    QString number;
};

struct AgentSalesFilter
{
    QDate from;
    QDate to;
    int agentId = KorNoValue;
    int status = 0;
};
