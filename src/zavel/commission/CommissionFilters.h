#pragma once

#include "kor/entity/KorEntity.h"

#include <QDate>

// Both dates are inclusive; 0, KorNoValue and an empty text match everything.

/** The filter of the list of commission payments. */
struct CommissionFilter
{
    QDate from;
    QDate to;
    int agentId = KorNoValue;
    QString number;
};

/** The filter of the list of invoices with the commissions that agents earn. */
struct AgentSalesFilter
{
    QDate from;
    QDate to;
    int agentId = KorNoValue;
    int status = 0;
};
