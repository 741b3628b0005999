#pragma once

#include "kor/widgets/KorEntityModel.h"

#include <QHash>

/** The permissions of one service with what a group may do with them: permission ids to grants. */
class TableModelUserAccess final : public KorEntityModel
{
    Q_OBJECT

public:
    TableModelUserAccess(const QList<KorEntity*>& permissions, const QHash<int, int>& grants, QObject* parent);
};
