#pragma once

#include "kor/widgets/KorEntityModel.h"

/** The rows of the list of accounts. */
class TableModelBank final : public KorEntityModel
{
    Q_OBJECT

public:
    TableModelBank(const QList<KorEntity*>& rows, QObject* parent);
};
