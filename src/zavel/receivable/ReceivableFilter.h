#pragma once

#include "kor/entity/KorEntity.h"

#include <QDate>

/** What the list of members' payments is narrowed to. Both dates count; 0 and KorNoValue leave all. */
struct ReceivableFilter
{
    QDate from;
    QDate to;
    int paymentType = 0;
    int memberId = KorNoValue;
};
