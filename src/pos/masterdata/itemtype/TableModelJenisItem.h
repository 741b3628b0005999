#pragma once

#include "kor/widgets/KorEntityModel.h"

class TableModelJenisItem final : public KorEntityModel
{
    Q_OBJECT

public:
    TableModelJenisItem(const QList<KorEntity*>& rows, QObject* parent);
};
