#pragma once

#include "kor/business/KorBusinessLogic.h"

class DataMapperPayment;

/** The service of payments to suppliers. */
class BusinessPayment final : public KorBusinessLogic
{
    Q_OBJECT

public:
    enum PERMISSIONS { INSERT_PAYMENT, UPDATE_PAYMENT, DELETE_PAYMENT };
    Q_ENUM(PERMISSIONS)

    BusinessPayment(QObject* parent, DataMapperPayment* payments);

    [[nodiscard]] QList<KorPermission> getPermissions() const override;
    bool clearTransactions() override;

private:
    DataMapperPayment* m_payments;
};
