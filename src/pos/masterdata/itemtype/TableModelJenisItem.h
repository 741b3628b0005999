#pragma once

#include "kor/widgets/KorEntityModel.h"

/** The rows of the list of item types. */
class TableModelJenisItem final : public KorEntityModel
{
    Q_OBJECT

public:
    TableModelJenisItem(const QList<KorEntity*>& rows, QObject* parent);
};
