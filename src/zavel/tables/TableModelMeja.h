#pragma once

#include "kor/widgets/KorEntityModel.h"

class TableModelMeja final : public KorEntityModel
{
    Q_OBJECT

public:
    TableModelMeja(const QList<KorEntity*>& tables, QObject* parent);
};
