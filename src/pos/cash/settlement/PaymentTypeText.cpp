#include "pos/cash/settlement/PaymentTypeText.h"

#include "pos/purchasing/payment/EntityPayment.h"

#include <QCoreApplication>

QString paymentTypeText(int type)
{
    switch (type) {
    case EntityPayment::CASH:
        return QCoreApplication::translate("PaymentType", "Cash");
    case EntityPayment::ELECTRONIC:
        return QCoreApplication::translate("PaymentType", "Electronic Funds Transfer");
    case EntityPayment::CHECK:
        return QCoreApplication::translate("PaymentType", "Check");
    default:
        return {};
    }
}

QList<QPair<QString, QVariant>> paymentTypeRows()
{
    QList<QPair<QString, QVariant>> rows;
    for (int type : {EntityPayment::CASH, EntityPayment::ELECTRONIC, EntityPayment::CHECK})
        rows.append({paymentTypeText(type), type});
    return rows;
}

QList<QPair<QString, QVariant>> supplierPaymentTypeRows()
{
    return {{QCoreApplication::translate("PaymentType", "Cash"), EntityPayment::CASH},
            {QCoreApplication::translate("PaymentType", "Electronic funds transfer"), EntityPayment::ELECTRONIC},
            {QCoreApplication::translate("PaymentType", "Checks"), EntityPayment::CHECK}};
}
