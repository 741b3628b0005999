#pragma once

#include "kor/business/KorBusinessLogic.h"

class DataMapperPurchaseOrder;

/** The service of purchase orders. */
class BusinessPurchaseOrder final : public KorBusinessLogic
{
    Q_OBJECT

public:
    enum PERMISSIONS { INSERT_PO, UPDATE_PO, DELETE_PO, INSERT_PO_DETAIL, UPDATE_PO_DETAIL, DELETE_PO_DETAIL };
    Q_ENUM(PERMISSIONS)

    BusinessPurchaseOrder(QObject* parent, DataMapperPurchaseOrder* orders);

    [[nodiscard]] QList<KorPermission> getPermissions() const override;
    bool clearTransactions() override;

private:
    DataMapperPurchaseOrder* m_orders;
};
