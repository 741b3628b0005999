#pragma once

#include "kor/widgets/KorEntityModel.h"

/** The rows of the list of components. */
class TableModelGroupedItem final : public KorEntityModel
{
    Q_OBJECT

public:
    TableModelGroupedItem(const QList<KorEntity*>& components, QObject* parent);
};
