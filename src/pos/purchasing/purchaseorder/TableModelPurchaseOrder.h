#pragma once

#include "app/widgets/AppEntityModel.h"

/** A list of purchase orders. */
class TableModelPurchaseOrder final : public AppEntityModel
{
    Q_OBJECT

public:
    TableModelPurchaseOrder(const QList<KorEntity*>& orders, QObject* parent);

    [[nodiscard]] static QString statusText(int status);
};
