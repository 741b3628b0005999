#pragma once

#include "kor/entity/KorEntity.h"

#include <QDate>

/** The filter of the list of members' payments. Both dates are inclusive; 0 and KorNoValue match everything. */
struct ReceivableFilter
{
    QDate from;
    QDate to;
    int paymentType = 0;
    int memberId = KorNoValue;
};
