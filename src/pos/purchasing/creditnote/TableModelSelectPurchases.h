#pragma once

#include "app/widgets/AppEntityModel.h"

/** The purchases that goods can go back for. */
class TableModelSelectPurchases final : public AppEntityModel
{
    Q_OBJECT

public:
    TableModelSelectPurchases(const QList<KorEntity*>& purchases, QObject* parent);
};
