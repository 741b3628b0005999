#pragma once

#include "kor/widgets/KorEntityModel.h"

class TableModelGroupedItem final : public KorEntityModel
{
    Q_OBJECT

public:
    TableModelGroupedItem(const QList<KorEntity*>& components, QObject* parent);
};
