#pragma once

#include <QDate>
#include <QString>

/** The filter of the counter's list. Both dates are inclusive; status 0 and an empty code match everything. */
struct FastFoodFilter
{
    QDate from;
    QDate to;
    int status = 0;
    QString employeeCode;
};
