#pragma once

#include "kor/widgets/KorEntityModel.h"

/** The rows of the list of units. */
class TableModelSatuan final : public KorEntityModel
{
    Q_OBJECT

public:
    TableModelSatuan(const QList<KorEntity*>& rows, QObject* parent);
};
