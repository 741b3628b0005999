#pragma once

#include "kor/widgets/KorEntityModel.h"

class TableModelBank final : public KorEntityModel
{
    Q_OBJECT

public:
    TableModelBank(const QList<KorEntity*>& rows, QObject* parent);
};
