#pragma once

#include "app/widgets/AppEntityModel.h"

class TableModelUser final : public AppEntityModel
{
    Q_OBJECT

public:
    TableModelUser(const QList<KorEntity*>& users, QObject* parent);
};
