#pragma once

#include "kor/widgets/KorEntityModel.h"

class TableModelKitchenPrinter final : public KorEntityModel
{
    Q_OBJECT

public:
    TableModelKitchenPrinter(const QList<KorEntity*>& rows, QObject* parent);
};
