#pragma once

#include <QList>
#include <QPair>
#include <QString>
#include <QVariant>

/** The types of payment, as they are stored. */
namespace PaymentType
{
enum PaymentType { Cash = 1, Electronic = 2, Check = 3 };
}

/** The name of the type; empty for an unknown number. */
[[nodiscard]] QString paymentTypeText(int type);
/** All types with their names, for a combo box. */
[[nodiscard]] QList<QPair<QString, QVariant>> paymentTypeRows();
/** The same with the names for payments to suppliers. */
[[nodiscard]] QList<QPair<QString, QVariant>> supplierPaymentTypeRows();
