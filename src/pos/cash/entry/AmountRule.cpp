#include "pos/cash/entry/AmountRule.h"

#include "app/money/Money.h"
#include "app/widgets/MoneyEdit.h"
#include "kor/widgets/KorDialog.h"

#include <QCoreApplication>

#include <cmath>
#include <limits>

bool requireAmount(KorDialog& form, MoneyEdit* box, const QString& missing)
{
    const auto text = [](const char* source) { return QCoreApplication::translate("AmountRule", source); };
    const double amount = box->value();
    const int factor = Money(nullptr, 0, box->currency()).factor();
    const double most = std::floor(double(std::numeric_limits<int>::max()) / factor);
    const bool isNumber = box->isValid();
    if (isNumber && amount < 0)
        form.addError(box, text(QT_TRANSLATE_NOOP("AmountRule", "The amount must not be negative")));
    else if (isNumber && amount > most)
        form.addError(box, text(QT_TRANSLATE_NOOP("AmountRule", "The amount is too large, the largest is %1"))
                               .arg(box->locale().toString(most, 'f', 0)));
    // Whole units are stored: what is less than one of them would be an entry of nothing.
    else if (!isNumber || Money(nullptr, amount, box->currency()).getAmount() == 0.0)
        form.addError(box, missing);
    else
        return true;
    return false;
}
