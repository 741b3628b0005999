#pragma once

#include "app/widgets/AppEntityModel.h"

/** The rows of the list of user groups. */
class UserGroupTableModel final : public AppEntityModel
{
    Q_OBJECT

public:
    UserGroupTableModel(const QList<KorEntity*>& groups, QObject* parent);
};
