#pragma once

#include "kor/entity/KorEntity.h"

#include <QDate>

// Both dates count; 0, KorNoValue and an empty text leave all.

/** What the list of commissions paid is narrowed to. */
struct CommissionFilter
{
    QDate from;
    QDate to;
    int agentId = KorNoValue;
    QString number;
};

/** What the list of all that agents earned is narrowed to. */
struct AgentSalesFilter
{
    QDate from;
    QDate to;
    int agentId = KorNoValue;
    int status = 0;
};
