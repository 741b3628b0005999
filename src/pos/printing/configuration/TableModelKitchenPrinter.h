#pragma once

#include "kor/widgets/KorEntityModel.h"

/** The rows of the list of kitchen printers. */
class TableModelKitchenPrinter final : public KorEntityModel
{
    Q_OBJECT

public:
    TableModelKitchenPrinter(const QList<KorEntity*>& rows, QObject* parent);
};
