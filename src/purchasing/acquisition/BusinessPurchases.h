#pragma once

#include "kor/business/KorBusinessLogic.h"

class DataMapperAcquisition;

/** The service of purchases. */
class BusinessPurchases final : public KorBusinessLogic
{
    Q_OBJECT

public:
    enum PERMISSIONS {
        INSERT_PURCHASE,
        UPDATE_PURCHASE,
        DELETE_PURCHASE,
        INSERT_PURCHASE_DETAIL,
        UPDATE_PURCHASE_DETAIL,
        DELETE_PURCHASE_DETAIL
    };
    Q_ENUM(PERMISSIONS)

    BusinessPurchases(QObject* parent, DataMapperAcquisition* purchases);

    [[nodiscard]] QList<KorPermission> getPermissions() const override;
    bool clearTransactions() override;

private:
    DataMapperAcquisition* m_purchases;
};
