#pragma once

#include "kor/widgets/KorEntityModel.h"

class TableModelSatuan final : public KorEntityModel
{
    Q_OBJECT

public:
    TableModelSatuan(const QList<KorEntity*>& rows, QObject* parent);
};
