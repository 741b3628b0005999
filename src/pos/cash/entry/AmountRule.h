#pragma once

#include <QString>

class KorDialog;
class MoneyEdit;

/** Whether the box holds an amount that can be booked; what is wrong with it becomes an error of the form. */
bool requireAmount(KorDialog& form, MoneyEdit* box, const QString& missing);
