#pragma once

#include <QList>
#include <QPair>
#include <QString>
#include <QVariant>

/** How money changes hands, as payments store it. */
namespace PaymentType
{
enum PaymentType { Cash = 1, Electronic = 2, Check = 3 };
}

/** The kind in words; empty for a number that is none. */
[[nodiscard]] QString paymentTypeText(int type);
/** All kinds with their words, as a choice offers them. */
[[nodiscard]] QList<QPair<QString, QVariant>> paymentTypeRows();
/** The same as payments to suppliers word it. */
[[nodiscard]] QList<QPair<QString, QVariant>> supplierPaymentTypeRows();
