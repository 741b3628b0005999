#pragma once

#include "app/widgets/AppEntityModel.h"

/** A list of payments to suppliers. */
class TableModelPayment final : public AppEntityModel
{
    Q_OBJECT

public:
    TableModelPayment(const QList<KorEntity*>& payments, QObject* parent);
};
