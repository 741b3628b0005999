#pragma once

#include "kor/widgets/KorEntityModel.h"

#include <QHash>

/** The permissions of one service and a group's right to each of them. The grants are given by permission id. */
class TableModelUserAccess final : public KorEntityModel
{
    Q_OBJECT

public:
    TableModelUserAccess(const QList<KorEntity*>& permissions, const QHash<int, int>& grants, QObject* parent);
};
