#pragma once

#include "kor/widgets/KorEntityModel.h"

class TableModelKeyTable final : public KorEntityModel
{
    Q_OBJECT

public:
    TableModelKeyTable(const QList<KorEntity*>& keys, QObject* parent);
};
