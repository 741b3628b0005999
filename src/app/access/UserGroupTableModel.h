#pragma once

#include "app/widgets/AppEntityModel.h"

class UserGroupTableModel final : public AppEntityModel
{
    Q_OBJECT

public:
    UserGroupTableModel(const QList<KorEntity*>& groups, QObject* parent);
};
