#pragma once

#include "kor/widgets/KorEntityModel.h"

/** The rows of the list of running numbers. */
class TableModelKeyTable final : public KorEntityModel
{
    Q_OBJECT

public:
    TableModelKeyTable(const QList<KorEntity*>& keys, QObject* parent);
};
