#include "pos/cash/settlement/PaymentType.h"

#include <QCoreApplication>

QString paymentTypeText(int type)
{
    switch (type) {
    case PaymentType::Cash:
        return QCoreApplication::translate("PaymentType", "Cash");
    case PaymentType::Electronic:
        return QCoreApplication::translate("PaymentType", "Electronic Funds Transfer");
    case PaymentType::Check:
        return QCoreApplication::translate("PaymentType", "Check");
    default:
        return {};
    }
}

QList<QPair<QString, QVariant>> paymentTypeRows()
{
    QList<QPair<QString, QVariant>> rows;
    for (int type : {PaymentType::Cash, PaymentType::Electronic, PaymentType::Check})
        rows.append({paymentTypeText(type), type});
    return rows;
}

QList<QPair<QString, QVariant>> supplierPaymentTypeRows()
{
    return {{QCoreApplication::translate("PaymentType", "Cash"), PaymentType::Cash},
            {QCoreApplication::translate("PaymentType", "Electronic funds transfer"), PaymentType::Electronic},
            {QCoreApplication::translate("PaymentType", "Checks"), PaymentType::Check}};
}
