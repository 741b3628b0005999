#pragma once

#include "app/widgets/AppEntityModel.h"

/** The list of members' payments. */
class TableModelPiutang final : public AppEntityModel
{
    Q_OBJECT

public:
    TableModelPiutang(const QList<KorEntity*>& payments, QObject* parent);
};
