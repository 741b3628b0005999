#pragma once

#include <QList>
#include <QPair>
#include <QString>
#include <QVariant>

/** How money changes hands, in words; empty for a number that is no PAYMENT_TYPE. */
[[nodiscard]] QString paymentTypeText(int type);
/** All kinds with their words, as a choice offers them. */
[[nodiscard]] QList<QPair<QString, QVariant>> paymentTypeRows();
/** The same as payments to suppliers word it. */
[[nodiscard]] QList<QPair<QString, QVariant>> supplierPaymentTypeRows();
