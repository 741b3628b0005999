#pragma once

#include <QDate>
#include <QString>

/** What the counter's list is narrowed to. Both dates count; 0 stands for every status, an empty code for anybody. */
struct FastFoodFilter
{
    QDate from;
    QDate to;
    int status = 0;
    QString employeeCode;
};
